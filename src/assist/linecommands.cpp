// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/linecommands.h"

#include "assist/lineblocks.h"
#include "assist/linetext.h"
#include "assist/texthelpers.h"
#include "editor/codemax.h"

#include <algorithm>

namespace zephira {

namespace {

/// Puts what `make` returns in the place of the text of each block, without the end of its last line. The number of lines
/// stays, and so do the lines and columns of what is selected.
template<typename Make>
void replaceBlocks(CodeMax &rt, const std::vector<LineBlock> &blocks, const TextSelections &selections, Make make)
{
    const SciEngine &engine = rt.engine();
    std::vector<std::pair<LinePlace, LinePlace>> places;
    for (const TextSelection &each : selections.all)
        places.emplace_back(linePlace(engine, each.anchor), linePlace(engine, each.caret));
    TextEdits edits;
    for (const LineBlock &block : blocks) {
        const qsizetype start = engine.lineStart(block.first);
        const qsizetype end = engine.lineEnd(block.last);
        edits.replace(engine, start, end, make(engine.bytes(start, end)));
    }
    edits.make(rt, [&] {
        TextSelections after{{}, selections.main};
        for (const auto &[anchor, caret] : places)
            after.all.push_back({positionOf(engine, anchor), positionOf(engine, caret)});
        return after;
    });
}

/// The bytes of a block with the end of its last line.
std::pair<qsizetype, qsizetype> rangeOf(const SciEngine &engine, const LineBlock &block)
{
    return {engine.lineStart(block.first), engine.lineStart(block.last + 1)};
}

/// Exchanges each block with the line above or below it.
void moveLines(CodeMax &rt, bool up)
{
    const SciEngine &engine = rt.engine();
    TextSelections selections = textSelections(engine);
    const std::vector<LineBlock> blocks = lineBlocks(engine, selections);
    if (rt.isReadOnly() || (up ? blocks.front().first == 0 : blocks.back().last + 1 >= engine.lineCount()))
        return;
    TextEdits edits;
    std::size_t next = 0;
    for (const LineBlock &block : blocks) {
        const auto [start, end] = rangeOf(engine, block);
        const qsizetype other = up ? block.first - 1 : block.last + 1;
        const auto [otherStart, otherEnd] = rangeOf(engine, {other, other});
        const QByteArrayView lines = engine.bytes(std::min(start, otherStart), std::max(end, otherEnd));
        const qsizetype cut = up ? start - otherStart : end - start;
        edits.replace(engine, std::min(start, otherStart), std::max(end, otherEnd),
                      swappedLines(lines.first(cut), lines.sliced(cut)));
        const qsizetype lastPlace = engine.lineEnd(block.last);
        // The last line's end stays the last one, so a block that moves down comes before that.
        const qsizetype endSize = otherEnd - engine.lineEnd(other);
        const qsizetype moved = up ? otherStart - start : lines.size() - (lastPlace - start) - endSize;
        for (; next < selections.all.size() && selections.all[next].start() <= lastPlace; ++next) {
            for (qsizetype *place : {&selections.all[next].anchor, &selections.all[next].caret})
                *place = std::min(*place, lastPlace) + moved;
        }
    }
    edits.make(rt, selections);
}

} // namespace

void joinLines(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    if (rt.isReadOnly())
        return;
    const SciEngine &engine = rt.engine();
    const TextSelections selections = textSelections(engine);
    TextEdits edits;
    TextSelections after;
    for (LineBlock block : lineBlocks(engine, selections)) {
        if (block.first == block.last && block.last + 1 < engine.lineCount())
            ++block.last;
        const qsizetype start = engine.lineStart(block.first);
        const qsizetype end = engine.lineEnd(block.last);
        const QByteArray joined = joinedLines(engine.bytes(start, end));
        const qsizetype moved = edits.moved(start);
        const qsizetype behind = moved + joined.size();
        after.all.push_back({isAnySelected(selections) ? moved : behind, behind});
        edits.replace(engine, start, end, joined);
    }
    after.main = after.all.size() - 1;
    edits.make(rt, after);
}

void removeTrailingBlanks(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    if (rt.isReadOnly())
        return;
    const TextSelections selections = textSelections(rt.engine());
    std::vector<LineBlock> blocks = selectedBlocks(rt.engine(), selections);
    if (!isAnySelected(selections))
        blocks = {{0, rt.engine().lineCount() - 1}};
    replaceBlocks(rt, blocks, selections, withoutTrailingBlanks);
}

void sortLines(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    if (rt.isReadOnly())
        return;
    const TextSelections selections = textSelections(rt.engine());
    replaceBlocks(rt, selectedBlocks(rt.engine(), selections), selections,
                  [](QByteArrayView lines) { return sortedLines(lines, QLocale()); });
}

/// The carets stay in their columns, in the lines below.
void deleteLines(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    if (rt.isReadOnly())
        return;
    const SciEngine &engine = rt.engine();
    const TextSelections selections = textSelections(engine);
    TextEdits edits;
    std::vector<LinePlace> places;
    qsizetype removed = 0;
    for (const LineBlock &block : lineBlocks(engine, selections)) {
        auto [start, end] = rangeOf(engine, block);
        const auto caret = std::ranges::find_if(
            selections.all, [&](const TextSelection &each) { return engine.lineOf(each.start()) >= block.first; });
        places.push_back({block.first - removed, linePlace(engine, caret->caret).column});
        removed += block.last - block.first + 1;
        // Without the last line, the one before it has no end.
        if (end == engine.length() && engine.lineEnd(block.last) == end && block.first > 0)
            start = engine.lineEnd(block.first - 1);
        edits.replace(engine, start, end, {});
    }
    edits.make(rt, [&] {
        TextSelections after{{}, places.size() - 1};
        for (const LinePlace &place : places) {
            const qsizetype position = positionOf(engine, place);
            after.all.push_back({position, position});
        }
        return after;
    });
}

void duplicate(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    if (rt.isReadOnly())
        return;
    const SciEngine &engine = rt.engine();
    TextSelections selections = textSelections(engine);
    const bool isText = isAnySelected(selections);
    TextEdits edits;
    qsizetype lineDone = -1;
    for (TextSelection &each : selections.all) {
        const qsizetype line = engine.lineOf(each.caret);
        // Several carets in a line make one copy of it.
        if (isText || line != lineDone) {
            const qsizetype end = isText ? each.end() : engine.lineEnd(line);
            const QByteArray lineEnd = isText ? QByteArray() : typedLineEnd(engine);
            const qsizetype start = isText ? each.start() : engine.lineStart(line);
            edits.replace(engine, end, end, lineEnd + engine.bytes(start, end).toByteArray());
        }
        lineDone = line;
        each.anchor = edits.moved(each.anchor);
        each.caret = edits.moved(each.caret);
    }
    edits.make(rt, selections);
}

void moveLinesUp(TextHelpers &helpers)
{
    moveLines(helpers.rt(), true);
}

void moveLinesDown(TextHelpers &helpers)
{
    moveLines(helpers.rt(), false);
}

} // namespace zephira
