// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/characterspans.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstCharacterSpans : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("inText");
        QTest::addColumn<QString>("inValue");
        const auto row = [](const QString &text, const QString &inText, const QString &inValue = {}) {
            QTest::newRow(qPrintable(text)) << text << inText << (inValue.isNull() ? inText : inValue);
        };
        row(u"abc"_s, u"abc"_s);
        row(u"a\r\nb\rc\nd"_s, u"a\nb\nc\nd"_s);
        row(u"caf&eacute;s"_s, u"cafés"_s);
        row(u"&#233;&#xe9;&#XE9;"_s, u"ééé"_s);
        row(u"&#150;"_s, u"–"_s);
        row(u"&#x1f600;!"_s, u"😀!"_s);
        row(u"&copy 1"_s, u"© 1"_s);
        row(u"&copy=1"_s, u"©=1"_s, u"&copy=1"_s);
        row(u"a?b&lang=c"_s, u"a?b&lang=c"_s);
        row(u"&euro 1"_s, u"&euro 1"_s);
        row(u"&apos;&apos"_s, u"'&apos"_s);
        row(u"&nosuch; & &; &#; &#x;"_s, u"&nosuch; & &; &#; &#x;"_s);
        row(u"&amp;eacute;"_s, u"&eacute;"_s);
        row(u"&#233"_s, u"é"_s);
    }

    void read()
    {
        QFETCH(QString, text);
        const auto readAs = [&](References references) {
            QString read;
            appendRead(text, references, read);
            QString joined;
            qsizetype place = 0;
            for (const CharacterSpan &span : characterSpans(text, references)) {
                if (span.begin != place || span.end <= span.begin)
                    return u"a gap"_s;
                place = span.end;
                joined += QString::fromUcs4(&span.character, 1);
            }
            return joined == read && place == text.size() ? read : u"different"_s;
        };
        QTEST(readAs(References::InText), "inText");
        QTEST(readAs(References::InValue), "inValue");
        QCOMPARE(readAs(References::None), QString(text).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n'));
    }
};

ZEPHIRA_TEST(TstCharacterSpans)
#include "tst_characterspans.moc"
