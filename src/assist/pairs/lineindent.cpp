// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/lineindent.h"

#include "assist/pairs/codecontext.h"
#include "assist/pairs/elements.h"
#include "assist/pairs/pairtext.h"
#include "assist/textedits.h"
#include "editor/codemax.h"
#include "syntax/syntaxstyle.h"

#include <algorithm>
#include <optional>

namespace zephira {

namespace {

using Language = CodePlace::Language;
using Part = CodePlace::Part;

/// How many bytes of a line are looked at for its indentation.
constexpr qsizetype longestIndent = 4096;

QByteArrayView beginOfLine(const SciEngine &engine, qsizetype position)
{
    const qsizetype line = engine.lineOf(position);
    const qsizetype start = engine.lineStart(line);
    return engine.bytes(start, std::min(engine.lineEnd(line), start + longestIndent));
}

bool isCode(const CodePlace &place)
{
    return place.language != Language::Markup && place.part == Part::Content;
}

/// Where the brace is that a "}" at a position ends; -1 if it isn't near.
qsizetype braceEndedAt(CodeMax &rt, qsizetype position)
{
    const auto place = placeAt(rt, position);
    if (!place || !isCode(*place))
        return -1;
    const SciEngine &engine = rt.engine();
    const qsizetype from = std::max<qsizetype>(0, position - pairReach);
    const auto counts = [&](qsizetype offset) {
        const auto style = static_cast<SyntaxStyle>(engine.styleAt(from + offset));
        return style != SyntaxStyle::Comment && style != SyntaxStyle::String;
    };
    const qsizetype brace = openBraceBefore(engine.bytes(from, position), counts);
    return brace < 0 ? -1 : from + brace;
}

/// Where the element begins that the end tag before a position ends; -1 if there is none.
qsizetype elementEndedBefore(const CodeMax &rt, Elements &elements, qsizetype position)
{
    const SciEngine &engine = rt.engine();
    const qsizetype lineStart = engine.lineStart(engine.lineOf(position));
    const QByteArrayView before = engine.bytes(std::max(lineStart, position - longestIndent), position);
    const QByteArray name = endTagBefore(before);
    if (name.isEmpty() || keepsBlanks(name))
        return -1;
    const auto around = elements.soon(position - 1);
    if (!around)
        return -1;
    const bool isXml = elements.rules() == MarkupRules::Xml;
    const auto ended = std::find_if(around->rbegin(), around->rend(), [&](const ElementTag &each) {
        return name.compare(each.name, isXml ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0;
    });
    return ended == around->rend() ? -1 : ended->begin;
}

} // namespace

LineBreak lineBreakAt(CodeMax &rt, qsizetype start, qsizetype end)
{
    const SciEngine &engine = rt.engine();
    const qsizetype lineStart = engine.lineStart(engine.lineOf(start));
    const QByteArrayView line = engine.bytes(std::max(lineStart, start - pairReach), start);
    qsizetype last = line.size();
    while (last > 0 && (line[last - 1] == ' ' || line[last - 1] == '\t'))
        --last;
    const char opener = last > 0 ? line[last - 1] : '\0';
    if (opener != '{' && opener != '>')
        return LineBreak::Plain;
    const qsizetype behind = start - (line.size() - last);
    const auto place = placeAt(rt, behind);
    if (!place)
        return LineBreak::Plain;
    if (opener == '{') {
        if (!isCode(*place))
            return LineBreak::Plain;
        return engine.bytes(end, std::min(end + 1, engine.length())) == QByteArrayView("}") ? LineBreak::Between
                                                                                            : LineBreak::Deeper;
    }
    const auto tag = hasTags(rt) ? startTagEndingAt(rt, behind) : std::nullopt;
    if (!tag || keepsBlanks(tag->name))
        return LineBreak::Plain;
    const QByteArrayView next = engine.bytes(end, std::min(end + tag->name.size() + 3, engine.length()));
    return beginsWithEndTag(next, tag->name, markupRules(rt)) ? LineBreak::Between : LineBreak::Deeper;
}

std::optional<LineIndent> alignedWith(const CodeMax &rt, qsizetype ender, qsizetype opener)
{
    const SciEngine &engine = rt.engine();
    const qsizetype line = engine.lineOf(ender);
    if (!rt.options().autoIndent || engine.lineOf(opener) == line)
        return {};
    const qsizetype start = engine.lineStart(line);
    const QByteArray wanted = indentationOf(beginOfLine(engine, opener)).toByteArray();
    if (ender - start > longestIndent || indentationOf(engine.bytes(start, ender)).size() != ender - start
        || engine.bytes(start, ender) == QByteArrayView(wanted))
        return {};
    return LineIndent{start, ender, wanted};
}

void alignTypedEnds(CodeMax &rt, Elements &elements, char typed)
{
    const bool isTag = typed == '>';
    if (!rt.options().autoIndent || (isTag && !hasTags(rt)))
        return;
    TextSelections selections = textSelections(rt.engine());
    TextEdits edits;
    for (const TextSelection &each : selections.all) {
        if (!each.isEmpty() || each.caret == 0)
            continue;
        const SciEngine &engine = rt.engine();
        const qsizetype lineStart = engine.lineStart(engine.lineOf(each.caret));
        const qsizetype ender = lineStart + indentationOf(beginOfLine(engine, each.caret)).size();
        const qsizetype size = each.caret - ender;
        const bool isFirst = isTag
            ? size > 0 && size <= longestIndent && engine.bytes(ender, each.caret).lastIndexOf('<') == 0
            : size == 1;
        if (!isFirst || (isTag && !isTagPlace(rt, ender)))
            continue;
        const qsizetype opener = isTag ? elementEndedBefore(rt, elements, each.caret) : braceEndedAt(rt, ender);
        if (opener < 0)
            continue;
        // What was typed is replaced too, so that the caret is behind it again when that is undone.
        if (const auto indent = alignedWith(rt, ender, opener))
            edits.replace(engine, indent->start, each.caret,
                          indent->text + engine.bytes(indent->end, each.caret).toByteArray());
    }
    if (edits.isEmpty())
        return;
    for (TextSelection &each : selections.all)
        each = {edits.placeOf(each.anchor), edits.placeOf(each.caret)};
    edits.make(rt, selections);
}

} // namespace zephira
