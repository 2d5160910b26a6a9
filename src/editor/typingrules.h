// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editoroptions.h"
#include "editor/sciengine.h"

#include <QByteArray>

#include <functional>
#include <vector>

class QKeyEvent;

namespace zephira {

/// What a key that runs no command does beyond what the editor engine makes of it: overtyping, and the new line's
/// indentation.
class TypingRules
{
public:
    explicit TypingRules(SciEngine engine) : m_engine(engine) {}

    void setOptions(const EditorOptions &options) { m_options = options; }

    /// Whether typed characters replace the ones under the caret.
    bool overtype() const { return m_overtype; }
    void setOvertype(bool on);

    /// Types a key. `engineTypes` gives the key to the engine; it is called once.
    void type(const QKeyEvent &key, const std::function<void()> &engineTypes) const;

    /// Deletes what the user sees as the next character, or the selections.
    void deleteForward() const;
    /// Where the carets stand, to be asked in front of something that moves them.
    std::vector<qsizetype> carets() const;
    /// Takes carets out of characters with accents and joined emoji: on in the direction in which they have moved from
    /// where they were, and back to the character's beginning if that isn't known.
    void settleCarets(const std::vector<qsizetype> &before = {}) const;
    /// Goes back from several carets, or a rectangle, to the one that was made last. False where there is only one.
    bool keepOneCaret() const;

    /// Whether the key types nothing and is the window's.
    static bool isLeftToWindow(const QKeyEvent &key);
    /// Whether the key is Delete without Shift, Ctrl or Alt.
    static bool isPlainDelete(const QKeyEvent &key);
    /// What a new line begins with below a line (UTF-8, without its end): the same blanks, and one step more behind an
    /// opening brace.
    static QByteArray indentBelow(QByteArrayView above, const EditorOptions &options);

private:
    bool hasSeveral() const;
    bool eraseCharacters(bool backward) const;
    void breakLine(const std::function<void()> &engineTypes) const;
    void breakLines() const;
    void indentNewLine() const;

    SciEngine m_engine;
    EditorOptions m_options;
    bool m_overtype = false;
};

} // namespace zephira
