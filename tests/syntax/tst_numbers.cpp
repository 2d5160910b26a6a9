// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/numbers.h"

#include <QTest>

namespace zephira {

/// Where a number ends: each row is a text in which a bar marks the end of the number.
class TstNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plain_data();
    void plain() { check(numberEnd); }
    void withSign_data();
    void withSign() { check(signedNumberEnd); }

private:
    static void row(const char *text, Dialect dialect = Dialect::None)
    {
        QTest::newRow(text) << QByteArray(text) << static_cast<unsigned>(dialect);
    }

    static void addColumns()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<unsigned>("dialect");
    }

    void check(const Byte *(*function)(const Byte *, const Byte *, Dialect))
    {
        QFETCH(QByteArray, text);
        QFETCH(unsigned, dialect);
        const qsizetype bar = text.indexOf('|');
        QVERIFY(bar >= 0);
        text.remove(bar, 1);
        const auto *begin = reinterpret_cast<const Byte *>(text.constData());
        QCOMPARE(function(begin, begin + text.size(), static_cast<Dialect>(dialect)) - begin, bar);
    }
};

void TstNumbers::plain_data()
{
    addColumns();
    row("0|");
    row("12|;");
    row("12.5|+1");
    row(".5|");
    row("5.|");
    row("5.|)");
    row("1|..5");
    row("1.5|.3");
    row("1|.toString()");
    row("1.f|");
    row("1.e5|");
    row("1e5|");
    row("1E-5|;");
    row("1e+5|");
    row("1e|+x");
    row("1.5e-3f|;");
    row("0x1F|");
    row("0xE|-5");
    row("0x1.8p-3|");
    row("0b101|");
    row("0o17|");
    row("10UL|");
    row("1_000|");
    row("12px|");
    row("12em|-3");
    row("1|'000");
    row("1'000'000|", Dialect::DigitQuotes);
    row("1|' '", Dialect::DigitQuotes);
    row("10&|", Dialect::NumberSuffixSigns);
    row("10&| x", Dialect::NumberSuffixSigns);
    row("10|&x", Dialect::NumberSuffixSigns);
    row("1.5!|", Dialect::NumberSuffixSigns);
    row("10|&");
    row("5|\u20ac");
}

void TstNumbers::withSign_data()
{
    addColumns();
    row("&HFF|", Dialect::AmpersandNumbers);
    row("&h1f&| x", Dialect::AmpersandNumbers);
    row("&O17|", Dialect::AmpersandNumbers);
    row("|&Hello", Dialect::AmpersandNumbers);
    row("|&H", Dialect::AmpersandNumbers);
    row("|&x", Dialect::AmpersandNumbers);
    row("|&HFF");
    row("$1F|;", Dialect::DollarNumbers);
    row("|$", Dialect::DollarNumbers);
    row("|$x", Dialect::DollarNumbers);
    row("#13|#10", Dialect::DollarNumbers);
    row("#$0D|", Dialect::DollarNumbers);
    row("|#a", Dialect::DollarNumbers);
    row("#12/31/1999#|", Dialect::DateLiterals);
    row("#1999-12-31 23:59:59#|", Dialect::DateLiterals);
    row("#1:30 PM#|", Dialect::DateLiterals);
    row("#January 5, 2001#|x", Dialect::DateLiterals);
    row("#5 may 2001#|", Dialect::DateLiterals);
    row("|#1, \"#\"", Dialect::DateLiterals);
    row("|#1, a/b#", Dialect::DateLiterals);
    row("|#12#", Dialect::DateLiterals);
    row("|##", Dialect::DateLiterals);
    row("|#1/2", Dialect::DateLiterals);
    row("|#1/2/3333333333333333333333333333333333333333333333#", Dialect::DateLiterals);
    row("|#1/2/1999#");
}

ZEPHIRA_TEST(TstNumbers)

} // namespace zephira

#include "tst_numbers.moc"
