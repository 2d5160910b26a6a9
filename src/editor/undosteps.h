// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

#include <QElapsedTimer>

namespace zephira {

/// Divides what is typed into undo steps: a step ends with a word, at a pause, when the carets are moved, and when
/// something else than typing is done.
class UndoSteps
{
public:
    enum class Kind { Nothing, Insertion, EraseBackward, EraseForward };

    /// A step ends if nothing is typed for so long.
    static constexpr qint64 pauseMilliseconds = 1000;

    explicit UndoSteps(SciEngine engine) : m_engine(engine) {}

    /// Whether typed characters replace those under the carets.
    void setOvertype(bool on) { m_overtype = on; }
    /// To be called before characters are typed or erased, with the first and the last of them.
    void begin(Kind kind, char32_t first, char32_t last);
    /// The same for a character that is erased at the main caret.
    void beginErasing(Kind kind);
    /// To be called when they were.
    void note();
    /// Ends the step: whatever is typed next begins another one. To be called before any other change of the text.
    void end();
    /// Closes the group in which the engine collects the step, if there is one: an input method can't show its preedit
    /// text inside of one. A step without a group goes on.
    void closeGroup();

private:
    struct Carets {
        qsizetype count = 0;
        qsizetype anchor = 0;
        qsizetype caret = 0;
        friend bool operator==(const Carets &, const Carets &) = default;
    };

    Carets carets() const;
    bool goesOn(Kind kind, char32_t first) const;
    bool needsGroup(Kind kind) const;

    SciEngine m_engine;
    Kind m_kind = Kind::Nothing;
    bool m_behindWord = false;
    /// The engine would make a step of each key with several carets, and of each that erases more than a byte.
    bool m_hasGroup = false;
    bool m_overtype = false;
    Carets m_carets;
    QElapsedTimer m_clock;
};

} // namespace zephira
