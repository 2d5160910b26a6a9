// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace zephira {

/// The markup without the start and end tags of font and center elements; their content stays. The markup is what Tidy
/// writes for a parsed document. Nothing is removed from comments, declarations, instructions, server code, scripts,
/// styles and values in quotes.
QByteArray withoutFontTags(QByteArrayView markup);

} // namespace zephira
