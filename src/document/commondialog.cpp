// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/commondialog.h"

#include <QDir>

namespace zephira {

namespace {

qsizetype titleStart(const QString &path)
{
    return qMax(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1;
}

} // namespace

QString CommonDialog::fileTitle() const
{
    return fileTitleOf(fileName);
}

QString fileTitleOf(const QString &path)
{
    return path.mid(titleStart(path));
}

QString folderOf(const QString &path)
{
    return path.left(titleStart(path));
}

QString withSeparator(const QString &folder)
{
    return folder.endsWith(u'/') || folder.endsWith(u'\\') ? folder : folder + QDir::separator();
}

} // namespace zephira
