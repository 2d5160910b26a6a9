// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QString>

namespace zephira {

class FileStore;

/// How a page made of a text file looks. What is empty gets a default.
struct TextPageLook {
    QString title = {};
    QString backColour = {};
    QString textColour = {};
};

/// A page in UTF-8 that has each line of a text on a `<BR>` line of its own. Nothing in the text or the values is
/// escaped or quoted. The text, which is UTF-8, may have any line ends; a line end at its end starts no other line.
QByteArray textPage(QByteArrayView text, const TextPageLook &look);

/// Reads a text file, in its own encoding, and writes the page. Fails if the output is the input itself, and leaves both
/// files as they are if anything fails.
Result<void> writeTextPage(FileStore &files, const QString &input, const QString &output, const TextPageLook &look);

} // namespace zephira
