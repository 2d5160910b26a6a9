// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/typingrules.h"

#include "editor/editorcommands.h"

#include <QKeyEvent>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

bool isLineBreak(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

/// The engine's own overtype caret is a line below the character. A block says more; so the engine overtypes only while it
/// handles a key.
void TypingRules::setOvertype(bool on)
{
    m_overtype = on;
    m_engine.send(Sci::SCI_SETCARETSTYLE, on ? Sci::CARETSTYLE_BLOCK : Sci::CARETSTYLE_LINE);
}

void TypingRules::type(const QKeyEvent &key, const std::function<void()> &engineTypes) const
{
    if (m_overtype)
        m_engine.send(Sci::SCI_SETOVERTYPE, true);
    if (isLineBreak(key)) {
        // A new line and its indentation go away in one step.
        m_engine.send(Sci::SCI_BEGINUNDOACTION);
        engineTypes();
        if (m_options.autoIndent && !m_engine.send(Sci::SCI_GETREADONLY))
            indentNewLine();
        m_engine.send(Sci::SCI_ENDUNDOACTION);
    } else {
        engineTypes();
    }
    m_engine.send(Sci::SCI_SETOVERTYPE, false);
}

/// Gives the line at the caret the indentation of the line above.
void TypingRules::indentNewLine() const
{
    const qsizetype caret = m_engine.caret();
    const qsizetype line = m_engine.lineOf(caret);
    if (m_engine.send(Sci::SCI_GETSELECTIONS) > 1 || line == 0 || caret != m_engine.lineStart(line))
        return;
    const QByteArray indent =
        indentBelow(m_engine.bytes(m_engine.lineStart(line - 1), m_engine.lineEnd(line - 1)), m_options);
    m_engine.replace(caret, caret, indent);
    m_engine.send(Sci::SCI_SETEMPTYSELECTION, caret + indent.size());
    m_engine.send(Sci::SCI_SCROLLCARET);
    m_engine.send(Sci::SCI_CHOOSECARETX);
}

bool TypingRules::isLeftToWindow(const QKeyEvent &key)
{
    const QKeyCombination keys = key.keyCombination();
    const Qt::KeyboardModifiers modifiers = keys.keyboardModifiers();
    if (isShortcutLike(QKeyCombination(modifiers & ~Qt::KeypadModifier, keys.key())))
        return true;
    // Alt and a letter that no menu takes is no text either.
    return modifiers & Qt::AltModifier && !(modifiers & Qt::ControlModifier) && !key.text().isEmpty();
}

bool TypingRules::isPlainDelete(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Delete && !(key.modifiers() & ~Qt::KeypadModifier);
}

QByteArray TypingRules::indentBelow(QByteArrayView above, const EditorOptions &options)
{
    qsizetype blanks = 0;
    while (blanks < above.size() && (above[blanks] == ' ' || above[blanks] == '\t'))
        ++blanks;
    QByteArray indent = above.first(blanks).toByteArray();
    if (above.trimmed().endsWith('{'))
        indent += options.tabsAsBlanks ? QByteArray(options.tabWidth, ' ') : QByteArray("\t");
    return indent;
}

} // namespace zephira
