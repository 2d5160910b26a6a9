// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/numbers.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace zephira {

namespace {

using namespace std::string_view_literals;

/// A date literal is short; a longer stretch between two number signs is something else.
constexpr std::ptrdiff_t longestDate = 40;

constexpr std::string_view dateWords[] = {"am",  "pm",  "jan", "feb", "mar", "apr", "may",
                                          "jun", "jul", "aug", "sep", "oct", "nov", "dec"};

bool isNumberByte(Byte byte)
{
    return isDigit(byte) || isLetter(byte) || byte == '_';
}

/// A point belongs to a number unless another point or a member name follows ("1.toString").
bool isFraction(const Byte *point, const Byte *end)
{
    if (point + 1 == end)
        return true;
    const Byte next = point[1];
    if (next == '.' || next == '_')
        return false;
    if (!isLetter(next))
        return next < 0x80;
    const bool suffix = std::memchr("eEfFdDlL", next, 8) != nullptr;
    return suffix && (point + 2 == end || !isLetter(point[2]));
}

/// The words of a date: "AM", "PM", and month names, full or abbreviated.
bool isDateWord(const Byte *p, const Byte *end)
{
    return std::ranges::any_of(dateWords, [p, end](std::string_view word) {
        return end - p >= static_cast<std::ptrdiff_t>(word.size()) && (word.size() == 3 || end - p == 2)
            && std::equal(word.begin(), word.end(), p, [](char own, Byte other) { return own == (other | 32); });
    });
}

/// "#12/31/1999 11:59 PM#": digits, the words above, and separators between them, with at least one digit and one
/// separator.
const Byte *dateEnd(const Byte *p, const Byte *end)
{
    const Byte *last = std::min(end, p + longestDate);
    bool digits = false;
    bool signs = false;
    for (const Byte *q = p + 1; q < last;) {
        if (*q == '#')
            return digits && signs ? q + 1 : p;
        if (isLetter(*q)) {
            const Byte *word = q;
            while (q < last && isLetter(*q))
                ++q;
            if (!isDateWord(word, q))
                return p;
            signs = true;
            continue;
        }
        digits |= isDigit(*q);
        signs |= "/-:"sv.find(static_cast<char>(*q)) != std::string_view::npos;
        if (!isDigit(*q) && "/-:,. "sv.find(static_cast<char>(*q)) == std::string_view::npos)
            return p;
        ++q;
    }
    return p;
}

const Byte *hexEnd(const Byte *p, const Byte *end)
{
    return std::find_if_not(p, end, isHexDigit);
}

} // namespace

const Byte *numberEnd(const Byte *p, const Byte *end, Dialect dialect)
{
    const bool hex = end - p > 1 && *p == '0' && (p[1] | 32) == 'x';
    const Byte exponent = hex ? 'p' : 'e';
    bool fraction = false;
    const Byte *q = p;
    for (; q < end; ++q) {
        if ((*q | 32) == exponent && end - q > 2 && (q[1] == '+' || q[1] == '-') && isDigit(q[2]))
            ++q;
        else if (*q == '.') {
            if (fraction || (q > p && !isFraction(q, end)))
                break;
            fraction = true;
        } else if (*q == '\'') {
            if (!has(dialect, Dialect::DigitQuotes) || end - q < 2 || !isHexDigit(q[1]))
                break;
        } else if (!isNumberByte(*q))
            break;
    }
    if (has(dialect, Dialect::NumberSuffixSigns) && q < end && std::memchr("&%!#@", *q, 5)
        && (end - q == 1 || !isNumberByte(q[1])))
        ++q;
    return q;
}

const Byte *signedNumberEnd(const Byte *p, const Byte *end, Dialect dialect)
{
    const std::ptrdiff_t room = end - p;
    if (*p == '&' && has(dialect, Dialect::AmpersandNumbers) && room > 2) {
        const Byte form = p[1] | 32;
        const Byte *digits = p + 2;
        const Byte *q = form == 'h' ? hexEnd(digits, end)
            : form == 'o'           ? std::find_if_not(digits, end, isDigit)
                                    : digits;
        if (q == digits || (q < end && (isNumberByte(*q) || *q >= 0x80)))
            return p;
        return q < end && *q == '&' ? q + 1 : q;
    }
    if (*p == '$' && has(dialect, Dialect::DollarNumbers)) {
        const Byte *q = hexEnd(p + 1, end);
        return q == p + 1 ? p : q;
    }
    if (*p == '#' && has(dialect, Dialect::DollarNumbers) && room > 1) {
        const bool hex = p[1] == '$';
        const Byte *digits = p + (hex ? 2 : 1);
        const Byte *q = hex ? hexEnd(digits, end) : std::find_if_not(digits, end, isDigit);
        return q == digits ? p : q;
    }
    if (*p == '#' && has(dialect, Dialect::DateLiterals))
        return dateEnd(p, end);
    return p;
}

} // namespace zephira
