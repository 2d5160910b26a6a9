// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/lineblocks.h"

#include "editor/sciengine.h"

#include <algorithm>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

} // namespace

std::vector<LineBlock> lineBlocks(const SciEngine &engine, const TextSelections &selections)
{
    std::vector<LineBlock> blocks;
    for (const TextSelection &each : selections.all) {
        LineBlock block{engine.lineOf(each.start()), engine.lineOf(each.end())};
        if (block.last > block.first && engine.lineStart(block.last) == each.end())
            --block.last;
        if (!blocks.empty() && block.first <= blocks.back().last + 1)
            blocks.back().last = std::max(blocks.back().last, block.last);
        else
            blocks.push_back(block);
    }
    return blocks;
}

std::vector<LineBlock> selectedBlocks(const SciEngine &engine, const TextSelections &selections)
{
    if (isAnySelected(selections))
        return lineBlocks(engine, selections);
    const qsizetype last = engine.lineCount() - 1;
    const bool isEmpty = engine.lineStart(last) == engine.length();
    return {{0, isEmpty ? std::max<qsizetype>(0, last - 1) : last}};
}

LinePlace linePlace(const SciEngine &engine, qsizetype position)
{
    const qsizetype line = engine.lineOf(position);
    return {line, position - engine.lineStart(line)};
}

qsizetype positionOf(const SciEngine &engine, const LinePlace &place)
{
    const qsizetype line = std::clamp<qsizetype>(place.line, 0, engine.lineCount() - 1);
    const qsizetype start = engine.lineStart(line);
    const QByteArrayView text = engine.bytes(start, engine.lineEnd(line));
    qsizetype column = std::min(place.column, text.size());
    const auto continues = [&] { return (static_cast<unsigned char>(text[column]) & 0xc0) == 0x80; };
    while (column > 0 && column < text.size() && continues())
        --column;
    return start + column;
}

QByteArray typedLineEnd(const SciEngine &engine)
{
    switch (engine.send(Sci::SCI_GETEOLMODE)) {
    case Sci::SC_EOL_LF:
        return "\n";
    case Sci::SC_EOL_CR:
        return "\r";
    default:
        return "\r\n";
    }
}

} // namespace zephira
