// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/vbtext.h"

#include "core/errorstyles.h"
#include "core/textparts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

void requireArgument(bool valid)
{
    if (!valid)
        throw HandlerError{u"Invalid procedure call or argument"_s};
}

/// The value of a text such as "&HFF" or "&O17"; nothing if the text doesn't have this form.
std::optional<quint64> prefixedNumber(QStringView text)
{
    if (!text.startsWith(u'&') || text.size() < 3)
        return {};
    const QChar kind = text[1].toLower();
    const int base = kind == u'h' ? 16 : kind == u'o' ? 8 : 0;
    const QStringView digits = text.sliced(2);
    const bool plain = std::ranges::all_of(digits, [](QChar c) { return c < QChar(128) && c.isLetterOrNumber(); });
    bool ok = false;
    const quint64 value = base != 0 && plain ? digits.toULongLong(&ok, base) : 0;
    return ok ? std::optional(value) : std::nullopt;
}

double decimalNumber(QStringView text)
{
    // toDouble() would accept "inf" and "nan", which aren't numbers here. "D" marks an exponent like "E".
    constexpr QStringView allowed = u"0123456789+-.eEdD";
    const bool plain = std::ranges::all_of(text, [&](QChar c) { return allowed.contains(c); });
    bool ok = false;
    const double value =
        plain ? text.toString().replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive).toDouble(&ok) : 0;
    if (plain && std::isinf(value))
        throw HandlerError{u"Overflow"_s};
    if (!ok)
        throw HandlerError{u"Type mismatch"_s};
    return value;
}

template<typename T>
T rounded(double number)
{
    const double whole = std::nearbyint(number);
    // The condition is negated so that NaN fails as well.
    if (!(whole >= std::numeric_limits<T>::min() && whole <= std::numeric_limits<T>::max()))
        throw HandlerError{u"Overflow"_s};
    return static_cast<T>(whole);
}

template<typename T>
T converted(const QString &text)
{
    const QStringView trimmed = withoutSpaces(QStringView(text));
    const std::optional<quint64> bits = prefixedNumber(trimmed);
    if (!bits)
        return rounded<T>(decimalNumber(trimmed));
    if (*bits > std::numeric_limits<std::make_unsigned_t<T>>::max())
        throw HandlerError{u"Overflow"_s};
    return static_cast<T>(*bits);
}

} // namespace

QString Mid(const QString &text, qsizetype start, std::optional<qsizetype> length)
{
    requireArgument(start >= 1 && length.value_or(0) >= 0);
    if (start > text.size())
        return QString();
    return text.sliced(start - 1, std::min(length.value_or(text.size()), text.size() - start + 1));
}

QString Left(const QString &text, qsizetype length)
{
    requireArgument(length >= 0);
    return text.first(std::min(length, text.size()));
}

QString Right(const QString &text, qsizetype length)
{
    requireArgument(length >= 0);
    return text.last(std::min(length, text.size()));
}

qsizetype InStr(qsizetype start, const QString &text, const QString &find, Qt::CaseSensitivity compare)
{
    requireArgument(start >= 1);
    if (start > text.size())
        return 0;
    return find.isEmpty() ? start : text.indexOf(find, start - 1, compare) + 1;
}

qsizetype InStr(const QString &text, const QString &find)
{
    return InStr(1, text, find);
}

qsizetype InStrRev(const QString &text, const QString &find, qsizetype start, Qt::CaseSensitivity compare)
{
    requireArgument(start >= 1 || start == -1);
    const qsizetype end = start == -1 ? text.size() : start;
    if (text.isEmpty() || end > text.size())
        return 0;
    return find.isEmpty() ? end : QStringView(text).first(end).lastIndexOf(find, -1, compare) + 1;
}

QString LCase(const QString &text)
{
    QString lower = text;
    std::ranges::transform(lower, lower.begin(), [](QChar c) { return c.toLower(); });
    return lower;
}

QString UCase(const QString &text)
{
    QString upper = text;
    std::ranges::transform(upper, upper.begin(), [](QChar c) { return c.toUpper(); });
    return upper;
}

QString LTrim(const QString &text)
{
    const auto first = std::ranges::find_if(text, [](QChar c) { return c != u' '; });
    return text.sliced(first - text.begin());
}

QString RTrim(const QString &text)
{
    const auto last = std::find_if(text.rbegin(), text.rend(), [](QChar c) { return c != u' '; });
    return text.first(text.rend() - last);
}

QString Trim(const QString &text)
{
    return withoutSpaces(QStringView(text)).toString();
}

double CDbl(const QString &text)
{
    const QStringView trimmed = withoutSpaces(QStringView(text));
    const std::optional<quint64> bits = prefixedNumber(trimmed);
    return bits ? static_cast<double>(*bits) : decimalNumber(trimmed);
}

qint16 CInt(double number)
{
    return rounded<qint16>(number);
}

qint16 CInt(const QString &text)
{
    return converted<qint16>(text);
}

qint32 CLng(double number)
{
    return rounded<qint32>(number);
}

qint32 CLng(const QString &text)
{
    return converted<qint32>(text);
}

QString CStr(double number)
{
    constexpr int significantDigits = 15;
    return QString::number(number, 'g', significantDigits).toUpper();
}

QString Format(double number, QStringView mask)
{
    const qsizetype point = mask.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : mask.size() - point - 1;
    // Going through the text makes a number that is a half in decimal round as a half.
    const double scaled = CStr(std::abs(number) * std::pow(10.0, static_cast<double>(decimals))).toDouble();
    QString digits = QString::number(std::round(scaled), 'f', 0).rightJustified(decimals + 1, u'0');
    QString fraction = digits.last(decimals);
    digits.chop(decimals);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);

    const bool negative = number < 0 && (digits != u"0" || !fraction.isEmpty());
    if (mask.contains(u' ')) {
        for (qsizetype group = digits.size() - 3; group > 0; group -= 3)
            digits.insert(group, u' ');
    }
    return (negative ? u"-"_s : QString()) + digits + (fraction.isEmpty() ? QString() : u'.' + fraction);
}

} // namespace zephira
