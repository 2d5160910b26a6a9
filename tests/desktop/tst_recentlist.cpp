// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/recentlist.h"
#include "support/testregistry.h"

#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr qsizetype many = 100;

RecentUse useOf(const QString &address, int second = 0)
{
    return {address, u"text/html"_s, u"Zephira"_s, u"'/opt/zephira %f'"_s,
            QDateTime({2026, 3, 1}, {12, 0, second}, Qt::UTC)};
}

const QString page = u"file:///site/page.html"_s;

QByteArray headed(const QByteArray &entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<xbel version=\"1.0\"\n"
           "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
           "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
        + entries + "</xbel>\n";
}

QByteArray entryOf(const QByteArray &address, const QByteArray &time, int count = 1)
{
    return "<bookmark href=\"" + address + "\" added=\"" + time + "\" modified=\"" + time + "\" visited=\"" + time
        + "\"><info><metadata owner=\"http://freedesktop.org\"><mime:mime-type type=\"text/html\"/>"
          "<bookmark:applications><bookmark:application name=\"Zephira\" exec=\"'/opt/zephira %f'\" modified=\""
        + time + "\" count=\"" + QByteArray::number(count)
        + "\"/></bookmark:applications></metadata></info></bookmark>";
}

const QByteArray noon = "2026-03-01T12:00:00.000Z";

/// An entry of other programs with everything that such an entry may have.
const QByteArray others =
    "  <!-- kept < by & others -->\n"
    "  <bookmark\thref='file:///a%20b/&quot;x&quot;&amp;y.txt' private = \"yes\" title='modified=\"1\"'\n"
    "    modified=\"2020-01-01T00:00:00Z\" >\r\n"
    "    <title>Caf\xC3\xA9 &#x1F600; \xF0\x9F\x98\x80 ]]&gt;</title><desc><![CDATA[<bookmark>]]></desc>\n"
    "    <info><metadata owner=\"http://freedesktop.org\"><mime:mime-type type=\"text/plain\"/>"
    "<bookmark:groups><bookmark:group>Text</bookmark:group></bookmark:groups>"
    "<bookmark:applications><bookmark:application name=\"notes\" exec=\"&apos;notes %u&apos;\" "
    "modified=\"2020-01-01T00:00:00Z\" count=\"7\"/></bookmark:applications></metadata>"
    "<metadata owner=\"http://other.example\"/></info>\n"
    "  </bookmark>\n"
    "  <folder><bookmark href=\"file:///in/folder\"/></folder>\n";

QByteArray with(const QByteArray &list, const RecentUse &use, qsizetype maximum = many)
{
    const Result<QByteArray> changed = withRecentUse(list, use, maximum);
    return changed ? changed.value() : QByteArray("failed");
}

/// The entry's `href`s in their order.
QStringList addresses(const QByteArray &list)
{
    QStringList all;
    QXmlStreamReader xml(list);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"bookmark"_s)
            all.append(xml.attributes().value(u"href"_s).toString());
    }
    return xml.hasError() ? QStringList{xml.errorString()} : all;
}

} // namespace

