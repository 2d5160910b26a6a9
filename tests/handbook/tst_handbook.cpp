// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/handbook.h"
#include "handbook/helptable.h"
#include "support/testregistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A handbook with a line for each page.
HandbookSource shortSource()
{
    HandbookSource source;
    source.pages[u"index"_s] = u"<h1>Contents</h1>\n<!-- contents -->\n"_s;
    for (const HelpChapter &chapter : helpChapters()) {
        for (const HelpPage &page : chapter.pages)
            source.pages[page.name.toString()] =
                u"<h1>About %1</h1>\n<p>It is short.</p>\n<p>More.</p>\n"_s.arg(page.name);
    }
    source.pages[u"keys"_s] += u"<!-- keys -->"_s;
    source.keys = u"<table class=\"zebra\"></table>"_s;
    return source;
}

QString fileOf(const Result<std::vector<HandbookFile>> &made, const QString &name)
{
    if (!made)
        return made.error().sentence;
    const auto file = std::ranges::find(made.value(), name, &HandbookFile::name);
    return file == made.value().end() ? u"there is no such file"_s : file->text;
}

QJsonObject indexOf(const HandbookSource &source)
{
    QString text = fileOf(makeHandbook(source), u"index.js"_s);
    const QString start = u"const handbookIndex = "_s;
    if (!text.startsWith(start) || !text.endsWith(u";\n"))
        return {};
    text = text.mid(start.size()).chopped(2);
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

/// The titles of the pages that have the word, with what it counts for.
QStringList placesOf(const QJsonObject &index, const QString &word)
{
    const QJsonArray places = index[u"words"_s].toObject()[word].toArray();
    QStringList found;
    for (qsizetype i = 0; i + 1 < places.size(); i += 2)
        found.append(u"%1 %2"_s.arg(index[u"pages"_s].toArray()[places[i].toInt()].toArray()[1].toString())
                         .arg(places[i + 1].toInt()));
    return found;
}

} // namespace

