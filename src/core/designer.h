// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designercommand.h"
#include "core/textchange.h"

#include <QMetaType>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>

namespace zephira {

/// The values of queryStatus(). A command whose status is below Enabled can't be run.
struct DesignerStatus {
    static constexpr int NotSupported = 0;
    static constexpr int Disabled = 1;
    static constexpr int Enabled = 3;
    static constexpr int On = 7;
    static constexpr int Mixed = 11;
};

/// Whether a command may ask the user for its argument.
enum class DesignerPrompting : int { Default = 0, PromptUser = 1, DontPromptUser = 2 };

/// What is shown of a place in the page's source.
enum class DesignerPlace {
    Caret,   ///< the caret goes to the same character
    Element, ///< the caret goes to the element whose tag is there; one that has no text is selected as a whole
};

/// Why a page that was changed is written as a whole.
enum class WholePage {
    No,       ///< it isn't: only what was touched is written
    TooLarge, ///< what was touched isn't looked for in pages so large
    NotFound, ///< what was touched wasn't found in the source, or not in time
};

/// How an entry of the designer's context menu looks.
enum class DesignerMenuState : int { Unchecked = 0, Checked = 1, Greyed = 2 };

/// The argument of InsertTable. The attributes are markup without the angle brackets and are inserted as they are.
struct InsertTableParam {
    int rows = 3;
    int columns = 3;
    QString tableAttributes = QStringLiteral("border=1 cellPadding=1 cellSpacing=1 width=\"75%\"");
    QString cellAttributes = {};
    QString caption = {};

    /// Whether there are more cells than anybody would fill by hand. Such a table isn't inserted.
    bool isTooLarge() const { return rows > 0 && columns > 0 && rows > mostCells / columns; }
    static constexpr int mostCells = 20000;

    friend bool operator==(const InsertTableParam &, const InsertTableParam &) = default;
};

/// The designer's notifications to its host. Handlers may call the designer; empty ones are skipped.
struct DesignerEvents {
    /// A page has been loaded and can be edited.
    std::function<void()> documentComplete = {};
    /// The caret moved, the selection changed, or a command ran.
    std::function<void()> displayChanged = {};
    /// A context menu is requested at a position in screen coordinates; the handler provides the entries through
    /// setContextMenu().
    std::function<void(const QPoint &)> showContextMenu = {};
    /// The user chose the entry with this 0-based index, separators counted.
    std::function<void(int)> contextMenuAction = {};
    /// The page's render process has ended unexpectedly; the last known state of the page is loaded again.
    std::function<void()> processLost = {};
};

/// The visual page designer as the rest of the program sees it. Calls return when their work is done. A call that takes
/// unreasonably long is abandoned, and the last known state is kept.
class Designer
{
public:
    virtual ~Designer() = default;

    /// Whether the window is in visual mode.
    virtual bool isShowing() const = 0;
    /// Whether the page was changed since it was loaded. Undoing every change makes it clean again.
    virtual bool isDirty() const = 0;
    /// The whole page. A page that is not dirty comes back exactly as it was set; in others, what was not touched is as
    /// it was, as far as that is possible.
    virtual QString documentHtml() = 0;
    /// The changes of the text that was set or loaded which make it what documentHtml() returned last, in order.
    virtual TextChanges documentChanges() const { return {}; }
    /// Whether documentHtml() wrote the whole page last instead of what was touched, and why.
    virtual WholePage wholePage() const { return WholePage::No; }
    /// Brings a position of the text that was set or loaded into sight, or if nothing of it is visible the nearest that
    /// is: at once, or as soon as the page is there. Positions are 0-based UTF-16 code units. Returns false if the page
    /// has no such place; nothing changes then.
    virtual bool showPlace(qsizetype, DesignerPlace) { return false; }
    /// The position of the caret in the text that documentHtml() returns. Nothing if the user hasn't moved the caret since
    /// the page was shown, or if the position isn't known.
    virtual std::optional<qsizetype> caretPlace() { return {}; }
    /// Shows a page given as text. Relative addresses in it are still resolved against baseFile().
    virtual void setDocumentHtml(const QString &html) = 0;
    /// Loads a page from the disk and makes it the base file. Raises HandlerError if the file can't be read.
    virtual void loadDocument(const QString &path) = 0;
    /// Full path of the file that relative addresses are resolved against, or empty. Takes effect with the next load.
    virtual QString baseFile() const = 0;
    virtual void setBaseFile(const QString &path) = 0;
    /// Replaces the designer's selection with markup.
    virtual void pasteHtml(const QString &html) = 0;

