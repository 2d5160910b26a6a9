// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/helptable.h"
#include "support/testregistry.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Which page is about which window.
class TstHelpTable final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPageIsThereOnce()
    {
        static const QRegularExpression plain(u"^[a-z]+(-[a-z]+)*$"_s);
        QSet<QString> pages;
        QSet<QString> places;
        for (const HelpChapter &chapter : helpChapters()) {
            QVERIFY(!chapter.title.isEmpty() && !chapter.pages.empty());
            for (const HelpPage &page : chapter.pages) {
                const QString name = page.name.toString();
                QVERIFY2(name.contains(plain) && name != contentsPage && !pages.contains(name), qPrintable(name));
                pages.insert(name);
                const QString place = u"%1/%2"_s.arg(page.window, page.parts);
                QVERIFY2(page.window.isEmpty() || !places.contains(place), qPrintable(place));
                places.insert(place);
            }
        }
        QVERIFY(pages.size() > 60);
    }

    void pageForWhatHasTheFocus_data()
    {
        QTest::addColumn<QList<QStringList>>("windows");
        QTest::addColumn<QString>("page");
        using Windows = QList<QStringList>;
        QTest::newRow("a form") << Windows{{u"txtRows"_s, u"frmTables"_s}, {u"frmmain"_s}} << u"table-wizard"_s;
        QTest::newRow("the form alone") << Windows{{u"frmTables"_s}} << u"table-wizard"_s;
        QTest::newRow("the text") << Windows{{u"rt"_s, u"views"_s, u"frmmain"_s}} << u"code-view"_s;
        QTest::newRow("inside a part") << Windows{{QString(), u"DHTMLEdit1"_s, u"frmmain"_s}} << u"designer"_s;
        QTest::newRow("the page beside the text")
            << Windows{{QString(), u"livePageView"_s, u"livePane"_s, u"liveDock"_s, u"frmmain"_s}} << u"live-page"_s;
        QTest::newRow("the line below the text")
            << Windows{{u"crumb_2"_s, u"breadcrumb"_s, u"frmmain"_s}} << u"breadcrumb"_s;
        QTest::newRow("one of several parts") << Windows{{u"c4"_s, u"sidePages"_s, u"frmmain"_s}} << u"snippets"_s;
        QTest::newRow("elsewhere in the main window") << Windows{{u"cboLang"_s, u"frmmain"_s}} << u"main-window"_s;
        QTest::newRow("a part's name in another window")
            << Windows{{u"List1"_s, u"frmProg"_s}, {u"frmmainftp"_s}, {u"frmmain"_s}} << u"ftp-transfer"_s;
        QTest::newRow("a window without a page")
            << Windows{{u"box"_s, QString()}, {u"frmMeta"_s}, {u"frmmain"_s}} << u"meta-tag-wizard"_s;
        QTest::newRow("a part's name in a window without a page")
            << Windows{{u"rt"_s, u"unknown"_s}, {u"frmMeta"_s}} << u"meta-tag-wizard"_s;
        QTest::newRow("a part isn't a window") << Windows{{u"rt"_s}} << u"index"_s;
        QTest::newRow("nothing known") << Windows{{u"a"_s, u"b"_s}, {}} << u"index"_s;
        QTest::newRow("no window") << Windows{} << u"index"_s;
    }

    void pageForWhatHasTheFocus()
    {
        QFETCH(QList<QStringList>, windows);
        const QString page = helpPageFor(windows).toString();
        QTEST(page, "page");
    }

    void file() { QCOMPARE(helpFile(u"table-wizard"), u"table-wizard.html"_s); }
};

ZEPHIRA_TEST(TstHelpTable)

#include "tst_helptable.moc"
