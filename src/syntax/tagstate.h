// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"

#include <algorithm>

namespace zephira {

/// The state of the tag-aware lexer: in the outer text and also in a server block that interrupts it. All of it fits
/// into the 32 bits of a line state.
struct TagState {
    enum class Mode : Byte { Text, Tag, Comment, Declaration, Subset, Cdata, Block };
    /// The languages of scripts, style sheets and server blocks.
    enum class Code : Byte { None, JavaScript, VbScript, StyleSheet, Php, Plain };
    enum class TagKind : Byte { Opening, Closing, Instruction, Directive };
    /// The delimiter of the value being read; the quotes are the first two string delimiters.
    enum class Value : Byte { None, FirstQuote, SecondQuote, Unquoted };

    Mode mode = Mode::Text;
    Code code = Code::None;    ///< of the block; in a tag, of the block that the tag opens
    Code server = Code::None;  ///< the server block that interrupts the outer text
    bool serverScript = false; ///< server blocks are JavaScript, as declared by the page
    quint32 serverDetail = 0;
    /// In a block: the state of its lexer.
    quint32 detail = 0;

    // In a tag or a declaration:
    TagKind tag = TagKind::Opening;
    Value value = Value::None;
    bool behindEquals = false;
    bool namesLanguage = false; ///< the attribute names the language of the script
    // In a comment:
    Byte pair = 0;
    Byte nesting = 0; ///< for comments that nest: the number of open inner comments plus 1
    // Inside the brackets of a document type:
    bool inSubset = false;

    static TagState unpacked(quint32 bits)
    {
        TagState s;
        s.mode = static_cast<Mode>(std::min(bits & 15u, static_cast<quint32>(Mode::Block)));
        s.code = static_cast<Code>(std::min(bits >> 4 & 7u, static_cast<quint32>(Code::Plain)));
        const quint32 detail = bits >> 7 & detailMask;
        if (s.mode == Mode::Block) {
            s.detail = detail;
        } else if (s.mode == Mode::Comment) {
            s.pair = static_cast<Byte>(detail & 7u);
            s.nesting = static_cast<Byte>(detail >> 3 & 127u);
        } else {
            s.tag = static_cast<TagKind>(detail & 3u);
            s.value = static_cast<Value>(detail >> 2 & 3u);
            s.behindEquals = (detail >> 4 & 1u) != 0;
            s.namesLanguage = (detail >> 5 & 1u) != 0;
        }
        if (s.mode != Mode::Block)
            s.inSubset = (detail >> 10 & 1u) != 0;
        s.server = servers[bits >> 18 & 3u];
        s.serverDetail = bits >> 20 & detailMask;
        s.serverScript = bits >> 31 != 0;
        return s;
    }

    quint32 packed() const
    {
        quint32 inner = detail & detailMask;
        if (mode == Mode::Comment)
            inner = pair | quint32{nesting} << 3;
        else if (mode != Mode::Block)
            inner = static_cast<quint32>(tag) | static_cast<quint32>(value) << 2 | quint32{behindEquals} << 4
                | quint32{namesLanguage} << 5;
        if (mode != Mode::Block)
            inner |= quint32{inSubset} << 10;
        const auto serverIndex = std::ranges::find(servers, server) - std::begin(servers);
        return static_cast<quint32>(mode) | static_cast<quint32>(code) << 4 | inner << 7
            | static_cast<quint32>(serverIndex) << 18 | (serverDetail & detailMask) << 20 | quint32{serverScript} << 31;
    }

    /// Switches to another mode and resets the state of the previous one.
    void enter(Mode next, Code nextCode = Code::None)
    {
        mode = next;
        code = nextCode;
        detail = 0;
        tag = TagKind::Opening;
        value = Value::None;
        behindEquals = namesLanguage = false;
        pair = nesting = 0;
    }

private:
    static constexpr quint32 detailMask = (1u << embeddedStateBits) - 1;
    static constexpr Code servers[] = {Code::None, Code::VbScript, Code::JavaScript, Code::Php};
};

/// `serverDetail` of a comment between server block delimiters.
constexpr quint32 serverComment = (1u << embeddedStateBits) - 1;

/// The maximum nesting of comments that is counted.
constexpr Byte deepestComment = 127;

} // namespace zephira
