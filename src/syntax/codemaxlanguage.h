// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The definition of one language as it is registered with the editing control. A list is one string with entries
/// separated by line feeds; spaces belong to the entry, and a duplicate entry counts once.
///
/// An entry may be a word ("while"), a symbol ("=") or a mixture ("#include", "End Sub"). Only whole words match. A
/// trailing space in an entry must also occur in the text: the comment sign "# " doesn't match "#x".
struct CodeMaxLanguage {
    bool CaseSensitive = false;
    QString Keywords = {};
    QString Operators = {};
    QString SingleLineComments = {};
    /// Beginnings and ends of comments; the Nth beginning goes with the Nth end.
    QString MultiLineComments1 = {};
    QString MultiLineComments2 = {};
    /// The openings and closings of foldable blocks.
    QString ScopeKeywords1 = {};
    QString ScopeKeywords2 = {};
    QString StringDelims = {};
    /// One character; inside a string it escapes the next character, including a line end.
    QString EscapeChar = {};
    QString TerminatorChar = {};
    /// Names in tags, for the tag-aware style. "data-*" matches every name with that prefix; with an empty list every
    /// name is known. Entities are listed without "&" and ";".
    QString TagElementNames = {};
    QString TagAttributeNames = {};
    QString TagEntities = {};
    /// 0 procedural, 1 tag-aware.
    int Style = 0;

    friend bool operator==(const CodeMaxLanguage &, const CodeMaxLanguage &) = default;
};

} // namespace zephira
