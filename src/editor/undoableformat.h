// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"
#include "files/textfile.h"

#include <vector>

namespace zephira {

/// How the document is stored in its file: encoding, byte order mark, line ends. Also sets the line end that the Enter
/// key types in the engine. A change of format that can be undone is recorded in the engine's undo history.
class UndoableFormat
{
public:
    explicit UndoableFormat(SciEngine engine);

    const TextFormat &current() const { return m_format; }
    /// Sets the format of another document; earlier changes can't be undone any more.
    void restart(const TextFormat &format);
    /// Sets the format without an undo step, after the text was stored in another encoding.
    void setStored(const TextFormat &format) { m_format = format; }
    /// Switches to the format of a new text. This can be undone.
    void startAnew();
    /// To be called when the engine undoes or redoes the change with this number. Unknown numbers are ignored.
    void changeWasUndone(int number, bool undone);

    /// The line end that the Enter key types: the one used in the text, or the most frequent one if they are mixed.
    LineEnds typedLineEnds() const;

private:
    struct Change {
        TextFormat before;
        TextFormat after;
    };

    void applyLineEnds();

    SciEngine m_engine;
    TextFormat m_format;
    /// Indexed by the number used in the undo history.
    std::vector<Change> m_changes;
};

} // namespace zephira
