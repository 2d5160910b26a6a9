// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The definition of one language as it is registered with the editing control. A list is one string, its entries
/// separated by a line feed; blanks belong to an entry, and an entry that stands twice counts once.
///
/// An entry may be a word ("while"), a sign ("=") or a mixture ("#include", "End Sub"). A word is only found whole. A
/// blank at an entry's end asks for that blank in the text: "# " as a comment leaves "#x" alone.
struct CodeMaxLanguage {
    bool CaseSensitive = false;
    QString Keywords = {};
    QString Operators = {};
    QString SingleLineComments = {};
    /// Beginnings and ends of comments; the Nth beginning goes with the Nth end.
    QString MultiLineComments1 = {};
    QString MultiLineComments2 = {};
    /// What opens and what closes a block that can be folded.
    QString ScopeKeywords1 = {};
    QString ScopeKeywords2 = {};
    QString StringDelims = {};
    /// One character; inside a string it takes the next character's meaning away, a line end's included.
    QString EscapeChar = {};
    QString TerminatorChar = {};
    /// Names in tags, for the tag-aware style. "data-*" stands for every name that begins so; with an empty list every
    /// name is known. Entities are listed without "&" and ";".
    QString TagElementNames = {};
    QString TagAttributeNames = {};
    QString TagEntities = {};
    /// 0 procedural, 1 tag-aware.
    int Style = 0;

    friend bool operator==(const CodeMaxLanguage &, const CodeMaxLanguage &) = default;
};

} // namespace zephira
