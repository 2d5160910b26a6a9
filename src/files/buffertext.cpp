// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/buffertext.h"

#include "files/utf8.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace zephira {

namespace {

bool startsCharacter(char byte)
{
    return (byte & 0xc0) != 0x80;
}
bool startsSurrogatePair(char byte)
{
    return static_cast<unsigned char>(byte) >= 0xf0;
}

} // namespace

QString fromBuffer(std::span<const QByteArrayView> utf8Pieces, LineEnds lineEnds)
{
    // A byte order mark inside the text is an ordinary character.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    QString text;
    for (const QByteArrayView piece : utf8Pieces) {
        if (text.isEmpty())
            text = decode(piece);
        else
            text += decode(piece);
    }
    const bool asItIs = lineEnds == LineEnds::CrLf || lineEnds == LineEnds::Mixed;
    return asItIs ? text : toCrLf(text);
}

QString fromBuffer(QByteArrayView utf8, LineEnds lineEnds)
{
    return fromBuffer(std::span(&utf8, 1), lineEnds);
}

QByteArray toBuffer(const QString &text, LineEnds lineEnds)
{
    return toLineEnds(text.toUtf8(), lineEnds);
}

LineEnds mostFrequentLineEnd(QByteArrayView utf8)
{
    constexpr std::array kinds{LineEnds::CrLf, LineEnds::Lf, LineEnds::Cr};
    std::array<qsizetype, kinds.size()> counts{};
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        if (utf8[i] == '\n')
            ++counts[1];
        else if (utf8[i] == '\r' && i + 1 < utf8.size() && utf8[i + 1] == '\n')
            ++counts[0], ++i;
        else if (utf8[i] == '\r')
            ++counts[2];
    }
    return kinds[static_cast<std::size_t>(std::ranges::max_element(counts) - counts.begin())];
}

qsizetype utf16Length(QByteArrayView utf8)
{
    qsizetype units = 0;
    for (const char *byte = utf8.begin(); byte != utf8.end();) {
        const qsizetype ascii = asciiLength({byte, utf8.end() - byte});
        units += ascii;
        // Every other byte except continuation bytes counts one, and the first byte of a four-byte sequence counts two.
        for (byte += ascii; byte != utf8.end() && static_cast<unsigned char>(*byte) >= 0x80; ++byte)
            units += static_cast<int>(startsCharacter(*byte)) + static_cast<int>(startsSurrogatePair(*byte));
    }
    return units;
}

qsizetype byteOffset(QByteArrayView utf8, qsizetype utf16)
{
    qsizetype offset = 0;
    while (offset < utf8.size()) {
        utf16 -= startsSurrogatePair(utf8[offset]) ? 2 : 1;
        if (utf16 < 0)
            break;
        do
            ++offset;
        while (offset < utf8.size() && !startsCharacter(utf8[offset]));
    }
    return offset;
}

} // namespace zephira
