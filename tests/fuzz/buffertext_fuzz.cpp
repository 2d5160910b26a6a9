// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary bytes: validity and characters of UTF-8 are those that Qt sees, offsets agree in both directions, and a
// text comes back from the buffer as it went.
#include "files/buffertext.h"
#include "files/utf8.h"
#include "fuzz/fuzztarget.h"

#include <QStringDecoder>

using namespace zephira;

FUZZ_TARGET(buffertext)
{
    const QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    // Qt drops a mark at the start.
    if (bytes.startsWith("\xef\xbb\xbf"))
        return 0;
    check(asciiLength(bytes) == std::ranges::find_if(bytes, [](char c) { return c < 0; }) - bytes.begin());
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder.decode(bytes);
    check(isValidUtf8(bytes) == !decoder.hasError());
    if (decoder.hasError())
        return 0;
    std::u32string characters;
    Utf8Reader reader(bytes);
    while (const auto character = reader.next())
        characters += *character;
    check(reader.atEnd() && QString::fromUcs4(characters.data(), static_cast<qsizetype>(characters.size())) == text);
    check(utf16Length(bytes) == text.size());
    const qsizetype place = text.size() * (size ? data[0] : 0) / 255;
    const QByteArray before = bytes.first(byteOffset(bytes, place));
    check(isValidUtf8(before));
    check(utf16Length(before) == place || utf16Length(before) == place - 1);
    check(byteOffset(bytes, text.size() + 1) == bytes.size());
    check(toBuffer(text, LineEnds::Mixed) == bytes);
    const QByteArray lf = toBuffer(text, LineEnds::Lf);
    check(!lf.contains('\r') && toBuffer(fromBuffer(lf, LineEnds::Lf), LineEnds::Lf) == lf);
    mostFrequentLineEnd(bytes);
    return 0;
}
