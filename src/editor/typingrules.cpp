// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/typingrules.h"

#include "core/graphemes.h"
#include "editor/hotkeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

bool isLineBreak(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool isIndentation(QByteArrayView text)
{
    return std::ranges::all_of(text, [](char c) { return c == ' ' || c == '\t'; });
}

QByteArrayView blanksOf(QByteArrayView line)
{
    const auto *const end =
        std::ranges::find_if_not(line.begin(), line.end(), [](char c) { return c == ' ' || c == '\t'; });
    return line.first(end - line.begin());
}

QByteArray indentLevel(const EditorOptions &options)
{
    return options.tabsAsBlanks ? QByteArray(options.tabWidth, ' ') : QByteArray("\t");
}

/// The line end typed by the Enter key.
QByteArray currentLineEnd(const SciEngine &engine)
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

} // namespace

/// The engine's own overtype caret is a line below the character. A block is easier to see, so the engine is in
/// overtype mode only while it handles a key.
void TypingRules::setOvertype(bool on)
{
    m_overtype = on;
    m_engine.send(Sci::SCI_SETCARETSTYLE, on ? Sci::CARETSTYLE_BLOCK : Sci::CARETSTYLE_LINE);
}

void TypingRules::type(const QKeyEvent &key, const std::function<void()> &engineTypes) const
{
    if (m_overtype)
        m_engine.send(Sci::SCI_SETOVERTYPE, true);
    const std::vector<qsizetype> before = carets();
    if (isLineBreak(key))
        breakLine(engineTypes);
    else if (!isPlainBackspace(key) || !eraseCharacters(true))
        engineTypes();
    settleCarets(before);
    m_engine.send(Sci::SCI_SETOVERTYPE, false);
}

/// One undo step removes both the new line and its indentation.
void TypingRules::breakLine(const std::function<void()> &engineTypes) const
{
    const bool readOnly = m_engine.send(Sci::SCI_GETREADONLY);
    const std::vector<Break> all = readOnly ? std::vector<Break>() : breaks();
    const bool isPlain = std::ranges::all_of(all, [](const Break &each) { return each.kind == LineBreak::Plain; });
    m_engine.send(Sci::SCI_BEGINUNDOACTION);
    if (!readOnly && (hasSeveral() || !isPlain)) {
        breakLines(all);
    } else {
        engineTypes();
        if (m_options.autoIndent && !readOnly)
            indentNewLine();
    }
    m_engine.send(Sci::SCI_ENDUNDOACTION);
}

/// The places at which lines are broken, in the order of the text.
std::vector<TypingRules::Break> TypingRules::breaks() const
{
    std::vector<Break> all;
    for (qsizetype i = 0; i < m_engine.send(Sci::SCI_GETSELECTIONS); ++i)
        all.push_back({m_engine.send(Sci::SCI_GETSELECTIONNSTART, i), m_engine.send(Sci::SCI_GETSELECTIONNEND, i)});
    std::ranges::sort(all, {}, &Break::start);
    for (Break &each : all) {
        if (m_lineBreakAt && m_options.autoIndent)
            each.kind = m_lineBreakAt(each.start, each.end);
    }
    return all;
}

/// Puts a line end at each caret; the engine would keep only one of them. Nothing but blanks in front of one goes away.
void TypingRules::breakLines(const std::vector<Break> &breaks) const
{
    const QByteArray lineEnd = currentLineEnd(m_engine);
    std::vector<qsizetype> after;
    qsizetype moved = 0;
    for (const auto &[start, end, kind] : breaks) {
        const qsizetype at = start + moved;
        const qsizetype lineStart = m_engine.lineStart(m_engine.lineOf(at));
        const QByteArrayView above = m_engine.bytes(lineStart, at);
        QByteArray text = lineEnd;
        QByteArray behind;
        if (kind != LineBreak::Plain) {
            const QByteArray indent = blanksOf(above).toByteArray();
            text += indent + indentLevel(m_options);
            if (kind == LineBreak::Between)
                behind = lineEnd + indent;
        } else if (m_options.autoIndent) {
            text += indentBelow(above, m_options);
        }
        const qsizetype from = m_options.autoIndent && isIndentation(above) ? lineStart : at;
        const qsizetype to = end + moved;
        m_engine.replace(from, to, text + behind);
        after.push_back(from + text.size());
        moved += text.size() + behind.size() - (to - from);
    }
    m_engine.send(Sci::SCI_SETEMPTYSELECTION, after.front());
    for (std::size_t i = 1; i < after.size(); ++i)
        m_engine.send(Sci::SCI_ADDSELECTION, after[i], after[i]);
    m_engine.send(Sci::SCI_SCROLLCARET);
    m_engine.send(Sci::SCI_CHOOSECARETX);
}

