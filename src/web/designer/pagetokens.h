// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/characterspans.h"

#include <QHash>
#include <QString>
#include <QStringView>

#include <deque>
#include <unordered_map>
#include <vector>

namespace zephira {

enum class TokenKind : unsigned char {
    Text, ///< a word, or a run of blanks and line ends
    StartTag,
    EndTag,
    Comment, ///< also a declaration, and the element that represents a mark
};

/// A piece of a page for comparing pages: positions are 0-based UTF-16 code units, `end` is exclusive.
struct PageToken {
    qsizetype begin = 0;
    qsizetype end = 0;
    /// The same for tokens that a browser reads alike; see TokenKeys.
    int key = 0;
    TokenKind kind = TokenKind::Text;
    /// For text: whether references count in it.
    References references = References::None;
    /// For a start tag: whether its element has no end tag.
    bool isVoid = false;

    QStringView in(QStringView page) const { return page.sliced(begin, end - begin); }
};

/// Gives equal texts the same number, from 0 without gaps. The texts are copied.
class TokenKeys
{
public:
    int keyOf(QStringView text);
    int count() const { return static_cast<int>(m_keys.size()); }

private:
    struct Hash {
        size_t operator()(QStringView text) const { return qHash(text); }
    };
    std::deque<QString> m_texts;
    std::unordered_map<QStringView, int, Hash> m_keys;
};

/// Cuts a page without server code, or with marks in its place, into tokens as a browser reads it. The tokens are
/// contiguous. Tags are alike if they have the same name and the same attributes in the same order, however they are
/// written; texts, if they have the same characters, however those are spelled; line ends are all alike. The element
/// that represents a mark is like the comment with that mark. It never fails, and takes time proportional to the text's
/// length.
std::vector<PageToken> pageTokens(QStringView page, TokenKeys &keys);

} // namespace zephira
