// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/filedialog.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QMimeType>

namespace zephira {

QIcon NamedFileTypes::icon(const QFileInfo &file) const
{
    if (!file.isFile())
        return QFileIconProvider::icon(file);
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    const QIcon picture = QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
    return picture.isNull() ? icon(File) : picture;
}

QString NamedFileTypes::type(const QFileInfo &file) const
{
    if (!file.isFile())
        return QFileIconProvider::type(file);
    return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
}

FileDialog::FileDialog(QWidget *parent, const QString &title, bool ofQt) : QFileDialog(parent, title)
{
    setOption(QFileDialog::DontUseNativeDialog, ofQt);
    setIconProvider(&fileTypes);
}

} // namespace zephira
