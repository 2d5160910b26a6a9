// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/keynotations.h"

#include <bit>

namespace zephira {

QString binaryDigits(char32_t code)
{
    QString digits;
    quint32 left = code;
    for (quint32 weight = std::max(std::bit_floor(static_cast<quint32>(code)), 0x80U); weight > 0; weight /= 2) {
        digits += left >= weight ? u'1' : u'0';
        if (left >= weight)
            left -= weight;
    }
    return digits;
}

QString hexadecimalDigits(char32_t code)
{
    return QString::number(code, 16).toUpper();
}

char32_t firstCodePoint(QStringView text)
{
    const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text[0], text[1]) : text.front().unicode();
}

} // namespace zephira