    /// Runs a command, or does nothing if its status is below Enabled. Arguments and results:
    ///
    /// | Command | Argument | Result |
    /// |---|---|---|
    /// | SetFontName, SetBlockFormat, SetForeColor, SetBackColor | a string; colours as "#rrggbb" | |
    /// | SetFontSize | a number or a numeric string, 1 to 7 | |
    /// | GetFontName, GetBlockFormat | | a string |
    /// | GetFontSize | | a number, 0 for none |
    /// | GetBlockFormatNames | | a list of strings |
    /// | InsertTable | InsertTableParam, or none for its defaults | |
    /// | Image, Hyperlink, FindText | an address or a text; asked for if missing | FindText: whether it was found |
    virtual QVariant execCommand(DesignerCommand command, DesignerPrompting prompting = DesignerPrompting::Default,
                                 const QVariant &argument = {}) = 0;
    /// One of the numbers of DesignerStatus.
    virtual int queryStatus(DesignerCommand command) const = 0;
    /// "None" (a caret), "Text", or "Control" (an element is selected as a whole).
    virtual QString selectionType() const = 0;

    virtual bool showBorders() const = 0;
    virtual void setShowBorders(bool on) = 0;
    virtual bool showDetails() const = 0;
    virtual void setShowDetails(bool on) = 0;
    /// In browse mode the page is shown as in a browser and can't be edited.
    virtual bool browseMode() const = 0;
    virtual void setBrowseMode(bool on) = 0;
    virtual bool snapToGrid() const = 0;
    virtual void setSnapToGrid(bool on) = 0;

    /// Sets the entries of the context menu about to be shown; an empty string is a separator. Both lists have the same
    /// length.
    virtual void setContextMenu(const QStringList &entries, const QList<DesignerMenuState> &states) = 0;
    virtual void setEvents(DesignerEvents events) = 0;

    /// Leaving visual mode takes a while, during which the code view still holds the old text. Returns when the designer's
    /// text has been carried back and visual mode has ended; at once if it isn't being left. Whoever reads, changes or
    /// saves the code view's text on the user's behalf calls this first.
    virtual void finishLeaving() = 0;
    /// A page in this folder or below it may load files from anywhere in it; any other page only from its own folder
    /// and below. Empty for none. Takes effect with the next load.
    virtual void setProjectFolder(const QString &folder) = 0;
    /// Whether a page may load style sheets, pictures and fonts from other hosts. Takes effect with the next load.
    virtual void setRemoteAllowed(bool allowed) = 0;
};

/// Takes the designer's place until the visual view is first opened: never showing, never dirty.
class NoDesigner final : public Designer
{
public:
    bool isShowing() const override { return false; }
    bool isDirty() const override { return false; }
    QString documentHtml() override { return {}; }
    void setDocumentHtml(const QString &) override {}
    void loadDocument(const QString &) override {}
    QString baseFile() const override { return {}; }
    void setBaseFile(const QString &) override {}
    void pasteHtml(const QString &) override {}
    QVariant execCommand(DesignerCommand, DesignerPrompting, const QVariant &) override { return {}; }
    int queryStatus(DesignerCommand) const override { return DesignerStatus::Disabled; }
    QString selectionType() const override { return QStringLiteral("None"); }
    bool showBorders() const override { return false; }
    void setShowBorders(bool) override {}
    bool showDetails() const override { return false; }
    void setShowDetails(bool) override {}
    bool browseMode() const override { return false; }
    void setBrowseMode(bool) override {}
    bool snapToGrid() const override { return false; }
    void setSnapToGrid(bool) override {}
    void setContextMenu(const QStringList &, const QList<DesignerMenuState> &) override {}
    void setEvents(DesignerEvents) override {}
    void finishLeaving() override {}
    void setProjectFolder(const QString &) override {}
    void setRemoteAllowed(bool) override {}
};

} // namespace zephira

Q_DECLARE_METATYPE(zephira::InsertTableParam)