bool TypingRules::hasSeveral() const
{
    return m_engine.send(Sci::SCI_GETSELECTIONS) > 1 || m_engine.send(Sci::SCI_SELECTIONISRECTANGLE);
}

bool TypingRules::keepOneCaret() const
{
    if (!hasSeveral())
        return false;
    const qsizetype main = m_engine.send(Sci::SCI_GETMAINSELECTION);
    const qsizetype caret = m_engine.send(Sci::SCI_GETSELECTIONNCARET, main);
    const qsizetype anchor = m_engine.send(Sci::SCI_GETSELECTIONNANCHOR, main);
    m_engine.send(Sci::SCI_SETSELECTION, caret, anchor);
    return true;
}

/// Deletes the graphemes before or after the carets. Returns false if only single code points would be deleted or
/// something is selected, which the engine handles by itself.
bool TypingRules::eraseCharacters(bool backward) const
{
    if (!m_engine.send(Sci::SCI_GETSELECTIONEMPTY) || m_engine.send(Sci::SCI_SELECTIONISRECTANGLE)
        || m_engine.send(Sci::SCI_GETREADONLY))
        return false;
    std::vector<std::pair<qsizetype, qsizetype>> ranges;
    bool joined = false;
    for (const qsizetype caret : carets()) {
        const qsizetype line = m_engine.lineOf(caret);
        const qsizetype start = m_engine.lineStart(line);
        const QByteArrayView text = m_engine.bytes(start, m_engine.lineEnd(line));
        const qsizetype at = std::min(caret - start, text.size());
        const qsizetype one = m_engine.send(backward ? Sci::SCI_POSITIONBEFORE : Sci::SCI_POSITIONAFTER, caret);
        const qsizetype to = start + (backward ? graphemeBefore(text, at) : graphemeBehind(text, at));
        const bool inLine = backward ? at > 0 : at < text.size();
        joined |= inLine && to != one;
        const qsizetype other = inLine ? to : one;
        ranges.emplace_back(std::min(caret, other), std::max(caret, other));
    }
    if (!joined)
        return false;
    std::ranges::sort(ranges);
    m_engine.send(Sci::SCI_BEGINUNDOACTION);
    std::for_each(ranges.rbegin(), ranges.rend(),
                  [this](const auto &range) { m_engine.replace(range.first, range.second, {}); });
    m_engine.send(Sci::SCI_ENDUNDOACTION);
    m_engine.send(Sci::SCI_SCROLLCARET);
    m_engine.send(Sci::SCI_CHOOSECARETX);
    return true;
}

void TypingRules::deleteForward() const
{
    if (!eraseCharacters(false))
        m_engine.send(Sci::SCI_CLEAR);
}

std::vector<qsizetype> TypingRules::carets() const
{
    std::vector<qsizetype> positions(static_cast<std::size_t>(m_engine.send(Sci::SCI_GETSELECTIONS)));
    for (std::size_t i = 0; i < positions.size(); ++i)
        positions[i] = m_engine.send(Sci::SCI_GETSELECTIONNCARET, static_cast<qsizetype>(i));
    return positions;
}

