// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"

namespace zephira {

/// What stands at a place of a text.
struct CodePlace {
    enum class Language {
        Own, ///< the text's, which has no tags
        Markup,
        JavaScript,
        VbScript,
        StyleSheet,
        Php,
        Unknown, ///< a script in another language
    };
    /// In markup, Content is what is between the tags; in code, everything but comments and strings.
    enum class Part { Content, Tag, Value, Comment, String };

    Language language = Language::Own;
    Part part = Part::Content;
    bool inServerBlock = false;

    friend bool operator==(const CodePlace &, const CodePlace &) = default;
};

/// The place behind a text that was coloured from a line start on, given the state behind it and the style of its last
/// byte. What follows a comment or a string at once counts as part of it.
CodePlace placeInMarkup(quint32 state, SyntaxStyle last);
CodePlace placeInCode(SyntaxStyle last);

} // namespace zephira
