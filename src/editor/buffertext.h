// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/lineends.h"

#include <QByteArray>
#include <QString>

#include <span>

namespace zephira {

/// The program's view of a part of the buffer, which comes in pieces: UTF-16, CR LF at every line end. Mixed line ends are
/// kept.
QString fromBuffer(std::span<const QByteArrayView> utf8Pieces, LineEnds lineEnds);
QString fromBuffer(QByteArrayView utf8, LineEnds lineEnds);

/// A text of the program as the buffer holds it: UTF-8 with every line end of the given kind. Mixed keeps what it gets.
QByteArray toBuffer(const QString &text, LineEnds lineEnds);

/// The kind of line end that occurs most often; of two that are equally frequent, the one first in the enumeration.
LineEnds mostFrequentLineEnd(QByteArrayView utf8);

/// Length in UTF-16 code units of valid UTF-8.
qsizetype utf16Length(QByteArrayView utf8);

/// The byte offset of a UTF-16 offset; behind the text's end, its length. An offset inside a surrogate pair gives the
/// pair's beginning.
qsizetype byteOffset(QByteArrayView utf8, qsizetype utf16);

} // namespace zephira
