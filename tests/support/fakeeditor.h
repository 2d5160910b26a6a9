// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/clipboard.h"
#include "core/editingcontrol.h"
#include "core/filestore.h"

#include <QStringList>

#include <functional>
#include <map>
#include <vector>

namespace zephira {

/// An editing control in memory: a text, a selection with a direction, and settings. There is no undo history; the test
/// says what can be undone.
class FakeEditor final : public EditingControl
{
public:
    FakeEditor() = default;
    /// Copies and pastes through `clipboard`, opens and saves UTF-8 through `files`.
    FakeEditor(Clipboard &clipboard, FileStore &files) : m_clipboard(&clipboard), m_files(&files) {}

    struct ExecutedCommand {
        int command = 0;
        int argument = -1;

        friend bool operator==(const ExecutedCommand &, const ExecutedCommand &) = default;
    };

    bool undoable = false;
    bool redoable = false;
    QString languageName;
    bool whitespaceShown = false;
    bool leftMarginShown = true;
    bool linesNumbered = false;
    bool selectionBound = false;
    bool dragDropEnabled = true;
    int highlighted = -1;
    FontChoice font{QStringLiteral("Monospace")};
    std::map<int, quint32> colours;
    std::map<int, int> fontStyles;
    /// If set, the next openFile() or saveFile() fails with this error.
    std::optional<Error> openError;
    std::optional<Error> saveError;
    /// Called after each change of the text, but not by openFile().
    std::function<void()> onChange;
    /// The commands passed to executeCmd(), in order.
    std::vector<ExecutedCommand> commands;
    /// What was passed to changeText(), in order.
    QList<TextChanges> partChanges;
    /// Names of the operations without arguments, in order: "undo", "redo", "cut", "copy", "paste", "clearSelection",
    /// and "print".
    QStringList calls;

    /// Sets the caret, or a selection from `anchor` to `caret`; 0-based offsets into the text.
    void selectOffsets(int anchor, int caret);
    void placeCaret(int offset) { selectOffsets(offset, offset); }
    /// Selects the first occurrence of `part`; false if there is none.
    bool selectPart(const QString &part);
    int anchorOffset() const { return m_anchor; }
    int caretOffset() const { return m_caret; }

    QString text() const override { return m_text; }
    void setText(const QString &text) override;
    void changeText(const TextChanges &changes) override
    {
        partChanges.append(changes);
        EditingControl::changeText(changes);
    }
    int textLength() const override { return static_cast<int>(m_text.size()); }
    std::array<QByteArrayView, 2> utf8Pieces() const override;
    QString selText() const override;
    void setSelText(const QString &text) override;
    int selLength() const override;
    QString currentWord() const override;
    int lineCount() const override;
    QString language() const override { return languageName; }
    void setLanguage(const QString &name) override { languageName = name; }
    bool displayWhitespace() const override { return whitespaceShown; }
    void setDisplayWhitespace(bool on) override { whitespaceShown = on; }
    bool displayLeftMargin() const override { return leftMarginShown; }
    void setDisplayLeftMargin(bool on) override { leftMarginShown = on; }
    bool lineNumbering() const override { return linesNumbered; }
    void setLineNumbering(bool on) override { linesNumbered = on; }
    bool selBounds() const override { return selectionBound; }
    void setSelBounds(bool on) override { selectionBound = on; }
    bool enableDragDrop() const override { return dragDropEnabled; }
    void setEnableDragDrop(bool on) override { dragDropEnabled = on; }
    int highlightedLine() const override { return highlighted; }
    void setHighlightedLine(int line) override { highlighted = line; }
    FontChoice editorFont() const override { return font; }
    void setEditorFont(const FontChoice &choice) override { font = choice; }
    bool canUndo() const override { return undoable; }
    bool canRedo() const override { return redoable; }
    bool canCopy() const override { return selLength() > 0; }
    Result<void> openFile(const QString &path) override;
    Result<void> saveFile(const QString &path, bool clearUndo) override;
    CodeMaxRange selection(bool normalized) const override;
    void select(const CodeMaxRange &range) override;
    void setColor(int item, quint32 colour) override { colours[item] = colour; }
    quint32 color(int item) const override;
    void setFontStyle(int item, int style) override { fontStyles[item] = style; }
    int fontStyle(int item) const override;
    void undo() override { calls.append(QStringLiteral("undo")); }
    void redo() override { calls.append(QStringLiteral("redo")); }
    void cut() override;
    void copy() override;
    void paste() override;
    void clearSelection() override;
    void executeCmd(int command, int argument = -1) override;
    using EditingControl::executeCmd;
    void printContents(int device, int options) override;

private:
    int selectionStart() const { return std::min(m_anchor, m_caret); }
    int selectionEnd() const { return std::max(m_anchor, m_caret); }
    void replaceSelection(const QString &text);
    void changed() const;

    Clipboard *m_clipboard = nullptr;
    FileStore *m_files = nullptr;
    QString m_text;
    /// The last result of utf8Pieces().
    mutable QByteArray m_utf8;
    int m_anchor = 0;
    int m_caret = 0;
};

} // namespace zephira
