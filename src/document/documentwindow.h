// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QSize>
#include <QString>

namespace zephira {

/// The document's interface to the window that shows it.
class DocumentWindow
{
public:
    virtual ~DocumentWindow() = default;

    virtual void setCaption(const QString &caption) = 0;
    /// Panels 9 and 10 of the status bar.
    virtual void setCountPanel(int characters) = 0;
    virtual void setPathPanel(const QString &text) = 0;
    /// Shows next to the path whether the text differs from its file.
    virtual void showModified(bool modified) = 0;
    /// Reports a problem without interrupting the user.
    virtual void notice(const QString &sentence) = 0;
    /// Selects the first tab of the workspace, which switches to the code view.
    virtual void selectCodeTab() = 0;
    /// The text was saved or discarded: no recovery copy is needed.
    virtual void documentSettled() = 0;
    /// The text could not be saved and is about to be replaced: keeps it as a permanent recovery copy.
    virtual void keepUnsavedText() = 0;
    virtual void showTemplateChooser() = 0;
    /// The document has this file now, which was opened or written.
    virtual void fileUsed(const QString &path) = 0;

    /// The file pane: the text of the selected item, or empty; and the listed folder.
    virtual QString listedFile() const = 0;
    virtual QString listedFolder() const = 0;
    /// Selects the file in the file pane if its folder is listed there.
    virtual void selectListedFile(const QString &path) = 0;
    /// Width and height of a picture in pixels. Fails if the file isn't a picture or is too large to show.
    virtual Result<QSize> pictureSize(const QString &path) const = 0;
    virtual Result<void> showPicture(const QString &path) = 0;
};

} // namespace zephira