class TstRecentList final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstEntry()
    {
        const QByteArray expected = headed("  " + entryOf(page.toUtf8(), noon) + "\n");
        QCOMPARE(with({}, useOf(page)), expected);
        QCOMPARE(with(headed({}), useOf(page)), expected);
        // So that another program may write it: the root without content.
        QByteArray empty = headed({});
        empty.replace(">\n</xbel>", "/>");
        QCOMPARE(with(empty, useOf(page)), expected);
    }

    void aSecondUseIsCounted()
    {
        const QByteArray once = with({}, useOf(page));
        const QByteArray twice = with(once, useOf(page, 5));
        QByteArray expected = headed("  " + entryOf(page.toUtf8(), "2026-03-01T12:00:05.000Z", 2) + "\n");
        expected.replace("added=\"2026-03-01T12:00:05.000Z\"", "added=\"" + noon + '"');
        QCOMPARE(twice, expected);
    }

    void otherEntriesKeepTheirBytes()
    {
        const QByteArray list = headed(others);
        const QByteArray changed = with(list, useOf(page));
        QCOMPARE(changed, headed(others + "  " + entryOf(page.toUtf8(), noon) + "\n"));
        QCOMPARE(with(changed, useOf(page, 1)).left(changed.indexOf("  <bookmark href=\"file:///site")),
                 changed.left(changed.indexOf("  <bookmark href=\"file:///site")));
        QCOMPARE(with("\xEF\xBB\xBF" + list, useOf(page)), "\xEF\xBB\xBF" + changed);
        // What follows the root stays, too.
        QVERIFY(with(list + "<!-- end -->", useOf(page)).endsWith("</xbel>\n<!-- end -->"));
    }

    /// A file that others have listed gets one more program, and keeps what they say of it.
    void aFileOfOthersToo()
    {
        const QByteArray changed = with(headed(others), useOf(u"file:///a%20b/\"x\"&y.txt"_s));
        QCOMPARE(addresses(changed), (QStringList{u"file:///a%20b/\"x\"&y.txt"_s, u"file:///in/folder"_s}));
        for (const char *kept : {"kept < by & others", "private=\"yes\"", "title=\"modified=&quot;1&quot;\"",
                                 "Caf\xC3\xA9 \xF0\x9F\x98\x80 \xF0\x9F\x98\x80", "&lt;bookmark&gt;",
                                 "type=\"text/plain\"", "<bookmark:group>Text</bookmark:group>", "count=\"7\"",
                                 "owner=\"http://other.example\"", "exec=\"'notes %u'\""})
            QVERIFY2(changed.contains(kept), (QByteArray(kept) + '\n' + changed).constData());
        QCOMPARE(changed.count("<bookmark:application "), 2);
        QCOMPARE(changed.count("modified=\"" + noon + '"'), 2);
        QVERIFY(changed.contains("visited=\"" + noon + '"'));
        QVERIFY(!changed.contains("text/html"));
    }

    void otherPrefixes()
    {
        QByteArray list = headed("<bookmark href=\"file:///a\"/>");
        list.replace("xmlns:bookmark", "xmlns:b").replace("xmlns:mime", "xmlns:m");
        const QByteArray changed = with(list, useOf(page));
        QVERIFY(changed.contains("<m:mime-type type=\"text/html\"/><b:applications><b:application "));
        QVERIFY(addresses(changed).contains(page));

        // A document type says nothing new.
        const QByteArray typed = "<!DOCTYPE xbel>\n" + headed({}).mid(39);
        QVERIFY(with(typed, useOf(page)).startsWith("<!DOCTYPE xbel>\n<xbel"));

        // A list that declares nothing: the entry declares what it needs.
        const QByteArray bare = with("<xbel><bookmark href='file:///a'/></xbel>", useOf(page));
        QCOMPARE(addresses(bare), (QStringList{u"file:///a"_s, page}));
        QVERIFY(bare.contains("<mime:mime-type"));
    }

    /// Only this program's own entries are bounded, and the oldest go first.
    void theListIsBounded()
    {
        QByteArray list = headed(others);
        for (int i = 0; i < 5; ++i)
            list = with(list, useOf(u"file:///%1"_s.arg(i), 10 - i), 3);
        QCOMPARE(addresses(list),
                 (QStringList{u"file:///a%20b/\"x\"&y.txt"_s, u"file:///in/folder"_s, u"file:///0"_s, u"file:///1"_s,
                              u"file:///4"_s}));
        QVERIFY(list.startsWith(headed(others).chopped(8)));
        // An entry that another program shares isn't this program's alone.
        QByteArray shared = headed(entryOf("file:///s", noon));
        shared.replace("</bookmark:applications>",
                       "<bookmark:application name=\"x\" exec=\"x\"/></bookmark:applications>");
        QCOMPARE(addresses(with(shared, useOf(page), 1)), (QStringList{u"file:///s"_s, page}));
        QCOMPARE(addresses(with(headed(entryOf("file:///s", noon)), useOf(page), 1)), QStringList{page});
    }

    void whatIsNoListIsLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::newRow("cut") << headed(others).chopped(9);
        QTest::newRow("cut in an entry") << headed(others).left(600);
        QTest::newRow("another root") << QByteArray("<html/>");
        QTest::newRow("no XML") << QByteArray("recent files");
        QTest::newRow("blanks") << QByteArray(" \n");
        QTest::newRow("not UTF-8") << headed("<bookmark href=\"\xE9\"/>");
        QTest::newRow("two roots") << headed({}) + headed({});
        QTest::newRow("prefix at work twice") << headed("<bookmark href=\"a\" href=\"b\"/>");
        QTest::newRow("entities of its own")
            << QByteArray("<!DOCTYPE xbel [<!ENTITY a '<bookmark/>'>]><xbel>&a;</xbel>");
        QTest::newRow("an unknown entity") << headed("<bookmark href=\"a\"><title>&nbsp;</title></bookmark>");
        QTest::newRow("NUL") << headed(QByteArray("\0", 1));
    }

    void whatIsNoListIsLeftAlone()
    {
        QFETCH(QByteArray, list);
        const Result<QByteArray> changed = withRecentUse(list, useOf(page), many);
        QVERIFY(!changed);
        QCOMPARE(changed.error().code, Error::Code::Malformed);
    }

    /// Whatever the address, the list is one and names it.
    void oddAddresses()
    {
        QByteArray list;
        QStringList all;
        for (const QString &address : {u"file:///a&b<c>\"d'"_s, u"file:///%C3%A9"_s, u"file:///a--b]]>"_s}) {
            list = with(list, useOf(address));
            all.append(address);
            QCOMPARE(addresses(list), all);
        }
    }
};

ZEPHIRA_TEST(TstRecentList)
#include "tst_recentlist.moc"
