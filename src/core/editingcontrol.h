// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editorcommand.h"
#include "core/prompts.h"
#include "core/result.h"
#include "core/textchange.h"

#include <QByteArrayView>
#include <QString>

#include <array>
#include <functional>

namespace zephira {

/// A selection. Lines and columns count from 0, columns in characters (UTF-16 code units).
struct CodeMaxRange {
    int StartLineNo = 0;
    int StartColNo = 0;
    int EndLineNo = 0;
    int EndColNo = 0;

    friend bool operator==(const CodeMaxRange &, const CodeMaxRange &) = default;
};

/// The code view as the rest of the program sees it. All text is UTF-16 with CR LF line ends (text with mixed line ends
/// keeps them as they are). Only openFile() and saveFile() deal with the file's own line ends, byte order mark and
/// encoding.
class EditingControl
{
public:
    virtual ~EditingControl() = default;

    virtual QString text() const = 0;
    /// Replaces the whole document. The change can be undone and raises the change event.
    virtual void setText(const QString &text) = 0;
    /// Replaces parts of text(); the changes are in order. Selection and scroll position stay with the text around them,
    /// and one undo step reverts all of it.
    virtual void changeText(const TextChanges &changes) { setText(withChanges(text(), changes)); }
    /// Length of text() in UTF-16 code units, without building the text.
    virtual int textLength() const = 0;
    /// The text as it will be saved, except for the encoding: UTF-8 with the file's line ends, in two pieces that are
    /// valid until the next change.
    virtual std::array<QByteArrayView, 2> utf8Pieces() const = 0;
    virtual QString selText() const = 0;
    /// Replaces the selection, or inserts at the caret. Leaves the caret after the new text.
    virtual void setSelText(const QString &text) = 0;
    virtual int selLength() const = 0;
    /// Number of simultaneous selections, counting carets without selected text; at least 1.
    virtual int selectionCount() const { return 1; }
    /// Replaces each selection with what `make` returns for its text, and leaves the carets after the new texts. One
    /// undo step reverts all of it.
    virtual void replaceSelections(const std::function<QString(const QString &)> &make) { setSelText(make(selText())); }
    virtual QString currentWord() const = 0;
    virtual int lineCount() const = 0;

    /// Name of a registered language, not case-sensitive; "" for none.
    virtual QString language() const = 0;
    virtual void setLanguage(const QString &name) = 0;

    virtual bool displayWhitespace() const = 0;
    virtual void setDisplayWhitespace(bool on) = 0;
    virtual bool displayLeftMargin() const = 0;
    virtual void setDisplayLeftMargin(bool on) = 0;
    virtual bool lineNumbering() const = 0;
    virtual void setLineNumbering(bool on) = 0;
    virtual bool selBounds() const = 0;
    virtual void setSelBounds(bool on) = 0;
    virtual bool enableDragDrop() const = 0;
    virtual void setEnableDragDrop(bool on) = 0;
    /// The 0-based line drawn in the highlight colour, -1 for none.
    virtual int highlightedLine() const = 0;
    virtual void setHighlightedLine(int line) = 0;
    virtual FontChoice editorFont() const = 0;
    virtual void setEditorFont(const FontChoice &font) = 0;

    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;
    virtual bool canCopy() const = 0;

    /// Replaces the text with the file's and clears the undo history. On failure the text is unchanged.
    virtual Result<void> openFile(const QString &path) = 0;
    /// Writes the text atomically, with the encoding and line ends that it was loaded with.
    virtual Result<void> saveFile(const QString &path, bool clearUndo) = 0;

    virtual CodeMaxRange selection(bool normalized) const = 0;
    virtual void select(const CodeMaxRange &range) = 0;

    /// Colours have red in the lowest byte; `item` is a ColourItem.
    virtual void setColor(int item, quint32 colour) = 0;
    virtual quint32 color(int item) const = 0;
    /// Font styles, items are those of FontStyleItem: 0 normal, 1 bold, 2 italic, 3 bold italic, 4 underlined; other
    /// bits are kept.
    virtual void setFontStyle(int item, int style) = 0;
    virtual int fontStyle(int item) const = 0;

    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;
    /// Removes the selection without touching the clipboard. Does nothing if nothing is selected.
    virtual void clearSelection() = 0;
    /// Runs a built-in command. Unknown numbers do nothing.
    virtual void executeCmd(int command, int argument = -1) = 0;
    void executeCmd(EditorCommand command, int argument = -1) { executeCmd(numberOf(command), argument); }
    /// Prints the text; the user chooses the printer. The program passes the two numbers below, which are published.
    virtual void printContents(int device, int options) = 0;
    static constexpr int standardPrinter = 0;
    static constexpr int standardPrintOptions = 12;
};

} // namespace zephira
