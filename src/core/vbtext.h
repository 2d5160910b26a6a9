// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

// Text functions in the manner of Basic, in which many of the program's text rules are stated. Positions are 1-based and
// count UTF-16 code units. Where Basic would fail they raise HandlerError with Basic's own description.

/// The part of the text from `start` on, `length` units long or to the end. A start after the end gives "". A start
/// below 1 or a negative length is an error ("Invalid procedure call or argument").
QString Mid(const QString &text, qsizetype start, std::optional<qsizetype> length = {});

/// The first or last `length` units, or the whole text if it is shorter. A negative length is an error.
QString Left(const QString &text, qsizetype length);
QString Right(const QString &text, qsizetype length);

/// Position of the first `find` at or after `start`; 0 when there is none. An empty `find` is found at `start`, unless
/// that lies after the text. A start below 1 is an error.
qsizetype InStr(qsizetype start, const QString &text, const QString &find,
                Qt::CaseSensitivity compare = Qt::CaseSensitive);
qsizetype InStr(const QString &text, const QString &find);

/// Position of the last `find` that ends at or before `start`, where -1 stands for the end of the text; 0 when there is
/// none. A start of 0 or below -1 is an error.
qsizetype InStrRev(const QString &text, const QString &find, qsizetype start = -1,
                   Qt::CaseSensitivity compare = Qt::CaseSensitive);

/// Lower and upper case, unit by unit, so that the length and with it every position stays what it was.
QString LCase(const QString &text);
QString UCase(const QString &text);

/// The text without the blanks (character 32, nothing else) at its start, its end, or both.
QString LTrim(const QString &text);
QString RTrim(const QString &text);
QString Trim(const QString &text);

/// The number that a whole text spells: sign, digits, decimal point and exponent, or &H and &O with hexadecimal and octal
/// digits; blanks around it are allowed. The locale has no say. Anything else is an error ("Type mismatch").
double CDbl(const QString &text);

/// A number rounded to a whole one, halves to the even neighbour: 0.5 gives 0, 1.5 gives 2. Beyond 16 bits (CInt) or
/// 32 bits (CLng), sign included, is an error ("Overflow"). Hexadecimal and octal texts fill the bits, so that
/// CInt("&HFFFF") is -1.
qint16 CInt(double number);
qint16 CInt(const QString &text);
qint32 CLng(double number);
qint32 CLng(const QString &text);

/// A number as it reads inside a text: at most 15 significant digits, a decimal point, and nothing around it. The locale
/// has no say.
QString CStr(double number);

/// A number in a mask of "#" with an optional point: at most as many decimals as stand after the point, without zeros at
/// their end, and groups of three digits divided by blanks if the mask has any. Digits in front of the point are never
/// lost, halves are rounded away from zero, and there is always a digit in front of the point.
///
///     Format(1234567.891, u"### ### ###.##") == "1 234 567.89"
QString Format(double number, QStringView mask);

} // namespace zephira
