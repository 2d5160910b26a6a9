// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "web/designer/pagemerge.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QString asItIs(QStringView markup)
{
    return markup.toString();
}

/// Each change as begin-end:text.
QString listed(const std::optional<TextChanges> &changes)
{
    if (!changes)
        return u"overlap"_s;
    QStringList list;
    for (const TextChange &change : *changes)
        list.append(u"%1-%2:%3"_s.arg(change.begin).arg(change.end).arg(change.text));
    return list.join(u'|');
}

} // namespace

/// Texts that the engine is known to write stand in for it; that what is written reads back as the edited page is tested
/// with the engine itself.
class TstPageMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changes_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("loaded");
        QTest::addColumn<QString>("edited");
        QTest::addColumn<QString>("behind");
        QTest::addColumn<QString>("between");
        const auto row = [](const char *name, const QString &source, const QString &loaded, const QString &edited,
                            const QString &behind, const QString &between) {
            QTest::newRow(name) << source << loaded << edited << behind << between;
        };
        // clang-format off: a row a line
        row("nothing", u"<P>a"_s, u"<p>a</p>"_s, u"<p>a</p>"_s, u""_s, u""_s);
        row("a letter", u"<P>abc"_s, u"<p>abc</p>"_s, u"<p>abXc</p>"_s, u"5-5:X"_s, u"3-6:abXc</p>"_s);
        row("a letter less", u"<P>aabc"_s, u"<p>aabc</p>"_s, u"<p>abc</p>"_s, u"4-5:"_s, u"3-7:abc</p>"_s);
        row("beside a reference", u"<P>caf&eacute;s"_s, u"<p>cafés</p>"_s, u"<p>caféXs</p>"_s, u"14-14:X"_s,
            u"3-15:caféXs</p>"_s);
        row("a word more", u"<P>a b"_s, u"<p>a b</p>"_s, u"<p>a c b</p>"_s, u"5-5:c "_s, u"5-5:c "_s);
        row("bold", u"<P>a b c"_s, u"<p>a b c</p>"_s, u"<p>a <b>b</b> c</p>"_s, u"5-5:<b>|6-6:</b>"_s,
            u"5-5:<b>|6-6:</b>"_s);
        row("two paragraphs of one", u"<P>ab<P>c"_s, u"<p>ab</p><p>c</p>"_s, u"<p>a</p><p>b</p><p>c</p>"_s,
            u"3-5:a</p><p>b"_s, u"3-5:a</p><p>b</p>"_s);
        row("a value", u"<P ALIGN=left id=a>x"_s, u"<p align=\"left\" id=\"a\">x</p>"_s,
            u"<p align=\"right\" id=\"a\">x</p>"_s, u"8-13:=\"right\""_s, u"0-19:<p align=\"right\" id=\"a\">"_s);
        row("an attribute more", u"<P id=a >x"_s, u"<p id=\"a\">x</p>"_s, u"<p id=\"a\" align=\"left\">x</p>"_s,
            u"7-7: align=\"left\""_s, u"0-9:<p id=\"a\" align=\"left\">"_s);
        row("the first attribute", u"<P>x"_s, u"<p>x</p>"_s, u"<p align=\"left\">x</p>"_s, u"2-2: align=\"left\""_s,
            u"0-3:<p align=\"left\">"_s);
        row("an attribute less", u"<P id=a Align=b ID=c>x"_s, u"<p id=\"a\" align=\"b\">x</p>"_s,
            u"<p align=\"b\">x</p>"_s, u"2-7:|15-20:"_s, u"0-21:<p align=\"b\">"_s);
        row("behind an implied end", u"<P>a<P>b"_s, u"<p>a</p><p>b</p>"_s, u"<p>a</p><hr><p>b</p>"_s, u"4-4:<hr>"_s,
            u"4-4:</p><hr>"_s);
        row("a removed element", u"<p>a</p><p>b</p>"_s, u"<p>a</p><p>b</p>"_s, u"<p>a</p>"_s, u"8-16:"_s, u"8-16:"_s);
        row("a stray tag stays", u"a</i>b c"_s, u"ab c"_s, u"ab d"_s, u"7-8:d"_s, u"7-8:d"_s);
        row("a word around a stray tag", u"ab</i>cd e"_s, u"abcd e"_s, u"abcXd e"_s, u"7-7:X"_s, u"0-8:abcXd"_s);
        row("where a stray tag is", u"ab</i>cd e"_s, u"abcd e"_s, u"abXcd e"_s, u"2-2:X"_s, u"0-8:abXcd"_s);
        row("a stray tag between what goes", u"ab</i>cd e"_s, u"abcd e"_s, u"ad e"_s, u"1-2:|6-7:"_s, u"0-8:ad"_s);
        row("a word around a dropped element", u"a<i>b</i><xmp><b></xmp>c<noscript><i></noscript><p>d"_s,
            u"a<i>b</i>cd"_s, u"a<i>b</i>cdX"_s, u"52-52:X"_s, u"9-52:cdX"_s);
        row("ends of the page in its middle", u"<html><body><p>a</body></html><p>bc"_s,
            u"<html><head></head><body><p>a</p><p>bc</p></body></html>"_s,
            u"<html><head></head><body><p>a</p><p>bXc</p></body></html>"_s, u"34-34:X"_s, u"33-35:bXc</p>"_s);
        const QString table = u"<table><caption>c</caption><tbody><tr><td>b</td></tr></tbody></table>"_s;
        row("a moved word", u"<table><caption>c</caption>x<tr><td>b</table>"_s, u"x"_s + table, u"xy"_s + table,
            u"28-28:y"_s, u"0-0:xy"_s);
        row("beside a moved word", u"<table><caption>c</caption>x z<tr><td>b</table>"_s, u"x z"_s + table,
            u"x y z"_s + table, u"29-29:y "_s, u"0-0:x y z"_s);
        row("a row like the one before", u"<tr><TD>a\r\n<tr><TD>b"_s, u"<tr><td>a\n</td></tr><tr><td>b</td></tr>"_s,
            u"<tr><td>a\n</td></tr><tr><td>a\n</td></tr><tr><td>b</td></tr>"_s, u"11-11:<tr><td>a\n</td></tr>"_s,
            u"11-11:</td></tr><tr><td>a\n</td></tr>"_s);
        row("the first of like paragraphs", u"<P CLASS=a>x\n<P class='a'>y"_s,
            u"<p class=\"a\">x\n</p><p class=\"a\">y</p>"_s, u"<p class=\"a\">y</p>"_s, u"0-13:"_s, u"0-13:"_s);
        row("a mark", u"a<!--zsx0s-->b"_s, u"a<zephira-mark mark=\"zsx0s\"></zephira-mark>b"_s, u"ab"_s, u"0-14:ab"_s,
            u"0-14:ab"_s);
        row("a script", u"<script>a < b</script>"_s, u"<script>a < b</script>"_s, u"<script>a < c</script>"_s,
            u"12-13:c"_s, u"12-13:c"_s);
        // clang-format on
    }

    void changes()
    {
        QFETCH(QString, source);
        QFETCH(QString, loaded);
        QFETCH(QString, edited);
        PageAlignment page(source, loaded);
        const PageMerge merge(page, edited, asItIs);
        QTEST(listed(merge.changes(merge.hunks(), MergeReach::BehindPartner)), "behind");
        QTEST(listed(merge.changes(merge.hunks(), MergeReach::Between)), "between");
    }

    /// What meets only implied tags goes behind the last partner or before the next one.
    void beforeAndBehind()
    {
        PageAlignment page(u"<P>a \r\n"_s, u"<p>a</p>"_s);
        const PageMerge merge(page, u"<p>a</p><hr>"_s, asItIs);
        QCOMPARE(listed(merge.changes(merge.hunks(), MergeReach::BehindPartner)), u"4-4:<hr>"_s);
        QCOMPARE(listed(merge.changes(merge.hunks(), MergeReach::BeforePartner)), u"7-7:<hr>"_s);
        QCOMPARE(listed(merge.changes(merge.hunks(), MergeReach::Between)), u"4-7:</p><hr>"_s);
    }

    void grown()
    {
        const QString text = u"<div><p>a b</p><p>c</p></div>"_s;
        PageAlignment page(text, text);
        const PageMerge merge(page, u"<div><p>a x</p><p>c</p></div>"_s, asItIs);
        QCOMPARE(merge.hunks(), MergeHunks({{4, 5, 4, 5}}));
        const MergeHunk hunk = merge.hunks().front();
        QCOMPARE(merge.enclosing(hunk), std::optional(MergeHunk{1, 6, 1, 6}));
        QCOMPARE(merge.enclosing(*merge.enclosing(hunk)), std::optional(MergeHunk{0, 10, 0, 10}));
        QCOMPARE(merge.enclosing({0, 10, 0, 10}), std::nullopt);
        QCOMPARE(merge.widened(hunk, 1), (MergeHunk{3, 6, 3, 6}));
        QCOMPARE(merge.widened(hunk, 100), (MergeHunk{0, 10, 0, 10}));
        QCOMPARE(merge.changeOfLoaded(hunk), (TextChange{10, 11, u"x"_s}));
        QCOMPARE(merge.changeWithin({1, 6, 1, 6}, hunk), (TextChange{5, 15, u"<p>a x</p>"_s}));
    }

    void joinedHunks()
    {
        QCOMPARE(joined({{5, 7, 5, 6}, {0, 2, 0, 2}, {1, 3, 1, 4}}), MergeHunks({{0, 3, 0, 4}, {5, 7, 5, 6}}));
        QCOMPARE(joined({{0, 2, 0, 2}, {2, 4, 2, 4}}), MergeHunks({{0, 4, 0, 4}}));
    }

    void overlaps()
    {
        QCOMPARE(inOrder({{3, 4, {}}, {0, 2, {}}}), std::optional(TextChanges({{0, 2, {}}, {3, 4, {}}})));
        QCOMPARE(inOrder({{1, 4, {}}, {0, 2, {}}}), std::nullopt);
    }

    void linear()
    {
        const auto page = [](qsizetype count) {
            QString text;
            for (qsizetype number = 0; number < count; ++number)
                text += u"<TR><TD align=right>cell %1<TD>caf&eacute; &amp; more\r\n"_s.arg(number);
            return text;
        };
        const double times = timesForTenTimes(page, 1000, [](const QString &source) {
            const QString loaded = QString(source)
                                       .replace(u"<TR><TD align=right>"_s, u"<tr><td align=\"right\">"_s)
                                       .replace(u"<TD>"_s, u"</td><td>"_s)
                                       .replace(u"&eacute;"_s, u"é"_s)
                                       .replace(u"\r\n"_s, u"\n</td></tr>"_s);
            PageAlignment alignment(source, loaded);
            const PageMerge merge(alignment, QString(loaded).replace(u"cell 500"_s, u"cell <b>500</b>"_s), asItIs);
            merge.changes(merge.hunks(), MergeReach::BehindPartner);
        });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstPageMerge)
#include "tst_pagemerge.moc"
