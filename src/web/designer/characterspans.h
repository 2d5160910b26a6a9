// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// Whether references such as "&eacute;" count in a text, and by which rule.
enum class References { None, InText, InValue };

/// A character of a page's text and where it stands: positions are 0-based UTF-16 code units in the text, `end` is
/// exclusive. A reference and a line end of two characters are one character.
struct CharacterSpan {
    char32_t character = 0;
    qsizetype begin = 0;
    qsizetype end = 0;
};

/// The character that begins at that place, as a browser reads it. References that only HTML 5 has are taken for plain
/// text.
CharacterSpan characterAt(QStringView text, qsizetype place, References references);

/// All characters of a text.
std::vector<CharacterSpan> characterSpans(QStringView text, References references);

/// Appends the text as a browser reads it, with LF as line end.
void appendRead(QStringView text, References references, QString &read);

} // namespace zephira
