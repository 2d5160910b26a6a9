// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileDialog>
#include <QFileIconProvider>

namespace zephira {

/// Tells type and picture of a file by its name alone. Qt's own reads each file that has no known suffix, and a read may
/// never end: of the kernel's messages below /proc, or on a server that doesn't answer.
class NamedFileTypes : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo &file) const override;
    QString type(const QFileInfo &file) const override;
};

/// Keeps the types longer than the dialog, whose own thread asks for them until the dialog is gone.
struct FileTypesKeeper {
    NamedFileTypes fileTypes;
};

/// Qt's file dialog or, unless `ofQt`, the desktop's, which never reads the files that it lists.
class FileDialog final : private FileTypesKeeper, public QFileDialog
{
public:
    FileDialog(QWidget *parent, const QString &title, bool ofQt);
};

} // namespace zephira
