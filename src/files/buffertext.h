// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/lineends.h"

#include <QByteArray>
#include <QString>

#include <span>

namespace zephira {

/// Converts a part of the buffer, given in pieces, to the program's form: UTF-16 with CR LF line ends. Mixed line ends
/// are kept.
QString fromBuffer(std::span<const QByteArrayView> utf8Pieces, LineEnds lineEnds);
QString fromBuffer(QByteArrayView utf8, LineEnds lineEnds);

/// Converts text from the program to the buffer's form: UTF-8 with line ends of the given kind; Mixed leaves them
/// unchanged.
QByteArray toBuffer(const QString &text, LineEnds lineEnds);

/// The most frequent kind of line end; of equally frequent kinds, the first in the enumeration.
LineEnds mostFrequentLineEnd(QByteArrayView utf8);

/// The length of valid UTF-8 in UTF-16 code units.
qsizetype utf16Length(QByteArrayView utf8);

/// The byte offset of a UTF-16 offset; past the end of the text, its length in bytes. An offset inside a surrogate pair
/// gives the beginning of the pair.
qsizetype byteOffset(QByteArrayView utf8, qsizetype utf16);

} // namespace zephira
