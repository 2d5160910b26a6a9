// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/codeplace.h"

#include "syntax/tagstate.h"

namespace zephira {

namespace {

CodePlace::Language languageOf(TagState::Code code)
{
    switch (code) {
    case TagState::Code::JavaScript:
        return CodePlace::Language::JavaScript;
    case TagState::Code::VbScript:
        return CodePlace::Language::VbScript;
    case TagState::Code::StyleSheet:
        return CodePlace::Language::StyleSheet;
    case TagState::Code::Php:
        return CodePlace::Language::Php;
    case TagState::Code::None:
    case TagState::Code::Plain:
        break;
    }
    return CodePlace::Language::Unknown;
}

CodePlace::Part partOf(TagState::Mode mode, TagState::Value value)
{
    switch (mode) {
    case TagState::Mode::Comment:
        return CodePlace::Part::Comment;
    case TagState::Mode::Tag:
        return value == TagState::Value::None ? CodePlace::Part::Tag : CodePlace::Part::Value;
    case TagState::Mode::Declaration:
    case TagState::Mode::Subset:
        return CodePlace::Part::Tag;
    case TagState::Mode::Text:
    case TagState::Mode::Cdata:
    case TagState::Mode::Block:
        break;
    }
    return CodePlace::Part::Content;
}

} // namespace

CodePlace placeInMarkup(quint32 bits, SyntaxStyle last)
{
    const TagState state = TagState::unpacked(bits);
    CodePlace place = placeInCode(last);
    if (state.server != TagState::Code::None) {
        place.language = languageOf(state.server);
        place.inServerBlock = true;
        if (state.serverDetail == serverComment)
            place.part = CodePlace::Part::Comment;
    } else if (state.mode == TagState::Mode::Block) {
        place.language = languageOf(state.code);
    } else {
        place.language = CodePlace::Language::Markup;
        place.part = partOf(state.mode, state.value);
    }
    return place;
}

CodePlace placeInCode(SyntaxStyle last)
{
    if (last == SyntaxStyle::Comment)
        return {CodePlace::Language::Own, CodePlace::Part::Comment};
    if (last == SyntaxStyle::String)
        return {CodePlace::Language::Own, CodePlace::Part::String};
    return {};
}

} // namespace zephira
