// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/lineends.h"

#include <QByteArray>

namespace zephira {

enum class Encoding { Utf8, Utf16LE, Utf16BE, Windows1252 };

/// How a text is stored in its file.
struct TextFormat {
    Encoding encoding = Encoding::Utf8;
    bool byteOrderMark = false;
    LineEnds lineEnds = LineEnds::CrLf;

    friend bool operator==(const TextFormat &, const TextFormat &) = default;
};

/// The text of a file as UTF-8 with the file's own line ends, and the format to encode it with. Decoding and encoding
/// again gives the same bytes for every input: the encoding is UTF-8 or UTF-16 by byte order mark if the bytes are
/// valid in it, otherwise UTF-8 if they are valid, otherwise Windows-1252 with its five undefined bytes kept as control
/// characters.
struct DecodedText {
    QByteArray utf8;
    TextFormat format;
    /// Keeps the file's mapping alive if `utf8` points into it; no copy of `utf8` may outlive it.
    std::shared_ptr<const void> owner = {};
};

/// If the file is UTF-8 and the buffer isn't shared, that buffer itself is returned in the result.
DecodedText decodeText(QByteArray bytes);

/// The bytes for the file; line ends are not converted. UTF-8 isn't checked. Fails with Code::Unencodable, naming the
/// first character that can't be encoded and its 1-based line; also if decoding the bytes would give a different text.
Result<QByteArray> encodeText(QByteArrayView utf8, const TextFormat &format);

/// Windows-1252 as UTF-8; no byte is lost.
QByteArray windows1252ToUtf8(QByteArrayView bytes);

/// The byte order mark of the format, or nothing if it has none.
QByteArrayView byteOrderMark(const TextFormat &format);

/// The common name of an encoding: "UTF-8", "UTF-16LE", "UTF-16BE", "Windows-1252".
QString encodingName(Encoding encoding);

/// In bytes. Larger files are refused with a message.
constexpr qint64 maximumFileSize = 256LL * 1024 * 1024;

} // namespace zephira