/// How the pages of the handbook are put together.
class TstHandbook final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageHasHeadAndNeighbours()
    {
        const QString page = fileOf(makeHandbook(shortSource()), u"code-view.html"_s);
        QVERIFY2(page.startsWith(u"<!DOCTYPE html>\n<html lang=\"en\">\n"), qPrintable(page));
        QVERIFY(page.contains(u"<title>About code-view - Zephira Handbook</title>"));
        QVERIFY(page.contains(u"<a href=\"index.html\">Zephira Handbook</a> \u203a The window</p>"));
        QVERIFY(page.contains(u"<main>\n<h1>About code-view</h1>\n<p>It is short.</p>\n<p>More.</p>\n</main>"));
        QVERIFY(page.contains(u"<a rel=\"prev\" href=\"main-window.html\">About main-window</a>\n"
                              "<a rel=\"next\" href=\"breadcrumb.html\">About breadcrumb</a></nav>"));
        QVERIFY(page.contains(u"<input id=\"sought\" type=\"search\""));
    }

    void theEndsHaveOneNeighbour()
    {
        const Result<std::vector<HandbookFile>> made = makeHandbook(shortSource());
        QVERIFY(fileOf(made, u"main-window.html"_s).contains(u"<a rel=\"prev\" href=\"index.html\">Contents</a>"));
        const QString last = helpFile(helpChapters().back().pages.back().name);
        QVERIFY(!fileOf(made, last).contains(u"rel=\"next\""));
        QVERIFY(fileOf(made, u"index.html"_s).contains(u"<a rel=\"next\" href=\"main-window.html\">"));
    }

    void contentsListEachPageInItsChapter()
    {
        const QString contents = fileOf(makeHandbook(shortSource()), u"index.html"_s);
        QVERIFY(contents.contains(u"<title>Contents</title>"));
        QVERIFY(!contents.contains(u"<!-- contents -->"));
        qsizetype at = 0;
        for (const HelpChapter &chapter : helpChapters()) {
            at = contents.indexOf(u"<h2>%1</h2>"_s.arg(chapter.title), at);
            QVERIFY2(at > 0, qPrintable(chapter.title.toString()));
            for (const HelpPage &page : chapter.pages) {
                at = contents.indexOf(u"<li><a href=\"%1.html\">About %1</a></li>"_s.arg(page.name), at);
                QVERIFY2(at > 0, qPrintable(page.name.toString()));
            }
        }
    }

    void thePictureIsBehindTheFirstParagraph()
    {
        HandbookSource source = shortSource();
        source.pictures[u"tips"_s] = QSize(320, 200);
        const Result<std::vector<HandbookFile>> made = makeHandbook(source);
        QVERIFY(fileOf(made, u"tips.html"_s)
                    .contains(u"<p>It is short.</p>\n<p class=\"picture\"><img src=\"pictures/tips.png\" width=\"320\" "
                              "height=\"200\" alt=\"Picture: About tips\"></p>\n<p>More.</p>"));
        QVERIFY(!fileOf(made, u"about.html"_s).contains(u"<img"));
    }

    void theKeysAreInTheirPage()
    {
        const QString page = fileOf(makeHandbook(shortSource()), u"keys.html"_s);
        QVERIFY(page.contains(u"<table class=\"zebra\"></table>"));
        QVERIFY(!page.contains(u"<!-- keys -->"));
    }

    void placesInATextAreNoArguments()
    {
        HandbookSource source = shortSource();
        source.pages[u"tips"_s] = u"<h1>50 %1</h1><p>%2 and %4</p>"_s;
        const QString page = fileOf(makeHandbook(source), u"tips.html"_s);
        QVERIFY2(page.contains(u"<h1>50 %1</h1><p>%2 and %4</p>"), qPrintable(page));
    }

    void theIndexWeighsWords()
    {
        HandbookSource source = shortSource();
        source.pages[u"tips"_s] = u"<h1>Walrus</h1><p>Walrus, otter; otter &amp; <b>ot</b>ter OTTER 42 x</p>"_s;
        source.pages[u"about"_s] = u"<h1>About</h1><p>%1 An otter.</p>"_s.arg(u"whale "_s.repeated(30));
        const QJsonObject index = indexOf(source);
        // Once in the heading, once below it, and the title counts in addition.
        QCOMPARE(placesOf(index, u"walrus"_s), QStringList{u"Walrus 22"_s});
        QCOMPARE(placesOf(index, u"otter"_s), (QStringList{u"Walrus 3"_s, u"About 1"_s}));
        QCOMPARE(placesOf(index, u"whale"_s), QStringList{u"About 9"_s});
        QCOMPARE(placesOf(index, u"42"_s), QStringList{u"Walrus 1"_s});
        QCOMPARE(placesOf(index, u"x"_s), QStringList());
        QCOMPARE(placesOf(index, u"amp"_s), QStringList());
    }

    void errors_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("error");
        QTest::newRow("missing") << u"tips"_s << QString() << u"the page tips is missing"_s;
        QTest::newRow("in no chapter") << u"weather"_s << u"<h1>Weather</h1>"_s
                                       << u"the page weather is in no chapter"_s;
        QTest::newRow("without a heading") << u"tips"_s << u"<p>Tips</p>"_s << u"the page tips has no heading <h1>"_s;
        QTest::newRow("no contents") << u"index"_s << QString() << u"the page index has no mark <!-- contents -->"_s;
        QTest::newRow("no place for the contents")
            << u"index"_s << u"<h1>Contents</h1>"_s << u"the page index has no mark <!-- contents -->"_s;
        QTest::newRow("no place for the keys")
            << u"keys"_s << u"<h1>Keys</h1>"_s << u"the page keys has no mark <!-- keys -->"_s;
    }

    void errors()
    {
        QFETCH(QString, page);
        QFETCH(QString, text);
        HandbookSource source = shortSource();
        if (text.isEmpty())
            source.pages.erase(page);
        else
            source.pages[page] = text;
        const Result<std::vector<HandbookFile>> made = makeHandbook(source);
        QVERIFY(!made);
        QTEST(made.error().sentence, "error");
    }

    void titles()
    {
        QCOMPARE(pageTitle(u"<h1 id=\"a\">All <em>of\n  it</em></h1><h1>B</h1>"_s), u"All of it"_s);
        QCOMPARE(pageTitle(u"<h2>No</h2>"_s), QString());
    }

    void words()
    {
        QCOMPARE(wordsOf(u"<p title=\"no\">Ctrl+F6 &lt;table&gt; caf\u00e9&nbsp;au <!-- not this --> lait</p>"_s),
                 (QStringList{u"ctrl"_s, u"f6"_s, u"table"_s, u"caf\u00e9"_s, u"au"_s, u"lait"_s}));
    }

    void pictureSizes()
    {
        const QByteArray head("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\1\x40\0\0\0\xc8", 24);
        QCOMPARE(pictureSize(head), QSize(320, 200));
        QCOMPARE(pictureSize(head.first(23)), QSize());
        QCOMPARE(pictureSize("GIF89a and much more than that"), QSize());
    }
};

ZEPHIRA_TEST(TstHandbook)

#include "tst_handbook.moc"
