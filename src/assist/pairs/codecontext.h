// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/pairs/commenttext.h"
#include "assist/pairs/pairtext.h"
#include "syntax/codeplace.h"

namespace zephira {

struct AppContext;
class CodeMax;

/// What stands at a byte position. Nothing if the text isn't coloured so far, or the part of the line before it is longer
/// than `reach`; a command that may take its time gives no limit.
std::optional<CodePlace> placeAt(CodeMax &rt, qsizetype position, qsizetype reach = 64 * 1024);
/// The same at any cost. Text without a language is code without comments and strings.
CodePlace surePlaceAt(CodeMax &rt, qsizetype position);

/// Whether the text has tags: HTML or XML.
bool hasTags(const CodeMax &rt);
/// How the tags of such a text are read.
MarkupRules markupRules(const CodeMax &rt);
/// Whether a tag can begin at a byte position.
bool isTagPlace(CodeMax &rt, qsizetype position);
/// The start tag that ends at a byte position, with the position at which it begins; nothing if it is longer than
/// pairReach, or has no content.
std::optional<StartTag> startTagEndingAt(CodeMax &rt, qsizetype position);

/// How comments are written at a place; both empty if there are none.
CommentMarks commentMarksAt(CodeMax &rt, const AppContext &context, const CodePlace &place);

} // namespace zephira
