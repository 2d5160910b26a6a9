// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/linktargets.h"
#include "tools/plainlinktargets.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList pieces{u"href="_s, u"href=\""_s, u"HREF="_s, u"HrEf=\""_s, u"hrefhref="_s,    u"href ="_s, u"\""_s,
                         u">"_s,     u"<a "_s,     u" "_s,     u"  "_s,      u"x.htm"_s,        u"ä"_s,      u"\r\n"_s,
                         u"\t"_s,    u"'"_s,       u"h"_s,     u"="_s,       QString(100, u'y')};

} // namespace

class TstLinkTargets final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void targets_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("targets");
        const auto row = [](const char *name, const QString &text, const QStringList &targets) {
            QTest::newRow(name) << text << targets;
        };
        row("no link", u"<p>x</p>"_s, {});
        row("nothing", {}, {});
        row("bare", u"<a href=x.htm>"_s, {u"x.htm"_s});
        row("bare runs to the end of the tag", u"<a href=x.htm target=y>"_s, {u"x.htm target=y"_s});
        row("quoted appears twice", u"<a href=\"x.htm\">"_s, {u"x.htm"_s, u"\"x.htm\""_s});
        row("quoted, with what follows", u"<a href=\"x.htm\" target=y>"_s, {u"x.htm"_s, u"\"x.htm\" target=y"_s});
        row("capitals", u"<A HREF=x.htm>"_s, {u"x.htm"_s});
        row("capitals and quotes", u"<A HREF=\"X.htm\">"_s, {u"X.htm"_s, u"\"X.htm\""_s});
        row("quoted ones come first", u"<a href=a><a href=\"b\"><a href=c>"_s, {u"b"_s, u"a"_s, u"\"b\""_s, u"c"_s});
        row("the same twice", u"<a href=a><a href=a>"_s, {u"a"_s, u"a"_s});
        row("blanks around it", u"<a href=\" a \"><a href=  b >"_s, {u"a"_s, u"\" a \""_s, u"b"_s});
        row("a tab isn't a blank", u"<a href=\ta>"_s, {u"\ta"_s});
        row("empty", u"<a href=><a href=\"\">"_s, {QString(), QString(), u"\"\""_s});
        row("an apostrophe belongs to it", u"<a href='a'>"_s, {u"'a'"_s});
        row("other tags", u"<link href=a.css>"_s, {u"a.css"_s});
        row("a blank before the sign", u"<a href =a>"_s, {});
        row("at the very start", u"href=a>"_s, {});
        row("at the very start, quoted", u"href=\"a\">"_s, {});
        row("at the very start and again", u"href=a><a href=b>"_s, {u"b"_s});
        row("without an end", u"<a href=\"a"_s, {u"a"_s, u"\"a"_s});
        row("one within another", u"<a href=href=a>"_s, {u"href=a"_s, u"a"_s});
        row("over a line end", u"<a href=\"a\r\nb\">"_s, {u"a\r\nb"_s, u"\"a\r\nb\""_s});
    }

    void targets()
    {
        QFETCH(QString, text);
        QTEST(linkTargets(text).targets, "targets");
        QTEST(plainLinkTargets(text), "targets");
    }

    void aTargetIsCutBehind800Characters()
    {
        const QString before = u"<a "_s;
        const QString matched = u"href="_s;
        // A text of exactly 800 characters isn't cut, but neither can it hold a target that would be.
        const QString fits = before + matched + QString(800 - 8, u'x');
        QCOMPARE(linkTargets(fits).targets, QStringList{QString(792, u'x')});
        const QString longer = before + matched + QString(900, u'x') + u'>';
        QCOMPARE(linkTargets(longer).targets, QStringList{QString(795, u'x')});
        const QString quoted = before + matched + u'"' + QString(900, u'x') + u"\">"_s;
        QCOMPARE(linkTargets(quoted).targets, (QStringList{QString(794, u'x'), u'"' + QString(794, u'x')}));
        const QString justEnds = before + matched + QString(794, u'x') + u">y"_s;
        QCOMPARE(linkTargets(justEnds).targets, QStringList{QString(794, u'x')});
    }

    void likeTheSearchStepByStep()
    {
        QRandomGenerator random(54);
        qsizetype found = 0;
        for (int round = 0; round < 20000; ++round) {
            const QString text = generatedText(random, pieces, 30);
            const LinkTargets links = linkTargets(text);
            QCOMPARE(links.targets, plainLinkTargets(text));
            QVERIFY(!links.truncated && !links.stopped);
            found += links.targets.size();
        }
        QVERIFY(found > 20000);
    }

    void tenTimesThePage_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("links") << u"<p><a href=\"page.html\" target=x>text</a></p>\r\n"_s;
        QTest::newRow("one line without ends") << (u"<a href=x "_s + QString(190, u'y'));
        QTest::newRow("none") << u"<a hre x>y</a>"_s;
    }

    void tenTimesThePage()
    {
        QFETCH(QString, unit);
        const double times = timesForTenTimes([&](qsizetype count) { return unit.repeated(count); }, 2000,
                                              [](const QString &text) { linkTargets(text); });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }

    void tooManyAreCutOff()
    {
        // Each match has 795 characters behind it.
        const LinkTargets links = linkTargets(u"href="_s.repeated(200'000));
        QVERIFY(links.truncated);
        QVERIFY(!links.targets.isEmpty());
        QVERIFY(links.targets.size() * 795 <= maximumTargetsLength);
        QVERIFY((links.targets.size() + 1) * 795 > maximumTargetsLength);
    }

    void aYieldForEachMatchMayEndTheSearch()
    {
        int matches = 0;
        LinkTargets links = linkTargets(u"<a href=\"a\"><a href=b>"_s, [&matches] { return ++matches > 0; });
        QCOMPARE(matches, 3);
        QVERIFY(!links.stopped);
        matches = 0;
        links = linkTargets(u"<a href=\"a\"><a href=b>"_s, [&matches] { return ++matches < 2; });
        QCOMPARE(matches, 2);
        QVERIFY(links.stopped);
        QCOMPARE(links.targets, QStringList{u"a"_s});
    }

    void page()
    {
        QCOMPARE(linksPage({}), QString());
        QCOMPARE(linksPage({u"a.htm"_s}), u"<HTML>\r\n<BODY>\r\n<A HREF=\"a.htm\">a.htm</A><BR>"_s);
        QCOMPARE(linksPage({u"a"_s, u"b"_s}),
                 u"<HTML>\r\n<BODY>\r\n<A HREF=\"a\">a</A><BR>\r\n<A HREF=\"b\">b</A><BR>"_s);
    }

    void toOpen_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("opened");
        QTest::newRow("address") << u"http://a.example/b"_s << u"http://a.example/b"_s;
        QTest::newRow("mail") << u"mailto:a@b"_s << u"mailto:a@b"_s;
        QTest::newRow("full path") << u"/a/b.htm"_s << u"/a/b.htm"_s;
        QTest::newRow("name") << u"b.htm"_s << u"/home/me/b.htm"_s;
        QTest::newRow("drive") << u"c:b.htm"_s << u"/home/me/c:b.htm"_s;
        QTest::newRow("a colon later") << u"a/b:c"_s << u"/home/me/a/b:c"_s;
        QTest::newRow("nothing") << QString() << u"/home/me/"_s;
    }

    void toOpen()
    {
        QFETCH(QString, target);
        QTEST(targetToOpen(target, u"/home/me"_s), "opened");
    }
};

ZEPHIRA_TEST(TstLinkTargets)

#include "tst_linktargets.moc"
