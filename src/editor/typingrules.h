// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editoroptions.h"
#include "editor/sciengine.h"

#include <QByteArray>

#include <functional>
#include <utility>
#include <vector>

class QKeyEvent;

namespace zephira {

/// What follows a line that is broken: one that is indented like it, or one level more; or one that is indented one level
/// more and another one like it, with the caret in the first.
enum class LineBreak { Plain, Deeper, Between };

/// Handling of keys that run no command, in addition to the editor engine's: overtyping, the indentation of new lines,
/// and moving and deleting by graphemes.
class TypingRules
{
public:
    explicit TypingRules(SciEngine engine) : m_engine(engine) {}

    void setOptions(const EditorOptions &options) { m_options = options; }

    /// Tells how to break a line where the bytes from start up to end go away; each is a plain break without it. Asked only
    /// while new lines are indented.
    void setLineBreaks(std::function<LineBreak(qsizetype start, qsizetype end)> at) { m_lineBreakAt = std::move(at); }

    /// Whether typed characters replace the ones under the caret.
    bool overtype() const { return m_overtype; }
    void setOvertype(bool on);

    /// Types a key. `engineTypes` passes the key to the engine and is called once.
    void type(const QKeyEvent &key, const std::function<void()> &engineTypes) const;

    /// Deletes the next grapheme, or the selections.
    void deleteForward() const;
    /// The byte positions of the carets, to be passed to settleCarets() after they have moved.
    std::vector<qsizetype> carets() const;
    /// Moves carets out of the inside of graphemes: further in the direction in which they moved from `before`, or to
    /// the beginning of the grapheme if that isn't known.
    void settleCarets(const std::vector<qsizetype> &before = {}) const;
    /// Reduces several carets, or a rectangular selection, to the caret made last. Returns false if there is only one.
    bool keepOneCaret() const;

    /// Whether the key types nothing and is left to the window.
    static bool isLeftToWindow(const QKeyEvent &key);
    /// Whether the key does nothing alone.
    static bool isModifier(const QKeyEvent &key);
    /// The character that the key types, 0 for none.
    static char32_t typedCharacter(const QKeyEvent &key);
    /// Whether the key is Backspace without Ctrl or Alt.
    static bool isPlainBackspace(const QKeyEvent &key);
    /// Whether the key is Delete without Shift, Ctrl or Alt.
    static bool isPlainDelete(const QKeyEvent &key);
    /// The indentation of a new line below a line (UTF-8, without its line end): the same as above, and one level more
    /// after an opening brace.
    static QByteArray indentBelow(QByteArrayView above, const EditorOptions &options);

private:
    bool hasSeveral() const;
    bool eraseCharacters(bool backward) const;
    void breakLine(const std::function<void()> &engineTypes) const;
    struct Break {
        qsizetype start = 0;
        qsizetype end = 0;
        LineBreak kind = LineBreak::Plain;
    };

    std::vector<Break> breaks() const;
    void breakLines(const std::vector<Break> &breaks) const;
    void indentNewLine() const;

    SciEngine m_engine;
    EditorOptions m_options;
    std::function<LineBreak(qsizetype, qsizetype)> m_lineBreakAt;
    bool m_overtype = false;
};

} // namespace zephira
