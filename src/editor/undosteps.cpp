// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/undosteps.h"

#include "core/utf8character.h"

#include <QChar>

#include <algorithm>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

bool isInWord(char32_t character)
{
    return character == U'_' || QChar::isLetterOrNumber(character) || QChar::isMark(character);
}

} // namespace

UndoSteps::Carets UndoSteps::carets() const
{
    return {m_engine.send(Sci::SCI_GETSELECTIONS), m_engine.anchor(), m_engine.caret()};
}

bool UndoSteps::goesOn(Kind kind, char32_t first) const
{
    const bool endsWord = m_behindWord && !isInWord(first);
    return kind == m_kind && !endsWord && m_clock.isValid() && !m_clock.hasExpired(pauseMilliseconds)
        && carets() == m_carets;
}

bool UndoSteps::needsGroup(Kind kind) const
{
    return kind != Kind::Insertion || m_overtype || !m_engine.send(Sci::SCI_GETSELECTIONEMPTY)
        || m_engine.send(Sci::SCI_GETSELECTIONS) > 1;
}

void UndoSteps::begin(Kind kind, char32_t first, char32_t last)
{
    if (!goesOn(kind, first)) {
        end();
        m_kind = kind;
        // An empty group keeps the engine from adding to the step before.
        m_engine.send(Sci::SCI_BEGINUNDOACTION);
        m_hasGroup = needsGroup(kind);
        if (!m_hasGroup)
            m_engine.send(Sci::SCI_ENDUNDOACTION);
    }
    m_behindWord = isInWord(last);
}

void UndoSteps::beginErasing(Kind kind)
{
    const qsizetype caret = m_engine.caret();
    const bool backward = kind == Kind::EraseBackward;
    const qsizetype other = m_engine.send(backward ? Sci::SCI_POSITIONBEFORE : Sci::SCI_POSITIONAFTER, caret);
    const QByteArrayView erased = m_engine.bytes(std::min(caret, other), std::max(caret, other));
    const char32_t character = erased.isEmpty() ? U' ' : utf8CharacterAt(erased, 0).code;
    begin(kind, character, character);
}

void UndoSteps::note()
{
    m_carets = carets();
    m_clock.start();
}

void UndoSteps::end()
{
    closeGroup();
    m_kind = Kind::Nothing;
}

void UndoSteps::closeGroup()
{
    if (!m_hasGroup)
        return;
    m_hasGroup = false;
    m_kind = Kind::Nothing;
    m_engine.send(Sci::SCI_ENDUNDOACTION);
}

} // namespace zephira
