// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/buffertext.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <numeric>

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
    // Every byte except continuation bytes counts one, and the first byte of a four-byte sequence counts two. The
    // compiler vectorises blocks of a fixed size whose sums fit into a byte, which matters because a large file is
    // counted when it is loaded.
    constexpr qsizetype lanes = 32;
    constexpr qsizetype rows = 127;
    const char *byte = utf8.data();
    const char *const end = byte + utf8.size();
    qsizetype units = 0;
    while (end - byte >= lanes * rows) {
        std::array<quint8, lanes> sums{};
        for (qsizetype row = 0; row < rows; ++row, byte += lanes) {
            for (qsizetype lane = 0; lane < lanes; ++lane) {
                sums[static_cast<std::size_t>(lane)] = static_cast<quint8>(
                    sums[static_cast<std::size_t>(lane)] + static_cast<int>(startsCharacter(byte[lane]))
                    + static_cast<int>(startsSurrogatePair(byte[lane])));
            }
        }
        units += std::accumulate(sums.begin(), sums.end(), static_cast<qsizetype>(0));
    }
    return units + std::count_if(byte, end, startsCharacter) + std::count_if(byte, end, startsSurrogatePair);
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
