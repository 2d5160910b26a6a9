// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "controls/files/filestore.h"
#include "controls/result.h"

#include <QByteArray>
#include <QString>

namespace zephira {

enum class Encoding { Utf8, Utf16LE, Utf16BE, Windows1252 };

/// Line ends of a text: one kind throughout, or mixed. A text without a line end counts as CR LF.
enum class LineEnds { CrLf, Lf, Cr, Mixed };

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
};

DecodedText decodeText(QByteArray bytes);
LineEnds lineEndsOf(QByteArrayView utf8);

/// The bytes that go to the file. Fails with Code::Unencodable, naming the first character (and its 1-based line) that
/// the encoding can't hold.
Result<QByteArray> encodeText(QByteArrayView utf8, const TextFormat &format);

/// Files above this many bytes are refused with a message.
constexpr qint64 maximumFileSize = 256LL * 1024 * 1024;

} // namespace zephira
