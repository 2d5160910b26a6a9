// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editingcontrol.h"
#include "editor/accessiblenews.h"
#include "editor/editoroptions.h"
#include "editor/qsci.h"
#include "editor/sciengine.h"
#include "editor/typingrules.h"
#include "editor/undoableformat.h"
#include "editor/undosteps.h"
#include "files/documentfile.h"
#include "files/textfile.h"

#include <QFont>
#include <QKeySequence>
#include <QPointer>
#include <QVariantMap>

#include <array>
#include <functional>
#include <memory>
#include <vector>

class QMenu;
class QPainter;

namespace zephira {

class BidiPainter;
class BraceMatcher;
class CodeMaxGlobals;
class EditorAppearance;
class EditorMargins;
class EditorPrinter;
class EditorSearch;
class FileStore;
class FindDialog;
class GoToDialog;
class IdleColouring;
class PropertiesDialog;
class RecoveryCopies;
class UserSettings;

/// The services that the editing control uses. All of them must outlive the control.
struct EditorServices {
    FileStore &files;
    RecoveryCopies &recovery;
    Prompts &prompts;
    /// The font to begin with, where that is known: each that is shown once costs the loading of it.
    std::optional<FontChoice> font = {};
    /// Where searches are remembered for the user; without it they are for as long as the dialog exists.
    UserSettings *settings = nullptr;
};

/// The editing control. C++ code uses it through EditingControl; scripts, tests and other outside code use the
/// properties and operations below by name. The buffer contains UTF-8 with the file's own line ends, while Text and
/// SelText always use CR LF (a text with mixed line ends is left as it is). Lines and columns are 0-based; columns and
/// lengths count UTF-16 code units.
class CodeMax : public QsciScintillaBase, public EditingControl
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text WRITE setText NOTIFY Change)
    Q_PROPERTY(QString SelText READ selText WRITE setSelText NOTIFY SelChange)
    Q_PROPERTY(int SelLength READ selLength NOTIFY SelChange)
    Q_PROPERTY(QString Language READ language WRITE setLanguage)
    Q_PROPERTY(int LineCount READ lineCount NOTIFY Change)
    Q_PROPERTY(QString CurrentWord READ currentWord NOTIFY SelChange)
    Q_PROPERTY(bool DisplayWhitespace READ displayWhitespace WRITE setDisplayWhitespace)
    Q_PROPERTY(bool DisplayLeftMargin READ displayLeftMargin WRITE setDisplayLeftMargin)
    Q_PROPERTY(bool LineNumbering READ lineNumbering WRITE setLineNumbering)
    Q_PROPERTY(bool SelBounds READ selBounds WRITE setSelBounds)
    Q_PROPERTY(bool EnableDragDrop READ enableDragDrop WRITE setEnableDragDrop)
    Q_PROPERTY(int HighlightedLine READ highlightedLine WRITE setHighlightedLine)
    Q_PROPERTY(bool CanUndo READ canUndo)
    Q_PROPERTY(bool CanRedo READ canRedo)
    Q_PROPERTY(bool CanCopy READ canCopy)
    Q_PROPERTY(bool ReadOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(QFont Font READ textFont WRITE setTextFont)
    Q_PROPERTY(bool Visible READ isVisible WRITE setVisible)

public:
    explicit CodeMax(EditorServices services, QWidget *parent = nullptr);
    ~CodeMax() override;

    /// The registered languages and the hot keys of this control.
    CodeMaxGlobals &globals() { return *m_globals; }

    /// The keys that the context menu names for a command which has these keys at first. A window whose menus have keys of
    /// their own sets it.
    std::function<QKeySequence(EditorCommand, const QKeySequence &)> namedKeys;

    /// Adds entries below the context menu's own.
    std::function<void(QMenu &)> extendMenu;

    /// Paints over a part of the viewport that has just been painted.
    std::function<void(QPainter &, const QRect &)> paintOver;

    QString text() const override;
    void setText(const QString &text) override;
    void changeText(const TextChanges &changes) override;
    int textLength() const override;
    QString selText() const override;
    void setSelText(const QString &text) override;
    int selLength() const override;
    int selectionCount() const override;
    void replaceSelections(const std::function<QString(const QString &)> &make) override;
    QString currentWord() const override;
    int lineCount() const override;
    QString language() const override { return m_language; }
    void setLanguage(const QString &name) override;

    bool displayWhitespace() const override;
    void setDisplayWhitespace(bool on) override;
    bool displayLeftMargin() const override;
    void setDisplayLeftMargin(bool on) override;
    bool lineNumbering() const override;
    void setLineNumbering(bool on) override;
    bool selBounds() const override { return m_selBounds; }
    void setSelBounds(bool on) override;
    bool enableDragDrop() const override { return m_dragDrop; }
    void setEnableDragDrop(bool on) override { m_dragDrop = on; }
    int highlightedLine() const override;
    void setHighlightedLine(int line) override;
    FontChoice editorFont() const override;
    void setEditorFont(const FontChoice &font) override;
    QFont textFont() const;
    void setTextFont(const QFont &font);

    bool canUndo() const override;
    bool canRedo() const override;
    bool canCopy() const override;
    /// A read-only control rejects typing and the editing commands; Text, SelText and OpenFile still work.
    bool isReadOnly() const;
    void setReadOnly(bool on);
    /// Whether typed characters replace the ones under the caret.
    bool overtype() const { return m_typing.overtype(); }
    void setOvertype(bool on);

    Result<void> openFile(const QString &path) override;
    Result<void> saveFile(const QString &path, bool clearUndo) override;
    /// How the document is stored in its file: encoding, byte order mark, line ends.
    const TextFormat &textFormat() const { return m_format.current(); }
    /// The document's bytes in UTF-8 with its own line ends, in two pieces that are valid until the text changes.
    std::array<QByteArrayView, 2> utf8Pieces() const override;

    CodeMaxRange selection(bool normalized) const override;
    void select(const CodeMaxRange &range) override;

    void setColor(int item, quint32 colour) override;
    quint32 color(int item) const override;
    void setFontStyle(int item, int style) override;
    int fontStyle(int item) const override;
    EditorOptions options() const { return m_options; }
    void setOptions(const EditorOptions &options);
    /// Tells how far new lines are indented, beyond what the line above says; see TypingRules.
    void setLineBreaks(std::function<LineBreak(qsizetype start, qsizetype end)> at)
    {
        m_typing.setLineBreaks(std::move(at));
    }
    /// Whether the caret's line is highlighted, by the control itself or by a program that makes HighlightedLine follow
    /// the caret.
    bool isCaretLineHighlighted() const;
    /// Switches the highlight on or off unless it already is. A program that makes HighlightedLine follow the caret
    /// does this itself; see CaretLineChosen().
    void highlightCaretLine(bool on);

    void undo() override;
    void redo() override;
    /// With nothing selected, cut() and copy() take the lines with carets while the control shows, and paste() puts such
    /// lines above that of the caret.
    void cut() override;
    void copy() override;
    void paste() override;
    void clearSelection() override;
    void executeCmd(int command, int argument = -1) override;
    using EditingControl::executeCmd;
    /// Shows the print dialog and prints the whole text on the printer chosen there. `device` and `options` have no
    /// effect.
    void printContents(int device, int options) override;

    // The operations that are called by name.
    Q_INVOKABLE bool OpenFile(const QString &path);
    Q_INVOKABLE bool SaveFile(const QString &path, bool clearUndo = false);
    Q_INVOKABLE QVariantMap GetSel(bool normalized) const;
    Q_INVOKABLE void SetSel(int startLine, int startCol, int endLine, int endCol)
    {
        select({startLine, startCol, endLine, endCol});
    }
    Q_INVOKABLE void SetColor(int item, int colour) { setColor(item, static_cast<quint32>(colour)); }
    Q_INVOKABLE int GetColor(int item) const { return static_cast<int>(color(item)); }
    Q_INVOKABLE void SetFontStyle(int item, int style) { setFontStyle(item, style); }
    Q_INVOKABLE int GetFontStyle(int item) const { return fontStyle(item); }
    Q_INVOKABLE void Undo() { undo(); }
    Q_INVOKABLE void Redo() { redo(); }
    Q_INVOKABLE void Cut() { cut(); }
    Q_INVOKABLE void Copy() { copy(); }
    Q_INVOKABLE void Paste() { paste(); }
    Q_INVOKABLE void ClearSelection() { clearSelection(); }
    Q_INVOKABLE void ExecuteCmd(int command, const QVariant &argument = {});
    Q_INVOKABLE void ExecuteCmd(int command, int argument) { executeCmd(command, argument); }
    Q_INVOKABLE void PrintContents(int device, int options) { printContents(device, options); }
    /// The error message of the last operation that returned false; empty after a successful one.
    Q_INVOKABLE QString lastError() const { return m_lastError; }

    /// The file that the document was last opened from or saved as, or "".
    const QString &path() const { return m_path; }
    /// A number that changes with every change of the text.
    quint64 textVersion() const { return m_textVersion; }
    /// The line end that the Enter key types: the one used in the text, or the most frequent one if they are mixed.
    LineEnds typedLineEnds() const { return m_format.typedLineEnds(); }
    /// Puts UTF-8 in the place of the bytes from start up to end.
    void replaceBytes(qsizetype start, qsizetype end, QByteArrayView utf8) { m_engine.replace(start, end, utf8); }

    // The parts, for the control's own dialogs and for code that needs more than EditingControl offers.
    const SciEngine &engine() const { return m_engine; }
    EditorAppearance &appearance() { return *m_appearance; }
    EditorMargins &margins() { return *m_margins; }
    IdleColouring &colouring() { return *m_colouring; }
    const BidiPainter &bidi() const { return *m_bidi; }
    EditorSearch &search();
    EditorPrinter &printer();
    /// Sends accessibility events to `listener` instead of assistive technology, even while none is running.
    void setAccessibleListener(AccessibleNews::Listener listener) { m_news.setListener(std::move(listener)); }
    Prompts &prompts() { return m_services.prompts; }
    /// Where on the screen the last context menu was requested.
    QPoint menuPlace() const { return m_menuPlace; }
    const EditorServices &services() const { return m_services; }
    /// Runs something that changes the text or selection as one action: Change and SelChange are emitted at most once,
    /// at its end. It isn't part of the undo step of what was typed before.
    template<typename Action>
    void perform(Action action)
    {
        if (m_actions == 0)
            m_steps.end();
        goOn(action);
    }

Q_SIGNALS:
    /// The text has changed. Emitted once for each write to Text or SelText, within the call, and once for each user
    /// action.
    void Change();
    /// The selection or the caret has moved.
    void SelChange();
    /// A context menu is requested. A receiver that shows one sets *handled, and the control doesn't show its own.
    void RClick(bool *handled);
    /// The user has switched the highlight of the caret's line on or off. A program that implements it through
    /// HighlightedLine sets *handled.
    void CaretLineChosen(bool on, bool *handled);
    /// The control was switched between insert and overtype mode.
    void OvertypeChanged(bool on);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Insertion {
        qsizetype position = 0;
        qsizetype length = 0;
    };
    struct Selection {
        qsizetype anchor = 0;
        qsizetype caret = 0;
        qsizetype count = 1;
        qsizetype lines = 1;
        friend bool operator==(const Selection &, const Selection &) = default;
    };

    /// The same without an end of the undo step.
    template<typename Action>
    void goOn(Action action)
    {
        ++m_actions;
        action();
        endAction();
    }

    void setUpEngine();
    void connectEngine();
    void endAction();
    void noteChange();
    void noteSelection();
    void replaceDocument(const DecodedText &document);
    qsizetype widthOfFirstLines() const;
    CodeMaxRange toRange(qsizetype start, qsizetype end) const;
    qsizetype toPosition(int line, int column) const;
    Result<void> store(const QString &path, bool becomesDocument);
    void showSelectionBounds();
    void showStrikethrough();
    void showBraces();
    void beforeEdit(int position, int type, int length);
    void settleInsertion();
    void runCommand(int command);
    void type(QKeyEvent *event);
    void beginStep(const QKeyEvent &key);
    void deleteForward();
    std::vector<qsizetype> caretLines() const;
    bool takesLines() const;
    void copyLines();
    void removeLines();
    void pasteLines(const QByteArray &text);
    void toggleFold();
    void step(unsigned int message);
    void goToBookmark(bool backward);
    void goToMatchingBrace(bool selecting);
    void goToPosition(qsizetype position);
    void goToLine(int argument);
    void showFindDialog(bool replacing);
    void findNext(bool backward);
    void showProperties();
    bool takesDrop(const QDropEvent &event) const;
    qsizetype dropPosition(const QPointF &at) const;
    void giveDragToEngine(QDragMoveEvent *event);
    void showContextMenu(const QPoint &at);
    void underlineNumbers();
    bool addsCaret(QMouseEvent *event);
    void giveToEngine(QMouseEvent *event, const std::function<void(QMouseEvent *)> &handle);

    EditorServices m_services;
    SciEngine m_engine;
    std::unique_ptr<CodeMaxGlobals> m_globals;
    std::unique_ptr<EditorAppearance> m_appearance;
    std::unique_ptr<EditorMargins> m_margins;
    std::unique_ptr<IdleColouring> m_colouring;
    std::unique_ptr<BraceMatcher> m_braces;
    std::unique_ptr<BidiPainter> m_bidi;
    std::unique_ptr<EditorSearch> m_search;
    std::unique_ptr<EditorPrinter> m_printer;
    DocumentFile m_file;
    UndoableFormat m_format;
    TypingRules m_typing;
    UndoSteps m_steps;
    AccessibleNews m_news;
    EditorOptions m_options;
    QString m_language;
    QString m_path;
    QString m_lastError;
    Selection m_seen;
    /// An insertion that was announced but not processed yet.
    Insertion m_inserted;
    quint64 m_textVersion = 1;
    /// Length of the buffer in UTF-16 code units.
    qsizetype m_units = 0;
    int m_actions = 0;
    bool m_changed = false;
    bool m_selBounds = false;
    bool m_boundsShown = false;
    bool m_strikeShown = false;
    bool m_dragDrop = true;
    bool m_addsCaret = false;
    bool m_hasPreedit = false;
    QPoint m_menuPlace;
    QPointer<FindDialog> m_findDialog;
    QPointer<GoToDialog> m_goToDialog;
    QPointer<PropertiesDialog> m_properties;
};

} // namespace zephira
