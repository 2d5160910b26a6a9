// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "core/itemroles.h"
#include "panes/sidepane.h"
#include "support/testregistry.h"

#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The document tree in the real window.
class TstDocumentTree final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickOnTheTabShowsTheText()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        window.rt().setText(u"<body>\r\n<a href=x>"_s);
        showTree(bench);
        QVERIFY(bench.find<QTreeView>(u"TreeView1"_s)->isVisible());
        QVERIFY(leaf(bench, u"x"_s).isValid());

        // It doesn't follow later changes until it is clicked again.
        window.rt().setText(u"<a href=y>"_s);
        QVERIFY(leaf(bench, u"x"_s).isValid());
        showTree(bench);
        QVERIFY(!leaf(bench, u"x"_s).isValid());
        QVERIFY(leaf(bench, u"y"_s).isValid());
    }

    void anErrorIsTold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("goOn");
        const QString far = u"<a href=x>"_s + QString(32767, u' ') + u"<title>Home</title>\r\n"_s;
        QTest::newRow("short comment, OK") << u"<a href=x><!-->"_s << u"Invalid procedure call or argument"_s << true;
        QTest::newRow("short comment, Cancel")
            << u"<a href=x><!-->"_s << u"Invalid procedure call or argument"_s << false;
        QTest::newRow("far title, OK") << far << u"Overflow"_s << true;
    }

    void anErrorIsTold()
    {
        QFETCH(QString, text);
        QFETCH(QString, description);
        QFETCH(bool, goOn);
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        window.rt().setText(text);
        bench.prompts.expect({u"An error has occured at: frmmain in Procedure: Frame1_Click\r\n"
                              "The error is as follows: "_s
                                  + description
                                  + u"\r\nPlease Report this to the Zephira. team\r\n"
                                    "Click OK to continue, Cancel to Exit the current SUB"_s,
                              {},
                              Question::Icon::Critical,
                              Question::Buttons::OkCancel},
                             goOn ? Answer::Ok : Answer::Cancel);
        showTree(bench);
        QVERIFY(bench.prompts.verify());
        QCOMPARE(bench.find<QTreeView>(u"TreeView1"_s)->isVisible(), goOn);
        QVERIFY(leaf(bench, u"x"_s).isValid());
    }

    void aLeafLeadsToItsTag()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        window.rt().setText(u"<body>\r\n<a href=x>here</a>"_s);
        showTree(bench);
        bench.find<QTreeView>(u"TreeView1"_s)->setCurrentIndex(leaf(bench, u"x"_s));
        QCOMPARE(window.rt().selLength(), 0);
        bench.choose(u"goToTag"_s);
        QCOMPARE(window.rt().selText(), u"<a href=x>"_s);

        window.rt().setText(u"<body>\r\n<p>new</p>\r\n<a href=x>here</a>"_s);
        bench.choose(u"goToTag"_s);
        QCOMPARE(window.rt().selText(), u"<a href=x>"_s);

        window.rt().setText(u"<body>"_s);
        bench.choose(u"goToTag"_s);
        QCOMPARE(window.rt().selText(), QString());
    }

private:
    static void showTree(const WindowBench &bench)
    {
        const auto *tabs = bench.find<QTabBar>(u"Frame1"_s);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            if (tabs->tabData(tab).toString() == u"documenttree")
                bench.window->sidePane().click(tab);
        }
    }

    static QModelIndex leaf(const WindowBench &bench, const QString &caption)
    {
        const QAbstractItemModel *model = bench.find<QTreeView>(u"TreeView1"_s)->model();
        return model->match(model->index(0, 0), Qt::DisplayRole, caption, 1, Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
};

ZEPHIRA_TEST(TstDocumentTree)
#include "tst_documenttree.moc"
