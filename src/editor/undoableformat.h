// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"
#include "files/textfile.h"

#include <vector>

namespace zephira {

/// How the document stands in its file: encoding, byte order mark, line ends. The engine is told which line end the Enter
/// key types; a change that undoing shall take back is put into the engine's undo history.
class UndoableFormat
{
public:
    explicit UndoableFormat(SciEngine engine);

    const TextFormat &current() const { return m_format; }
    /// The format of another document; nothing of the one before can be undone any more.
    void restart(const TextFormat &format);
    /// A format that undoing doesn't touch, for a text that was stored in another encoding.
    void setStored(const TextFormat &format) { m_format = format; }
    /// Goes over to the format of a text that begins anew. Undoing takes it back.
    void startAnew();
    /// To be called when the engine undoes or redoes the change that it knows by this number; others are left alone.
    void changeWasUndone(int number, bool undone);

    /// The line end that the Enter key types: the text's own, of several kinds the most frequent.
    LineEnds typedLineEnds() const;

private:
    struct Change {
        TextFormat before;
        TextFormat after;
    };

    void applyLineEnds();

    SciEngine m_engine;
    TextFormat m_format;
    /// By the number that the undo history knows them by.
    std::vector<Change> m_changes;
};

} // namespace zephira
