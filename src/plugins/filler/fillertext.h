// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// How many paragraphs of filler text there are.
int fillerParagraphs();

/// A paragraph element of plain sentences, in lines of a readable length with CR LF, to see how a page looks before its text is written. Numbers
/// count from 0; after the last paragraph comes the first one again.
QString fillerParagraph(int number);

} // namespace zephira
