// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/typingrules.h"

#include <QByteArray>

#include <optional>

namespace zephira {

class CodeMax;
class Elements;

/// How far a line is indented that is broken where the bytes from start up to end are, which go away: further behind a
/// start tag or an opening brace, and over two lines before what ends it.
LineBreak lineBreakAt(CodeMax &rt, qsizetype start, qsizetype end);

/// Other blanks at the beginning of a line, which are the bytes from start up to end so far.
struct LineIndent {
    qsizetype start = 0;
    qsizetype end = 0;
    QByteArray text;
};

/// The indentation that aligns a line with the line of what it ends. Nothing if something stands before the end, if both
/// are in one line, if it is indented so already, or if lines aren't indented by themselves.
std::optional<LineIndent> alignedWith(const CodeMax &rt, qsizetype ender, qsizetype opener);

/// To be called when a "}" or the ">" of an end tag was typed: aligns the lines of all carets that end something.
void alignTypedEnds(CodeMax &rt, Elements &elements, char typed);

} // namespace zephira