void TypingRules::settleCarets(const std::vector<qsizetype> &before) const
{
    if (m_engine.send(Sci::SCI_SELECTIONISRECTANGLE))
        return;
    const std::vector<qsizetype> now = carets();
    for (std::size_t i = 0; i < now.size(); ++i) {
        const bool forward = before.size() == now.size() && now[i] > before[i];
        const qsizetype line = m_engine.lineOf(now[i]);
        const qsizetype start = m_engine.lineStart(line);
        const QByteArrayView text = m_engine.bytes(start, m_engine.lineEnd(line));
        const qsizetype at = now[i] - start;
        if (at > text.size())
            continue;
        const qsizetype settled = start + (forward ? graphemeEnd(text, at) : graphemeStart(text, at));
        if (settled == now[i])
            continue;
        const auto index = static_cast<qsizetype>(i);
        if (m_engine.send(Sci::SCI_GETSELECTIONNANCHOR, index) == now[i])
            m_engine.send(Sci::SCI_SETSELECTIONNANCHOR, index, settled);
        m_engine.send(Sci::SCI_SETSELECTIONNCARET, index, settled);
    }
}

/// Indents the line at the caret like the line above, and clears the line above if it is blank.
void TypingRules::indentNewLine() const
{
    const qsizetype caret = m_engine.caret();
    const qsizetype line = m_engine.lineOf(caret);
    if (m_engine.send(Sci::SCI_GETSELECTIONS) > 1 || line == 0 || caret != m_engine.lineStart(line))
        return;
    const QByteArrayView above = m_engine.bytes(m_engine.lineStart(line - 1), m_engine.lineEnd(line - 1));
    const bool blank = isIndentation(above);
    const QByteArray indent = indentBelow(above, m_options);
    m_engine.replace(caret, caret, indent);
    if (blank)
        m_engine.replace(m_engine.lineStart(line - 1), m_engine.lineEnd(line - 1), {});
    m_engine.send(Sci::SCI_SETEMPTYSELECTION, m_engine.lineStart(line) + indent.size());
    m_engine.send(Sci::SCI_SCROLLCARET);
    m_engine.send(Sci::SCI_CHOOSECARETX);
}

bool TypingRules::isLeftToWindow(const QKeyEvent &key)
{
    const QKeyCombination keys = key.keyCombination();
    const Qt::KeyboardModifiers modifiers = keys.keyboardModifiers();
    if (isShortcutLike(QKeyCombination(modifiers & ~Qt::KeypadModifier, keys.key())))
        return true;
    // Alt with a letter that isn't a menu's mnemonic types no text either.
    return modifiers & Qt::AltModifier && !(modifiers & Qt::ControlModifier) && !key.text().isEmpty();
}

bool TypingRules::isModifier(const QKeyEvent &key)
{
    constexpr std::array modifiers{Qt::Key_Shift,    Qt::Key_Control,  Qt::Key_Meta,    Qt::Key_Alt,
                                   Qt::Key_AltGr,    Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock,
                                   Qt::Key_Super_L,  Qt::Key_Super_R,  Qt::Key_Hyper_L, Qt::Key_Hyper_R,
                                   Qt::Key_Multi_key};
    const bool dead = key.key() >= Qt::Key_Dead_Grave && key.key() <= Qt::Key_Dead_Longsolidusoverlay;
    return dead || std::ranges::find(modifiers, key.key()) != modifiers.end();
}

/// Line ends aren't counted here.
char32_t TypingRules::typedCharacter(const QKeyEvent &key)
{
    if (key.key() == Qt::Key_Tab && key.modifiers() == Qt::NoModifier)
        return U'\t';
    const QList<uint> characters = key.text().toUcs4();
    const bool printable = !characters.isEmpty() && characters.first() >= U' ' && characters.first() != 0x7f;
    return printable ? characters.first() : 0;
}

bool TypingRules::isPlainBackspace(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Backspace && !(key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
}

bool TypingRules::isPlainDelete(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Delete && !(key.modifiers() & ~Qt::KeypadModifier);
}

QByteArray TypingRules::indentBelow(QByteArrayView above, const EditorOptions &options)
{
    QByteArray indent = blanksOf(above).toByteArray();
    if (above.trimmed().endsWith('{'))
        indent += indentLevel(options);
    return indent;
}

} // namespace zephira
