// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <vector>

namespace zephira {

/// What a run of characters in a page's source is.
enum class PieceKind {
    Text,      ///< between tags; character references count
    Markup,    ///< angle brackets, names, blanks and quotes of tags
    Value,     ///< an attribute's value without its quotes; character references count
    PlainText, ///< inside elements that hold text alone, such as title; character references count
    RawText,   ///< inside script, style and their like
    Comment,   ///< comments, and declarations that a browser takes for one
    Doctype,
    ServerText,  ///< server code, or a tag that is the server's, where text could stand
    ServerTag,   ///< server code inside a tag, where an attribute or a part of its name could stand
    ServerPlain, ///< server code inside a value, or inside text that holds no tags
};

/// A run of characters: positions are 0-based UTF-16 code units, `end` is behind the last one.
struct PagePiece {
    PieceKind kind = PieceKind::Text;
    qsizetype begin = 0;
    qsizetype end = 0;

    QStringView in(QStringView source) const { return source.sliced(begin, end - begin); }
    friend bool operator==(const PagePiece &, const PagePiece &) = default;
};

/// Cuts a page into pieces as a browser reads it, except that server code is found first: ASP and PHP blocks, includes,
/// ColdFusion tags, and tags with a colon in their name. The pieces follow each other without a gap; none but values is
/// empty. Whatever the text, nothing fails, and the time is in proportion to its length. A tag whose name is made by
/// server code belongs to the server as a whole.
std::vector<PagePiece> scanPage(QStringView source);

/// The name of the tag that a Markup piece begins, as it is written; empty for one that begins none. `isEnd` tells
/// whether it is an end tag.
QStringView tagNameOf(QStringView markup, bool *isEnd = nullptr);

} // namespace zephira
