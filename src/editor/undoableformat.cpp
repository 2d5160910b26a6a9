// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/undoableformat.h"

#include "files/buffertext.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// The engine's constants for CR LF, LF and CR, in the order of LineEnds.
constexpr std::array<qsizetype, 3> engineLineEnds{Sci::SC_EOL_CRLF, Sci::SC_EOL_LF, Sci::SC_EOL_CR};

} // namespace

UndoableFormat::UndoableFormat(SciEngine engine) : m_engine(engine)
{
    applyLineEnds();
}

void UndoableFormat::restart(const TextFormat &format)
{
    m_changes.clear();
    m_format = format;
    applyLineEnds();
}

void UndoableFormat::startAnew()
{
    if (m_format == TextFormat())
        return;
    m_engine.send(Sci::SCI_ADDUNDOACTION, std::ssize(m_changes), 0);
    m_changes.push_back({m_format, {}});
    m_format = {};
    applyLineEnds();
}

void UndoableFormat::changeWasUndone(int number, bool undone)
{
    if (number < 0 || number >= std::ssize(m_changes))
        return;
    const Change &change = m_changes[static_cast<std::size_t>(number)];
    m_format = undone ? change.before : change.after;
    applyLineEnds();
}

LineEnds UndoableFormat::typedLineEnds() const
{
    const auto found = std::ranges::find(engineLineEnds, m_engine.send(Sci::SCI_GETEOLMODE));
    return static_cast<LineEnds>(found - engineLineEnds.begin());
}

void UndoableFormat::applyLineEnds()
{
    LineEnds typed = m_format.lineEnds;
    if (typed == LineEnds::Mixed)
        typed = mostFrequentLineEnd(m_engine.bytes(0, m_engine.length()));
    m_engine.send(Sci::SCI_SETEOLMODE, engineLineEnds.at(static_cast<std::size_t>(typed)));
}

} // namespace zephira
