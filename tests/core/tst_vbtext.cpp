// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "core/vbtext.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The result of a call, or the description of the error that it raises, in angle brackets.
template<typename Call>
QString outcome(Call call)
{
    try {
        if constexpr (std::is_same_v<decltype(call()), QString>)
            return call();
        else
            return QString::number(call());
    } catch (const HandlerError &error) {
        return u'<' + error.description + u'>';
    }
}

const QString invalid = u"<Invalid procedure call or argument>"_s;
const QString mismatch = u"<Type mismatch>"_s;
const QString overflow = u"<Overflow>"_s;

} // namespace

class TstVbText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mid_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("expected");
        QTest::newRow("inside") << u"abcdef"_s << 2 << 3 << u"bcd"_s;
        QTest::newRow("first is one") << u"abcdef"_s << 1 << 1 << u"a"_s;
        QTest::newRow("beyond the end") << u"abc"_s << 2 << 99 << u"bc"_s;
        QTest::newRow("start behind the end") << u"abc"_s << 4 << 1 << u""_s;
        QTest::newRow("length zero") << u"abc"_s << 1 << 0 << u""_s;
        QTest::newRow("empty text") << u""_s << 1 << 1 << u""_s;
        QTest::newRow("half a surrogate pair") << u"\U0001F600"_s << 2 << 1 << QString(QChar(0xDE00));
        QTest::newRow("start zero") << u"abc"_s << 0 << 1 << invalid;
        QTest::newRow("negative start") << u"abc"_s << -1 << 1 << invalid;
        QTest::newRow("negative length") << u"abc"_s << 1 << -1 << invalid;
    }

    void mid()
    {
        QFETCH(QString, text);
        QFETCH(int, start);
        QFETCH(int, length);
        QFETCH(QString, expected);
        QCOMPARE(outcome([&] { return Mid(text, start, length); }), expected);
    }

    void midToTheEnd()
    {
        QCOMPARE(Mid(u"abcdef"_s, 3), u"cdef"_s);
        QCOMPARE(Mid(u"abc"_s, 4), u""_s);
        QCOMPARE(outcome([] { return Mid(u"abc"_s, 0); }), invalid);
    }

    void leftAndRight_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::newRow("none") << 0 << u""_s << u""_s;
        QTest::newRow("one") << 1 << u"a"_s << u"c"_s;
        QTest::newRow("all") << 3 << u"abc"_s << u"abc"_s;
        QTest::newRow("more than there is") << 4 << u"abc"_s << u"abc"_s;
        QTest::newRow("negative") << -1 << invalid << invalid;
    }

    void leftAndRight()
    {
        QFETCH(int, length);
        QTEST(outcome([&] { return Left(u"abc"_s, length); }), "left");
        QTEST(outcome([&] { return Right(u"abc"_s, length); }), "right");
    }

    void inStr_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("find");
        QTest::addColumn<QString>("expected");
        QTest::newRow("first") << 1 << u"abcabc"_s << u"bc"_s << u"2"_s;
        QTest::newRow("at the start given") << 2 << u"abcabc"_s << u"bc"_s << u"2"_s;
        QTest::newRow("behind the start given") << 3 << u"abcabc"_s << u"bc"_s << u"5"_s;
        QTest::newRow("none") << 1 << u"abc"_s << u"x"_s << u"0"_s;
        QTest::newRow("exact in case") << 1 << u"abc"_s << u"B"_s << u"0"_s;
        QTest::newRow("empty find") << 2 << u"abc"_s << u""_s << u"2"_s;
        QTest::newRow("empty find in nothing") << 1 << u""_s << u""_s << u"0"_s;
        QTest::newRow("start behind the end") << 4 << u"abc"_s << u""_s << u"0"_s;
        QTest::newRow("start zero") << 0 << u"abc"_s << u"a"_s << invalid;
    }

    void inStr()
    {
        QFETCH(int, start);
        QFETCH(QString, text);
        QFETCH(QString, find);
        QFETCH(QString, expected);
        QCOMPARE(outcome([&] { return InStr(start, text, find); }), expected);
    }

    void inStrVariants()
    {
        QCOMPARE(InStr(u"abc"_s, u"c"_s), static_cast<qsizetype>(3));
        QCOMPARE(InStr(1, u"abc"_s, u"B"_s, Qt::CaseInsensitive), static_cast<qsizetype>(2));
        QCOMPARE(InStrRev(u"abcABC"_s, u"abc"_s), static_cast<qsizetype>(1));
        QCOMPARE(InStrRev(u"abcABC"_s, u"abc"_s, -1, Qt::CaseInsensitive), static_cast<qsizetype>(4));
    }

    void inStrRev_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("find");
        QTest::addColumn<QString>("expected");
        QTest::newRow("last") << -1 << u"a/b/c"_s << u"/"_s << u"4"_s;
        QTest::newRow("match ends at the start given") << 4 << u"a/b/c"_s << u"/"_s << u"4"_s;
        QTest::newRow("match before the start given") << 3 << u"a/b/c"_s << u"/"_s << u"2"_s;
        QTest::newRow("match may not reach over the start") << 5 << u"abcabc"_s << u"bc"_s << u"2"_s;
        QTest::newRow("none") << -1 << u"abc"_s << u"x"_s << u"0"_s;
        QTest::newRow("find longer than text") << -1 << u"ab"_s << u"abc"_s << u"0"_s;
        QTest::newRow("empty find") << -1 << u"abc"_s << u""_s << u"3"_s;
        QTest::newRow("empty find before a start") << 2 << u"abc"_s << u""_s << u"2"_s;
        QTest::newRow("empty text") << -1 << u""_s << u"a"_s << u"0"_s;
        QTest::newRow("start behind the end") << 4 << u"abc"_s << u"c"_s << u"0"_s;
        QTest::newRow("start zero") << 0 << u"abc"_s << u"a"_s << invalid;
        QTest::newRow("start minus two") << -2 << u"abc"_s << u"a"_s << invalid;
    }

    void inStrRev()
    {
        QFETCH(int, start);
        QFETCH(QString, text);
        QFETCH(QString, find);
        QFETCH(QString, expected);
        QCOMPARE(outcome([&] { return InStrRev(text, find, start); }), expected);
    }

    void caseKeepsPositions()
    {
        QCOMPARE(LCase(u"ÄB<Font>ẞ"_s), u"äb<font>ß"_s);
        QCOMPARE(UCase(u"äb<font>"_s), u"ÄB<FONT>"_s);
        const QString awkward = u"\u00DF\uFB01\u0130\U0001F600"_s;
        QCOMPARE(UCase(awkward).size(), awkward.size());
        QCOMPARE(LCase(awkward).size(), awkward.size());
    }

    void trimmingTakesBlanksAlone_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<QString>("both");
        QTest::newRow("blanks") << u"  a b  "_s << u"a b  "_s << u"  a b"_s << u"a b"_s;
        QTest::newRow("tab") << u" \ta\t "_s << u"\ta\t "_s << u" \ta\t"_s << u"\ta\t"_s;
        QTest::newRow("line end") << u"\r\na\r\n"_s << u"\r\na\r\n"_s << u"\r\na\r\n"_s << u"\r\na\r\n"_s;
        QTest::newRow("no-break space") << u"\u00A0a\u00A0"_s << u"\u00A0a\u00A0"_s << u"\u00A0a\u00A0"_s
                                        << u"\u00A0a\u00A0"_s;
        QTest::newRow("only blanks") << u"   "_s << u""_s << u""_s << u""_s;
        QTest::newRow("nothing") << u""_s << u""_s << u""_s << u""_s;
    }

    void trimmingTakesBlanksAlone()
    {
        QFETCH(QString, text);
        QTEST(LTrim(text), "left");
        QTEST(RTrim(text), "right");
        QTEST(Trim(text), "both");
    }

    void conversion_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("asInteger");
        QTest::addColumn<QString>("asLong");
        const auto row = [](const char *name, const QString &text, const QString &asInteger, const QString &asLong) {
            QTest::newRow(name) << text << asInteger << asLong;
        };
        row("plain", u"12"_s, u"12"_s, u"12"_s);
        row("blanks around", u"  -12 "_s, u"-12"_s, u"-12"_s);
        row("plus", u"+7"_s, u"7"_s, u"7"_s);
        row("half to even, down", u"0.5"_s, u"0"_s, u"0"_s);
        row("half to even, up", u"1.5"_s, u"2"_s, u"2"_s);
        row("two and a half", u"2.5"_s, u"2"_s, u"2"_s);
        row("negative half", u"-2.5"_s, u"-2"_s, u"-2"_s);
        row("just above a half", u"2.50001"_s, u"3"_s, u"3"_s);
        row("exponent", u"1.2e2"_s, u"120"_s, u"120"_s);
        row("exponent with d", u"1D2"_s, u"100"_s, u"100"_s);
        row("largest integer", u"32767"_s, u"32767"_s, u"32767"_s);
        row("largest by rounding", u"32767.4"_s, u"32767"_s, u"32767"_s);
        row("beyond by rounding", u"32767.5"_s, overflow, u"32768"_s);
        row("smallest integer", u"-32768"_s, u"-32768"_s, u"-32768"_s);
        row("below by rounding", u"-32768.6"_s, overflow, u"-32769"_s);
        row("colour", u"16777215"_s, overflow, u"16777215"_s);
        row("largest long", u"2147483647"_s, overflow, u"2147483647"_s);
        row("beyond long", u"2147483648"_s, overflow, overflow);
        row("smallest long", u"-2147483648"_s, overflow, u"-2147483648"_s);
        row("beyond all", u"1e999"_s, overflow, overflow);
        row("hexadecimal", u"&H1f"_s, u"31"_s, u"31"_s);
        row("octal", u"&O17"_s, u"15"_s, u"15"_s);
        row("all bits of an integer", u"&HFFFF"_s, u"-1"_s, u"65535"_s);
        row("all bits of a long", u"&HFFFFFFFF"_s, overflow, u"-1"_s);
        row("hexadecimal without digits", u"&H"_s, mismatch, mismatch);
        row("hexadecimal with a sign", u"&H-1"_s, mismatch, mismatch);
        row("empty", u""_s, mismatch, mismatch);
        row("blanks", u"  "_s, mismatch, mismatch);
        row("word", u"abc"_s, mismatch, mismatch);
        row("trailing word", u"12px"_s, mismatch, mismatch);
        row("tab", u"\t12"_s, mismatch, mismatch);
        row("decimal comma", u"1,5"_s, mismatch, mismatch);
        row("infinity", u"inf"_s, mismatch, mismatch);
        row("not a number", u"nan"_s, mismatch, mismatch);
        row("foreign digits", u"\u0661\u0662"_s, mismatch, mismatch);
        row("dangling exponent", u"1e"_s, mismatch, mismatch);
    }

    void conversion()
    {
        QFETCH(QString, text);
        QTEST(outcome([&] { return CInt(text); }), "asInteger");
        QTEST(outcome([&] { return CLng(text); }), "asLong");
    }

    void conversionOfNumbers()
    {
        QCOMPARE(CInt(2.5), qint16(2));
        QCOMPARE(CLng(3.5), static_cast<qint32>(4));
        QCOMPARE(CDbl(u" 1.25 "_s), 1.25);
        QCOMPARE(CDbl(u"&HFF"_s), 255.0);
        QCOMPARE(outcome([] { return CLng(std::numeric_limits<double>::quiet_NaN()); }), overflow);
        QCOMPARE(outcome([] { return CInt(-std::numeric_limits<double>::infinity()); }), overflow);
        QCOMPARE(outcome([] { return CDbl(u"ten"_s); }), mismatch);
    }

    void numberAsText_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << 0.0 << u"0"_s;
        QTest::newRow("whole") << 1024.0 << u"1024"_s;
        QTest::newRow("thousandths") << 1.024 << u"1.024"_s;
        QTest::newRow("below one") << 0.5 << u"0.5"_s;
        QTest::newRow("negative") << -2.25 << u"-2.25"_s;
        QTest::newRow("fifteen digits") << 1.0 / 3.0 << u"0.333333333333333"_s;
        QTest::newRow("exponent") << 1e20 << u"1E+20"_s;
    }

    void numberAsText()
    {
        QFETCH(double, number);
        QTEST(CStr(number), "text");
    }

    void mask_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("text");
        const QString grouped = u"### ### ###.##"_s;
        QTest::newRow("nothing") << 0.0 << grouped << u"0"_s;
        QTest::newRow("a half") << 0.5 << grouped << u"0.5"_s;
        QTest::newRow("a kilobyte by thousands") << 1.024 << grouped << u"1.02"_s;
        QTest::newRow("a kilobyte") << 1.0 << grouped << u"1"_s;
        QTest::newRow("a kilobyte and a half") << 1.5 << grouped << u"1.5"_s;
        QTest::newRow("three digits") << 999.0 << grouped << u"999"_s;
        QTest::newRow("four digits") << 1000.0 << grouped << u"1 000"_s;
        QTest::newRow("more digits than the mask") << 12345678901.0 << grouped << u"12 345 678 901"_s;
        QTest::newRow("decimal half") << 1.005 << grouped << u"1.01"_s;
        QTest::newRow("small decimal half") << 0.015 << grouped << u"0.02"_s;
        QTest::newRow("too small to show") << 0.004 << grouped << u"0"_s;
        QTest::newRow("rounded up to a group") << 999.999 << grouped << u"1 000"_s;
        QTest::newRow("negative") << -1234.5 << grouped << u"-1 234.5"_s;
        QTest::newRow("negative and too small to show") << -0.001 << grouped << u"0"_s;
        QTest::newRow("without decimals") << 1234.5 << u"### ###"_s << u"1 235"_s;
        QTest::newRow("without groups") << 1234.567 << u"#.##"_s << u"1234.57"_s;
    }

    void mask()
    {
        QFETCH(double, number);
        QFETCH(QString, mask);
        QTEST(Format(number, mask), "text");
    }
};

ZEPHIRA_TEST(TstVbText)

} // namespace zephira

#include "tst_vbtext.moc"
