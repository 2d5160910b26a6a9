// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

// Text functions that behave as in Basic; many of the program's text rules are defined in their terms. Positions are
// 1-based and count UTF-16 code units. Where Basic would fail, they raise HandlerError with Basic's error description.

/// The part of the text starting at `start`, `length` units long or up to the end. A start after the end gives "". A
/// start below 1 or a negative length is an error ("Invalid procedure call or argument").
QString Mid(const QString &text, qsizetype start, std::optional<qsizetype> length = {});

/// The first or last `length` units, or the whole text if it is shorter. A negative length is an error.
QString Left(const QString &text, qsizetype length);
QString Right(const QString &text, qsizetype length);

/// Position of the first `find` at or after `start`; 0 if there is none. An empty `find` is found at `start`, unless
/// that is past the end of the text. A start below 1 is an error.
qsizetype InStr(qsizetype start, const QString &text, const QString &find,
                Qt::CaseSensitivity compare = Qt::CaseSensitive);
qsizetype InStr(const QString &text, const QString &find);

/// Position of the last `find` that ends at or before `start`, where -1 means the end of the text; 0 if there is none.
/// A start of 0 or below -1 is an error.
qsizetype InStrRev(const QString &text, const QString &find, qsizetype start = -1,
                   Qt::CaseSensitivity compare = Qt::CaseSensitive);

/// Lower and upper case, converted unit by unit so that the length and all positions stay the same.
QString LCase(const QString &text);
QString UCase(const QString &text);

/// The text without the spaces (only character 32) at its start, its end, or both.
QString LTrim(const QString &text);
QString RTrim(const QString &text);
QString Trim(const QString &text);

/// Converts a whole text to a number: sign, digits, decimal point and exponent, or &H and &O with hexadecimal and octal
/// digits, with spaces around it allowed. The locale has no influence. Anything else is an error ("Type mismatch").
double CDbl(const QString &text);

/// Rounds to an integer, halves to even: 0.5 gives 0, 1.5 gives 2. A value outside 16 bits (CInt) or 32 bits (CLng),
/// signed, is an error ("Overflow"). Hexadecimal and octal texts give the bit pattern, so that CInt("&HFFFF") is -1.
qint16 CInt(double number);
qint16 CInt(const QString &text);
qint32 CLng(double number);
qint32 CLng(const QString &text);

/// Converts a number to text: at most 15 significant digits, a decimal point, and no padding. The locale has no
/// influence.
QString CStr(double number);

/// Formats a number with a mask of "#" and an optional point. The result has at most as many decimals as the mask has
/// after the point, without trailing zeros. If the mask contains spaces, the digits are grouped by three, separated by
/// spaces. Digits before the point are never dropped, there is always at least one, and halves are rounded away from
/// zero.
///
///     Format(1234567.891, u"### ### ###.##") == "1 234 567.89"
QString Format(double number, QStringView mask);

} // namespace zephira
