// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/filerow.h"

#include <QStringList>

namespace zephira {

/// This machine's side of the FTP window as its commands see it: drives, folders, file list and the controls around
/// them.
class LocalView
{
public:
    virtual ~LocalView() = default;

    virtual FileRows &files() = 0;

    /// Path of the folder list, without a trailing separator unless it is a root.
    virtual QString folder() const = 0;
    /// Moves the folder list. Returns false for a path that can't be read, and leaves the list where it was.
    virtual bool setFolder(const QString &path) = 0;
    /// Reads drives, folders and files again.
    virtual void refreshLists() = 0;
    /// The names in the folder that match the pattern, in the order of the hidden file list.
    virtual QStringList fileNames() const = 0;

    /// Shows the folder above the pane.
    virtual void setPathText(const QString &text) = 0;
    /// Changes the pattern of the hidden file list, and the check marks of the pattern menu.
    virtual void setPattern(const QString &pattern, bool all) = 0;
};

} // namespace zephira
