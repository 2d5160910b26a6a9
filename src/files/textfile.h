// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/lineends.h"

#include <QByteArray>

namespace zephira {

enum class Encoding { Utf8, Utf16LE, Utf16BE, Windows1252 };

/// How a text stands in its file.
struct TextFormat {
    Encoding encoding = Encoding::Utf8;
    bool byteOrderMark = false;
    LineEnds lineEnds = LineEnds::CrLf;

    friend bool operator==(const TextFormat &, const TextFormat &) = default;
};

/// The text of a file as UTF-8 with the file's own line ends, and the format that takes it back. Decoding and encoding
/// again gives the same bytes for every input whatever: UTF-8 or UTF-16 by byte order mark where the bytes are valid in
/// it, else UTF-8 if they are valid, else Windows-1252 with its five undefined bytes kept as control characters.
struct DecodedText {
    QByteArray utf8;
    TextFormat format;
    /// What `utf8` stands in, where that is the file itself; no copy of `utf8` may outlive it.
    std::shared_ptr<const void> owner = {};
};

/// The buffer that was given is the one that comes back, if the file is UTF-8 and nobody else holds it.
DecodedText decodeText(QByteArray bytes);

/// The bytes that go to the file; the line ends are taken as they are. UTF-8 passes unexamined. Fails with
/// Code::Unencodable, naming the first character (and its 1-based line) that the encoding can't hold; and also where the
/// bytes would be another text when they are read again.
Result<QByteArray> encodeText(QByteArrayView utf8, const TextFormat &format);

/// Windows-1252 as UTF-8; no byte is lost.
QByteArray windows1252ToUtf8(QByteArrayView bytes);

/// What stands in front of a text in this format: the byte order mark, or nothing.
QByteArrayView byteOrderMark(const TextFormat &format);

/// The name of an encoding as a person knows it: "UTF-8", "UTF-16LE", "UTF-16BE", "Windows-1252".
QString encodingName(Encoding encoding);

/// Files above this many bytes are refused with a message.
constexpr qint64 maximumFileSize = 256LL * 1024 * 1024;

} // namespace zephira
