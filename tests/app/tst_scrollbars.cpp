// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/scrollbars.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QByteArray smallPage = "<html>\r\n<head><title>Small</title></head>\r\n<body>\r\n<h1>One</h1>\r\n<p>Two</p>\r\n"
                             "</body>\r\n</html>\r\n";

} // namespace

/// Every window of the program at its first size, with what it usually holds: where a scroll bar shows, there is something
/// to scroll to.
class TstScrollBars final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The helper finds what it is to find: otherwise every window would pass.
    void needlessBarsAreFound()
    {
        QWidget window;
        window.setObjectName(u"window"_s);
        auto *list = new QListView(&window);
        list->setObjectName(u"list"_s);
        list->resize(100, 100);
        list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        window.show();
        QCOMPARE(needlessScrollBars(window), QStringList{u"list of window has a vertical bar for 0"_s});
        list->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        QCOMPARE(needlessScrollBars(window), QStringList());
    }

    void mainWindow_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("as it first shows") << QSize();
        QTest::newRow("low screen") << QSize(1366, 740);
        QTest::newRow("large screen") << QSize(1900, 1000);
    }

    void mainWindow()
    {
        QFETCH(QSize, size);
        WindowBench bench;
        const QString page = bench.write(u"site/small.htm"_s, smallPage);
        bench.write(u"site/style.css"_s, "p {}\n");
        frmmain &window = bench.start(page);
        if (size.isValid())
            window.resize(size);
        window.show();
        auto *tabs = bench.find<QTabBar>(u"Frame1"_s);
        QCOMPARE(tabs->count(), 12);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            // Looking for them lays the lists out anew, so that a second look might find less.
            const QStringList found = needlessScrollBars(window);
            QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
        }
    }

    void forms_data()
    {
        QTest::addColumn<QString>("form");
        const QStringList names = WindowBench().catalogue.names();
        QVERIFY(names.size() > 10);
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }

    void forms()
    {
        QFETCH(QString, form);
        WindowBench bench;
        frmmain &window = bench.start(bench.write(u"site/small.htm"_s, smallPage));
        window.show();
        const std::unique_ptr<QWidget> living(bench.catalogue.make(form, window.context(), &window));
        QVERIFY(living);
        living->show();
        const QStringList found = needlessScrollBars(*living);
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }
};

ZEPHIRA_TEST(TstScrollBars)
#include "tst_scrollbars.moc"
