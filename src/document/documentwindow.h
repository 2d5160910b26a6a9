// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QSize>
#include <QString>

namespace zephira {

/// What the document asks of the window that shows it.
class DocumentWindow
{
public:
    virtual ~DocumentWindow() = default;

    virtual void setCaption(const QString &caption) = 0;
    /// Panels 9 and 10 of the status bar.
    virtual void setCountPanel(int characters) = 0;
    virtual void setPathPanel(const QString &text) = 0;
    /// Whether the text differs from its file, to be seen at the path.
    virtual void showModified(bool modified) = 0;
    /// Says something that went wrong without stopping the user.
    virtual void notice(const QString &sentence) = 0;
    /// Selects the first tab of the workspace, which runs the change of view.
    virtual void selectCodeTab() = 0;
    /// The text is in its file now, or isn't wanted any more: no recovery copy is needed.
    virtual void documentSettled() = 0;
    /// The text was to be saved, which failed, and is about to be replaced: keeps it as a recovery copy that stays.
    virtual void keepUnsavedText() = 0;
    virtual void showTemplateChooser() = 0;

    /// The file pane: the selected item's text, or empty; and the folder that is listed.
    virtual QString listedFile() const = 0;
    virtual QString listedFolder() const = 0;
    /// Selects the file in the file pane where its folder is listed.
    virtual void selectListedFile(const QString &path) = 0;
    /// Width and height of a picture in pixels. Fails for a file that isn't one, or is too large to show.
    virtual Result<QSize> pictureSize(const QString &path) const = 0;
    virtual Result<void> showPicture(const QString &path) = 0;
};

} // namespace zephira
