// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "tools/tidyplaces.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// What a range selects in a text, by walking through its lines; line ends are shown as "|".
QString selected(const QString &text, const CodeMaxRange &range)
{
    QStringList lines = QString(text).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').split(u'\n');
    if (range.StartLineNo == range.EndLineNo)
        return lines[range.StartLineNo].mid(range.StartColNo, range.EndColNo - range.StartColNo);
    lines = lines.mid(range.StartLineNo, range.EndLineNo - range.StartLineNo + 1);
    lines.last() = lines.last().left(range.EndColNo);
    lines.first() = lines.first().mid(range.StartColNo);
    return lines.join(u'|');
}

} // namespace

class TstTidyPlaces final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columns_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("inBytes");
        QTest::addColumn<int>("units");
        const auto row = [](const char *name, const QString &text, int line, int column, int units,
                            bool inBytes = false) {
            QTest::newRow(name) << text << line << column << inBytes << units;
        };
        row("start", u"abc"_s, 0, 0, 0);
        row("letters", u"abc"_s, 0, 2, 2);
        row("another line", u"a\nbcd"_s, 1, 2, 2);
        row("behind the line's end", u"ab\ncd"_s, 0, 9, 2);
        row("behind the last line", u"ab\ncd"_s, 7, 1, 0);
        row("a tab", u"\tx"_s, 0, 8, 1);
        row("a tab behind letters", u"ab\tx"_s, 0, 8, 3);
        row("two tabs", u"a\t\tx"_s, 0, 16, 3);
        row("not in ASCII", u"ä€x"_s, 0, 2, 2);
        row("not in ASCII, in bytes", u"ä€x"_s, 0, 5, 2, true);
        row("outside the plane", u"😀x"_s, 0, 1, 2);
        row("outside the plane, in bytes", u"😀x"_s, 0, 4, 2, true);
        row("what isn't counted", u"a\u0001\u0002x"_s, 0, 1, 3);
        row("a zero", u"a"_s + QChar(0) + u'x', 0, 1, 2);
    }

    void columns()
    {
        QFETCH(QString, text);
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(bool, inBytes);
        std::vector<TidyMessage> messages{{.line = line, .column = column}};
        toTextPlaces(messages, text.toUtf8(), inBytes);
        QTEST(messages.front().column, "units");
        QCOMPARE(messages.front().line, line);
    }

    void messagesInAnyOrder()
    {
        std::vector<TidyMessage> messages{{.line = 1, .column = 2, .text = u"a"_s},
                                          {.line = -1, .column = 7, .text = u"b"_s},
                                          {.line = 0, .column = 8, .text = u"c"_s},
                                          {.line = 1, .column = 1, .text = u"d"_s},
                                          {.line = 1, .column = 1, .text = u"e"_s}};
        toTextPlaces(messages, u"\tx\n😀y"_s.toUtf8(), false);
        QCOMPARE(messages,
                 (std::vector<TidyMessage>{{.line = 1, .column = 3, .text = u"a"_s},
                                           {.line = -1, .column = 7, .text = u"b"_s},
                                           {.line = 0, .column = 1, .text = u"c"_s},
                                           {.line = 1, .column = 2, .text = u"d"_s},
                                           {.line = 1, .column = 2, .text = u"e"_s}}));
    }

    void range_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("piece");
        const auto row = [](const char *name, const QString &text, int line, int column, const QString &piece) {
            QTest::newRow(name) << text << line << column << piece;
        };
        row("a tag", u"a<b c>d"_s, 0, 1, u"<b c>"_s);
        row("a tag in another line", u"a\r\n<b>\r\n"_s, 1, 0, u"<b>"_s);
        row("after a line feed", u"a\n<b>"_s, 1, 0, u"<b>"_s);
        row("after a carriage return", u"a\r<b>"_s, 1, 0, u"<b>"_s);
        row("mixed line ends", u"a\r\r\n\n<b>"_s, 3, 0, u"<b>"_s);
        row("a tag over lines", u"x<b\r\nc\rd\ne>f"_s, 0, 1, u"<b|c|d|e>"_s);
        row("a tag without an end", u"x<b c"_s, 0, 1, u"<"_s);
        row("a very long tag", u"<b "_s + QString(3000, u'x') + u'>', 0, 0, u"<"_s);
        row("a word", u"a word here"_s, 0, 2, u"word"_s);
        row("an entity", u"a &foo; b"_s, 0, 2, u"&foo;"_s);
        row("another character", u"a = b"_s, 0, 2, u"="_s);
        row("outside the plane", u"a😀b"_s, 0, 1, u"😀"_s);
        row("the line's end", u"ab\r\ncd"_s, 0, 2, QString());
        row("behind the line's end", u"ab\r\ncd"_s, 0, 9, QString());
        row("behind the last line", u"ab\r\ncd"_s, 9, 0, u"cd"_s);
        row("behind the last line end", u"ab\r\n"_s, 9, 3, QString());
        row("nothing", {}, 3, 3, QString());
    }

    void range()
    {
        QFETCH(QString, text);
        QFETCH(int, line);
        QFETCH(int, column);
        const CodeMaxRange range = rangeAt(text, line, column);
        QTEST(selected(text, range), "piece");
    }

    void aPlaceOutsideIsTheNearest()
    {
        QCOMPARE(rangeAt(u"ab\r\ncd"_s, 0, 9), (CodeMaxRange{0, 2, 0, 2}));
        QCOMPARE(rangeAt(u"ab\r\ncd"_s, 9, 9), (CodeMaxRange{1, 2, 1, 2}));
        QCOMPARE(rangeAt({}, 5, 5), (CodeMaxRange{0, 0, 0, 0}));
    }

    void tenTimesTheLine()
    {
        const double times = timesForTenTimes([](qsizetype count) { return u"ä\t"_s.repeated(count); }, 30000,
                                              [](const QString &text) {
                                                  std::vector<TidyMessage> messages;
                                                  for (int at = 0; at < text.size(); at += 10)
                                                      messages.push_back({.line = 0, .column = at});
                                                  toTextPlaces(messages, text.toUtf8(), false);
                                              });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstTidyPlaces)

#include "tst_tidyplaces.moc"
