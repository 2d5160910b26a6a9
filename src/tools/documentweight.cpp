// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/documentweight.h"

#include "core/errorstyles.h"
#include "core/vbtext.h"
#include "tools/numbertext.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr double limit = 10;
constexpr qsizetype lengthBelow = 4;
constexpr qsizetype lengthAbove = 5;

/// What is put before the digits for the exponents -01 to -05; any other exponent is used as it is.
QString prefixFor(const QString &exponent)
{
    static const std::array<QString, 5> zeros{u"0."_s, u"0.0"_s, u"0.00"_s, u"0.000"_s, u"0.0000"_s};
    for (std::size_t i = 0; i < zeros.size(); ++i) {
        if (exponent == u'0' + QString::number(i + 1))
            return zeros.at(i);
    }
    return exponent;
}

/// The text without its exponent, by the fixed pattern.
QString withoutExponent(const QString &text)
{
    const QString exponent = Right(text, 2);
    const qsizetype places = CInt(exponent);
    return prefixFor(exponent) + Left(text, places - 1) + Mid(text, places + 1, text.size() - places);
}

} // namespace

std::optional<QString> sizeCaption(double kilobytes)
{
    if (kilobytes == limit)
        return {};
    return Left(numberText(kilobytes), kilobytes < limit ? lengthBelow : lengthAbove) + u" KB"_s;
}

QString timeCaption(double kilobytes, LineSpeed line)
{
    QString text = numberText(kilobytes / line.kilobytesPerSecond);
    const bool done = endingQuietly([&text] {
        if (text.contains(u'E'))
            text = withoutExponent(text);
        const double seconds = CDbl(text);
        if (seconds < limit)
            text = Left(text, lengthBelow);
        else if (seconds > limit)
            text = Left(text, lengthAbove);
    });
    return (done ? text : u"0.00"_s) + u" Sec."_s;
}

} // namespace zephira
