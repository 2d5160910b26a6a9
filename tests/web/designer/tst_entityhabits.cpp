// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/entitynames.h"
#include "support/testregistry.h"
#include "web/designer/entityhabits.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstEntityHabits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void characters_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<uint>("character");
        const auto row = [](const QString &reference, uint character) {
            QTest::newRow(qPrintable(reference)) << reference << character;
        };
        row(u"amp"_s, u'&');
        row(u"eacute"_s, 0xe9);
        row(u"Eacute"_s, 0xc9);
        row(u"AElig"_s, 0xc6);
        row(u"zwnj"_s, 0x200c);
        row(u"zeta"_s, 0x3b6);
        row(u"apos"_s, u'\'');
        row(u"EACUTE"_s, 0);
        row(u""_s, 0);
        row(u"#233"_s, 0xe9);
        row(u"#xE9"_s, 0xe9);
        row(u"#Xe9"_s, 0xe9);
        row(u"#128512"_s, 0x1f600);
        row(u"#150"_s, 0x2013);
        row(u"#159"_s, 0x178);
        row(u"#129"_s, 0x81);
        row(u"#160"_s, 0xa0);
        row(u"#0"_s, 0);
        row(u"#xd800"_s, 0);
        row(u"#x110000"_s, 0);
        row(u"#99999999999"_s, 0);
        row(u"#"_s, 0);
        row(u"#x"_s, 0);
    }

    void characters()
    {
        QFETCH(QString, reference);
        QTEST(static_cast<uint>(entityCharacter(reference)), "character");
    }

    void writes_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("characters");
        QTest::addColumn<QString>("inText");
        QTest::addColumn<QString>("inValue");
        const auto row = [](const char *name, const QString &source, const QString &characters, const QString &inText,
                            const QString &inValue) {
            QTest::newRow(name) << source << characters << inText << inValue;
        };
        row("what must be spelled", u""_s, u"a & b < c > d \" e"_s, u"a &amp; b &lt; c &gt; d \" e"_s,
            u"a &amp; b < c > d &quot; e"_s);
        row("always a reference", u"caf&eacute;"_s, u"é, è"_s, u"&eacute;, è"_s, u"&eacute;, è"_s);
        row("always plain", u"é"_s, u"é"_s, u"é"_s, u"é"_s);
        row("both", u"é &eacute;"_s, u"é"_s, u"é"_s, u"é"_s);
        row("the first of several spellings", u"&#233; &eacute;"_s, u"é"_s, u"&#233;"_s, u"&#233;"_s);
        row("a number for a Windows character", u"&#150;"_s, u"–"_s, u"&#150;"_s, u"&#150;"_s);
        row("beyond 16 bits", u"&#x1F600;"_s, u"😀 😁"_s, u"&#x1F600; 😁"_s, u"&#x1F600; 😁"_s);
        row("a letter that hides an address", u"&#109;ail&#64;x"_s, u"m@a"_s, u"&#109;&#64;a"_s, u"&#109;&#64;a"_s);
        row("a letter that doesn't", u"&#109; m"_s, u"m"_s, u"m"_s, u"m"_s);
        row("blanks that don't break", u""_s, u"\u00a0"_s, u"&nbsp;"_s, u"&nbsp;"_s);
        row("the same by number", u"&#160;"_s, u"\u00a0"_s, u"&#160;"_s, u"&#160;"_s);
        row("the same typed", u"\u00a0"_s, u"\u00a0"_s, u"\u00a0"_s, u"\u00a0"_s);
        row("an arrow", u"a -> b"_s, u"a -> b"_s, u"a -> b"_s, u"a -> b"_s);
        row("quotation marks spelled", u"&quot;a&quot;"_s, u"\"b\""_s, u"&quot;b&quot;"_s, u"&quot;b&quot;"_s);
        row("quotation marks typed", u"'\"'"_s, u"\"b\""_s, u"\"b\""_s, u"&quot;b&quot;"_s);
        row("a reference without its end", u"&copy 2003"_s, u"©"_s, u"&copy;"_s, u"&copy;"_s);
        row("no reference", u"AT&T &x;"_s, u"&x;"_s, u"&amp;x;"_s, u"&amp;x;"_s);
        row("line ends", u""_s, u"a\nb\rc"_s, u"a\r\nb&#13;c"_s, u"a\r\nb&#13;c"_s);
        row("half a pair", u""_s, QString(QChar(0xd83d)), QString(QChar(0xd83d)), QString(QChar(0xd83d)));
    }

    void writes()
    {
        QFETCH(QString, source);
        QFETCH(QString, characters);
        EntityHabits text(EntityHabits::Place::Text);
        text.learn(source);
        QTEST(text.write(characters), "inText");
        EntityHabits value(EntityHabits::Place::Value);
        value.learn(source);
        QTEST(value.write(characters), "inValue");
    }

    void engineText()
    {
        QCOMPARE(readEngineText(u"a &amp;lt; &lt;b&gt; &quot;&nbsp;&eacute; & &"),
                 u"a &lt; <b> \"\u00a0&eacute; & &"_s);
    }
};

ZEPHIRA_TEST(TstEntityHabits)
#include "tst_entityhabits.moc"
