// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designercommand.h"

#include <QMetaType>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace zephira {

/// What queryStatus() answers. Below Enabled a command can't be run.
struct DesignerStatus {
    static constexpr int NotSupported = 0;
    static constexpr int Disabled = 1;
    static constexpr int Enabled = 3;
    static constexpr int On = 7;
    static constexpr int Mixed = 11;
};

/// Whether a command may put its own question to the user.
enum class DesignerPrompting : int { Default = 0, PromptUser = 1, DontPromptUser = 2 };

/// How an entry of the designer's context menu looks.
enum class DesignerMenuState : int { Unchecked = 0, Checked = 1, Greyed = 2 };

/// The argument of InsertTable. The attributes are markup without the angle brackets and are taken as they are.
struct InsertTableParam {
    int rows = 3;
    int columns = 3;
    QString tableAttributes = QStringLiteral("border=1 cellPadding=1 cellSpacing=1 width=\"75%\"");
    QString cellAttributes = {};
    QString caption = {};

    /// More cells than anybody would fill by hand; such a table isn't inserted.
    bool isTooLarge() const { return rows > 0 && columns > 0 && rows > mostCells / columns; }
    static constexpr int mostCells = 20000;

    friend bool operator==(const InsertTableParam &, const InsertTableParam &) = default;
};

/// What the designer tells its host. Handlers may call the designer; those that are empty are left out.
struct DesignerEvents {
    /// A page has been loaded and can be edited.
    std::function<void()> documentComplete = {};
    /// The caret moved, the selection changed, or a command ran.
    std::function<void()> displayChanged = {};
    /// A context menu is wanted at a place of the screen; the handler gives its entries by setContextMenu().
    std::function<void(const QPoint &)> showContextMenu = {};
    /// The user chose the entry with this 0-based index, separators counted.
    std::function<void(int)> contextMenuAction = {};
};

/// The visual page designer as the rest of the program sees it. Calls return when their work is done; what takes
/// unreasonably long is given up, and the last state that is known stands.
class Designer
{
public:
    virtual ~Designer() = default;

    /// Whether the window is in visual mode.
    virtual bool isShowing() const = 0;
    /// Changed since it was loaded; undoing every change ends that.
    virtual bool isDirty() const = 0;
    /// The whole page. One that is not dirty comes back exactly as it was given.
    virtual QString documentHtml() = 0;
    /// Shows a page by value; relative addresses in it still lead from baseFile().
    virtual void setDocumentHtml(const QString &html) = 0;
    /// Loads a page from the disk and makes it the base file. A file that can't be read raises HandlerError.
    virtual void loadDocument(const QString &path) = 0;
    /// Full path of the file that relative addresses lead from, or empty; it counts from the next load on.
    virtual QString baseFile() const = 0;
    virtual void setBaseFile(const QString &path) = 0;
    /// Puts markup in place of the designer's selection.
    virtual void pasteHtml(const QString &html) = 0;

    /// Runs a command; one whose status is below Enabled does nothing. What a command takes and gives:
    ///
    /// | Command | Argument | Result |
    /// |---|---|---|
    /// | SetFontName, SetBlockFormat, SetForeColor, SetBackColor | a text; colours as "#rrggbb" | |
    /// | SetFontSize | a number or its text, 1 to 7 | |
    /// | GetFontName, GetBlockFormat | | a text |
    /// | GetFontSize | | a number, 0 where there is none |
    /// | GetBlockFormatNames | | a list of texts |
    /// | InsertTable | InsertTableParam, or none for its defaults | |
    /// | Image, Hyperlink, FindText | an address or a text; asked for where it is missing | FindText: whether it was found |
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
    /// Shows the page as a browser does; nothing can be edited meanwhile.
    virtual bool browseMode() const = 0;
    virtual void setBrowseMode(bool on) = 0;
    virtual bool snapToGrid() const = 0;
    virtual void setSnapToGrid(bool on) = 0;

    /// Entries of the context menu that is about to show; an empty text is a separator. Both lists have one length.
    virtual void setContextMenu(const QStringList &entries, const QList<DesignerMenuState> &states) = 0;
    virtual void setEvents(DesignerEvents events) = 0;

    /// The view is being left, which takes a while: whoever asks isShowing() meanwhile runs `finish` first, after which
    /// visual mode has ended and its text is home. Empty once it has been left.
    virtual void setLeaving(std::function<void()> finish) = 0;
    /// Is called when the process that shows the page has ended by itself; the page as it was known last is loaded again.
    virtual void onProcessLost(std::function<void()> handler) = 0;
    /// A page that lies in this folder, or below it, may load files from all of it, and another one from its own folder
    /// and below. Empty for none; it counts from the next load on.
    virtual void setProjectFolder(const QString &folder) = 0;
};

/// Stands for the designer as long as the visual view has not been opened: never showing, never dirty.
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
    void setLeaving(std::function<void()>) override {}
    void onProcessLost(std::function<void()>) override {}
    void setProjectFolder(const QString &) override {}
};

} // namespace zephira

Q_DECLARE_METATYPE(zephira::InsertTableParam)
