// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/elementmarkup.h"
#include "wizards/fieldtemplate.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The initial values of the inline frame's fields.
InlineFrameFields plainFrame()
{
    return {.scrolling = u"Auto (default)"_s, .border = u"1 (default)"_s};
}

/// The initial values of the scrolling text's fields, and a text.
MarqueeFields plainMarquee()
{
    return {.text = u"News"_s,
            .alignment = u"Left"_s,
            .behaviour = u"Scoll"_s,
            .background = u"#FFFFFF"_s,
            .direction = u"Left"_s,
            .amount = u"0"_s,
            .delay = u"0"_s};
}

} // namespace

/// What the wizards for single elements write, compared as whole texts.
class TstElementMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refresh_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("delay");
        QTest::addColumn<QString>("text");
        QTest::newRow("as the form starts")
            << u"http://"_s << u"0"_s << u"<meta http-equiv=\"refresh\" content=\"0\"; url=\"http://\">"_s;
        QTest::newRow("empty") << u""_s << u""_s << u"<meta http-equiv=\"refresh\" content=\"\"; url=\"\">"_s;
        QTest::newRow("as typed") << u"a\"<b>&ü"_s << u"soon"_s
                                  << u"<meta http-equiv=\"refresh\" content=\"soon\"; url=\"a\"<b>&ü\">"_s;
    }

    void refresh()
    {
        QFETCH(QString, address);
        QFETCH(QString, delay);
        QTEST(refreshMarkup({.address = address, .delay = delay}), "text");
    }

    void lineBreak_data()
    {
        QTest::addColumn<LineBreak>("kind");
        QTest::addColumn<QString>("text");
        QTest::newRow("normal") << LineBreak::Normal << u"<br>"_s;
        QTest::newRow("right") << LineBreak::ClearRight << u"<br clear=\"Right\" > "_s;
        QTest::newRow("left") << LineBreak::ClearLeft << u"<br clear=\"Left\" > "_s;
        QTest::newRow("both") << LineBreak::ClearBoth << u"<br clear=\"Both\" > "_s;
        QTest::newRow("none chosen") << LineBreak::Unchosen << u"<br clear=\"\" > "_s;
    }

    void lineBreak()
    {
        QFETCH(LineBreak, kind);
        QTEST(breakMarkup(kind), "text");
    }

    void inlineFrame()
    {
        QCOMPARE(inlineFrameMarkup(plainFrame()),
                 u"<iframe src=\"\" name=\"\" id=\"\" width=\"\" height=\"\" marginwidth=\"\" marginheight=\"\" "
                 "align=\"\"></iframe>"_s);
        QCOMPARE(inlineFrameMarkup({u"a.htm"_s, u"f"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"Left"_s, u"Yes"_s, u"0"_s}),
                 u"<iframe src=\"a.htm\" name=\"f\" id=\"f\" width=\"1\" height=\"2\" marginwidth=\"3\" "
                 "marginheight=\"4\" align=\"Left\" scrolling=\"Yes\" frameborder=\"0\"></iframe>"_s);
    }

    void aDefaultOmitsItsAttribute_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("written");
        QTest::newRow("with a number") << u"1 (default)"_s << false;
        QTest::newRow("alone") << u"default)"_s << false;
        QTest::newRow("without the bracket") << u"default"_s << true;
        QTest::newRow("in capitals") << u"(Default)"_s << true;
        QTest::newRow("a blank behind it") << u"(default) "_s << true;
        QTest::newRow("empty") << u""_s << true;
    }

    void aDefaultOmitsItsAttribute()
    {
        QFETCH(QString, value);
        QFETCH(bool, written);
        InlineFrameFields fields = plainFrame();
        fields.scrolling = value;
        QCOMPARE(inlineFrameMarkup(fields).contains(u" scrolling=\""_s + value + u'"'), written);
        QVERIFY(!inlineFrameMarkup(fields).contains(u"frameborder"));
        fields = plainFrame();
        fields.border = value;
        QCOMPARE(inlineFrameMarkup(fields).contains(u" frameborder=\""_s + value + u'"'), written);
        QVERIFY(!inlineFrameMarkup(fields).contains(u"scrolling"));
    }

    void marquee_data()
    {
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("height");
        QTest::addColumn<bool>("responseWrite");
        QTest::addColumn<QString>("text");
        QTest::newRow("as the form starts")
            << u""_s << u""_s << false
            << u"<Marquee align=\"Left\" behavior=\"Scoll\" bgcolor=\"#FFFFFF\" direction=\"Left\" scrollamount=\"0\" "
               "scrolldelay=\"0\">News</Marquee>"_s;
        QTest::newRow("width") << u"10"_s << u""_s << false
                               << u"<Marquee align=\"Left\" behavior=\"Scoll\" bgcolor=\"#FFFFFF\" direction=\"Left\" "
                                  "scrollamount=\"0\" scrolldelay=\"0\" width=\"10\" >News</Marquee>"_s;
        QTest::newRow("height") << u""_s << u"20"_s << false
                                << u"<Marquee align=\"Left\" behavior=\"Scoll\" bgcolor=\"#FFFFFF\" direction=\"Left\" "
                                   "scrollamount=\"0\" scrolldelay=\"0\" height=\"20\" >News</Marquee>"_s;
        QTest::newRow("both") << u"10"_s << u"20"_s << false
                              << u"<Marquee align=\"Left\" behavior=\"Scoll\" bgcolor=\"#FFFFFF\" direction=\"Left\" "
                                 "scrollamount=\"0\" scrolldelay=\"0\" width=\"10\"  height=\"20\" >News</Marquee>"_s;
        QTest::newRow("statement")
            << u""_s << u""_s << true
            << u"response.write \"<Marquee align=\"\"Left\"\" behavior=\"\"Scoll\"\" bgcolor=\"\"#FFFFFF\"\" "
               "direction=\"\"Left\"\" scrollamount=\"\"0\"\" scrolldelay=\"\"0\"\">News</Marquee>\""_s;
        QTest::newRow("statement, both")
            << u"10"_s << u"20"_s << true
            << u"response.write \"<Marquee align=\"\"Left\"\" behavior=\"\"Scoll\"\" bgcolor=\"\"#FFFFFF\"\" "
               "direction=\"\"Left\"\" scrollamount=\"\"0\"\" scrolldelay=\"\"0\"\" width=\"10\"  height=\"20\" "
               ">News</Marquee>\""_s;
    }

    void marquee()
    {
        QFETCH(QString, width);
        QFETCH(QString, height);
        QFETCH(bool, responseWrite);
        MarqueeFields fields = plainMarquee();
        fields.width = width;
        fields.height = height;
        fields.responseWrite = responseWrite;
        QTEST(marqueeMarkup(fields), "text");
    }

    void anyFieldsFillTheTemplates()
    {
        QRandomGenerator random(7602);
        for (int i = 0; i < 2000; ++i) {
            const QStringList f = generatedFields(random, 9);
            QCOMPARE(refreshMarkup({f[0], f[1]}), filled(u"<meta http-equiv='refresh' content='②'; url='①'>"_s, f));
            const QString scrolling = f[7].right(8) == u"default)"_s ? QString() : u" scrolling='⑧'"_s;
            const QString border = f[8].right(8) == u"default)"_s ? QString() : u" frameborder='⑨'"_s;
            QCOMPARE(inlineFrameMarkup({f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8]}),
                     filled(u"<iframe src='①' name='②' id='②' width='③' height='④' marginwidth='⑤' marginheight='⑥' "
                            "align='⑦'"_s
                                + scrolling + border + u"></iframe>"_s,
                            f));
            const QString width = f[7].isEmpty() ? QString() : u" width='⑧' "_s;
            const QString height = f[8].isEmpty() ? QString() : u" height='⑨' "_s;
            const QString size = width + height;
            const MarqueeFields plain{f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8], false};
            QCOMPARE(marqueeMarkup(plain),
                     filled(u"<Marquee align='②' behavior='③' bgcolor='④' direction='⑤' scrollamount='⑥' "
                            "scrolldelay='⑦'"_s
                                + size + u">①</Marquee>"_s,
                            f));
            const MarqueeFields statement{f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8], true};
            QCOMPARE(marqueeMarkup(statement),
                     filled(u"response.write '<Marquee align=''②'' behavior=''③'' bgcolor=''④'' direction=''⑤'' "
                            "scrollamount=''⑥'' scrolldelay=''⑦''"_s
                                + size + u">①</Marquee>'"_s,
                            f));
        }
    }
};

ZEPHIRA_TEST(TstElementMarkup)

#include "tst_elementmarkup.moc"
