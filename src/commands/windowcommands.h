// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// What commands ask of the main window: everything that is about its document, its views, its panes and its check
/// marks. All tabs count from 1.
class WindowCommands
{
public:
    virtual ~WindowCommands() = default;

    virtual void newDocument() = 0;
    virtual void newFromTemplate() = 0;
    virtual void newWindow() = 0;
    virtual void openDocument() = 0;
    virtual void saveDocument() = 0;
    virtual void saveDocumentAs() = 0;
    virtual void saveAsTemplate() = 0;
    virtual void printDocument() = 0;
    virtual void clearClipboard() = 0;
    /// Goes back to the saved file, after asking.
    virtual void revert() = 0;
    /// Ends the process without a question.
    virtual void exitNow() = 0;
    /// Starts the updater and closes.
    virtual void updateProgram() = 0;

    /// From the third view back to the first.
    virtual void nextView() = 0;
    /// 1 code, 2 preview, 3 visual.
    virtual void selectView(int tab) = 0;
    /// A tab of the side pane, 1 to 12; 7 is the first custom tab.
    virtual void selectSideTab(int tab) = 0;
    /// The list of style selectors over the palette.
    virtual void setSelectorListVisible(bool visible) = 0;

    /// Check mark of a menu entry, or whether the palette's button `selector` is pressed.
    virtual bool isChecked(const QString &name) const = 0;
    virtual void setChecked(const QString &name, bool checked) = 0;
    /// 1: the caret's line is drawn in the highlight colour from the next selection change on; 0: it isn't.
    virtual void setHighlightMode(int mode) = 0;

    /// The readme in the quick view.
    virtual void showReadme() = 0;
    /// The FTP window, its local folder preset from the project folder where one is set.
    virtual void showFtp() = 0;
    /// The tag editor. `page` is the one to show, 1 to 16, or 0 for the one that it last showed.
    virtual void openTagEditor(int page) = 0;
    /// Spelling of the selection, or of the whole text where nothing is selected.
    virtual void checkSpelling() = 0;
};

} // namespace zephira
