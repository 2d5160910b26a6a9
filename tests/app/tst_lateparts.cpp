// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/lateparts.h"
#include "app/windowbench.h"
#include "support/testregistry.h"

#include <QComboBox>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

struct ShownBench : WindowBench {
    explicit ShownBench(HiddenParts when)
    {
        hiddenParts = when;
        start();
    }

    /// Kind and name of everything in the window that has a name of its own.
    QStringList names() const
    {
        QStringList names;
        const QList<QObject *> objects = window->findChildren<QObject *>();
        for (const QObject *object : objects) {
            if (!object->objectName().isEmpty())
                names.append(QString::fromLatin1(object->metaObject()->className()) + u' ' + object->objectName());
        }
        names.sort();
        return names;
    }

    /// The names of the controls in the order in which the Tab key would reach them if all of them showed.
    QStringList tabOrder() const
    {
        QStringList order;
        for (QWidget *next = window->nextInFocusChain(); next != window.get(); next = next->nextInFocusChain()) {
            if (next->focusPolicy() & Qt::TabFocus && !next->objectName().isEmpty())
                order.append(next->objectName());
        }
        return order;
    }

    bool has(const QString &name) const { return window->findChild<QWidget *>(name); }
    QTreeWidget *tree(const QString &name) const { return find<QTreeWidget>(name); }
};

const QStringList latest{u"TRV"_s, u"c6"_s, u"FontCombo"_s};

} // namespace

/// What nobody sees at first is made when the window has been painted, and then all is as if it had been made at once.
class TstLateParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theyComeInTheirOrder()
    {
        QWidget window;
        LateParts parts(window, HiddenParts::AfterPicture);
        QStringList made;
        for (const QString &name : {u"one"_s, u"two"_s, u"three"_s})
            parts.add([&made, name] { made.append(name); });
        QTest::qWait(50);
        QCOMPARE(made, QStringList());
        window.show();
        QTRY_COMPARE(made, QStringList({u"one"_s, u"two"_s, u"three"_s}));
    }

    void whoNeedsThemHasThemAtOnce()
    {
        QWidget window;
        LateParts parts(window, HiddenParts::AfterPicture);
        int made = 0;
        parts.add([&made] { ++made; });
        parts.add([&made] { ++made; });
        parts.finish();
        QCOMPARE(made, 2);
        parts.finish();
        QCOMPARE(made, 2);
    }

    void theWindowIsTheSameInTheEnd()
    {
        ShownBench atOnce(HiddenParts::AtOnce);
        ShownBench later(HiddenParts::AfterPicture);
        for (const QString &name : latest) {
            QVERIFY2(atOnce.has(name), qPrintable(name));
            QVERIFY2(!later.has(name), qPrintable(name));
        }
        atOnce.window->show();
        later.window->show();
        QTRY_COMPARE(later.names(), atOnce.names());
        QTRY_VERIFY(later.tree(u"asptags"_s)->topLevelItemCount() > 0);
        QCOMPARE(later.tree(u"asptags"_s)->topLevelItemCount(), atOnce.tree(u"asptags"_s)->topLevelItemCount());
        QCOMPARE(later.tree(u"TRV"_s)->topLevelItemCount(), atOnce.tree(u"TRV"_s)->topLevelItemCount());
        QCOMPARE(later.find<QComboBox>(u"FontCombo"_s)->count(), atOnce.find<QComboBox>(u"FontCombo"_s)->count());
        const QList<QAction *> actions = later.find<QToolBar>(u"Toolbar2"_s)->actions();
        for (const QAction *action : actions)
            QVERIFY(!action->isEnabled());
        QCOMPARE(later.tabOrder(), atOnce.tabOrder());
    }

    void aTabThatIsClickedFirstHasItsPage()
    {
        ShownBench bench(HiddenParts::AfterPicture);
        auto *tabs = bench.find<QTabBar>(u"Frame1"_s);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            if (tabs->tabData(tab) == u"html"_s)
                tabs->setCurrentIndex(tab);
        }
        QVERIFY(bench.tree(u"TRV"_s)->topLevelItemCount() > 0);
        QVERIFY(!bench.tree(u"TRV"_s)->isHidden());
    }

    void theDesignerHasItsBar()
    {
        ShownBench bench(HiddenParts::AfterPicture);
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(2);
        QVERIFY(bench.webViews.made.contains(u"designer"_s));
        QCOMPARE(bench.find<QComboBox>(u"FontSizeCombo"_s)->count(), 7);
    }
};

ZEPHIRA_TEST(TstLateParts)

#include "tst_lateparts.moc"
