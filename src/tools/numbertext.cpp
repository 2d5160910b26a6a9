// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/numbertext.h"

#include "core/vbtext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int significantDigits = 15;
constexpr int maximumDecimals = 15;

} // namespace

QString numberText(double number)
{
    if (number == 0 || std::abs(number) >= 1)
        return CStr(number);
    // Digit, point, fourteen digits, "e-", two digits or more.
    const QString scientific = QString::number(number, 'e', significantDigits - 1);
    const qsizetype letter = scientific.indexOf(u'e');
    const QString exponent = scientific.sliced(letter + 1);
    QString mantissa = scientific.first(letter);
    while (mantissa.endsWith(u'0'))
        mantissa.chop(1);
    if (mantissa.endsWith(u'.'))
        mantissa.chop(1);

    const qsizetype point = mantissa.indexOf(u'.');
    const qsizetype decimals = (point < 0 ? 0 : mantissa.size() - point - 1) - exponent.toInt();
    if (decimals > maximumDecimals)
        return mantissa + u'E' + exponent;
    return QString::number(number, 'f', static_cast<int>(decimals));
}

} // namespace zephira
