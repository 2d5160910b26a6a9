// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"
#include "syntax/tagstate.h"

#include <QByteArrayView>

#include <array>

namespace zephira {

/// The roles that a byte can have in the names of a tag.
namespace tagbyte {
constexpr Byte inName = 1; ///< element names
constexpr Byte beginsName = 2;
constexpr Byte inAttribute = 4; ///< attribute names, and anything else that isn't a delimiter
constexpr Byte blank = 8;
} // namespace tagbyte

consteval std::array<Byte, 256> makeTagBytes()
{
    std::array<Byte, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte >= 0x80;
        const bool digit = byte >= '0' && byte <= '9';
        const bool begins = letter || byte == '_' || byte == ':';
        const bool blank = byte == ' ' || byte == '\t' || byte == '\f' || byte == '\v';
        const bool sign =
            blank || byte == '"' || byte == '\'' || byte == '<' || byte == '>' || byte == '/' || byte == '=';
        table[byte] = static_cast<Byte>((begins || digit || byte == '-' || byte == '.' ? tagbyte::inName : 0)
                                        | (begins ? tagbyte::beginsName : 0) | (sign ? 0 : tagbyte::inAttribute)
                                        | (blank ? tagbyte::blank : 0));
    }
    return table;
}

inline constexpr std::array<Byte, 256> tagBytes = makeTagBytes();

/// The values of names in the dictionaries, which tell their special meaning.
constexpr Byte knownName = 1;
constexpr Byte scriptElement = 2;
constexpr Byte styleElement = 4;
constexpr Byte languageAttribute = 8;

/// The language of a script, by the value of its type or language attribute. None means that the content is markup.
TagState::Code scriptCode(QByteArrayView value);

/// Whether a comment that begins with "<!--#" and this word is a server-side directive.
bool isServerDirective(QByteArrayView word);

/// Whether a word has a meaning of its own in a document type declaration.
bool isDeclarationWord(QByteArrayView word);

/// Whether the text after "<%@" says that the page's server blocks are JavaScript; `current` if it names no language.
bool saysServerScript(QByteArrayView directive, bool current);

} // namespace zephira
