// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/paths.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

qsizetype titleStart(const QString &path)
{
    return qMax(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1;
}

} // namespace

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

QString extensionOf(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : name.sliced(dot + 1);
}

QString withSlash(const QString &folder)
{
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

QByteArray withSlash(const QByteArray &folder)
{
    return folder.endsWith('/') ? folder : folder + '/';
}

QString parentFolder(const QString &folder)
{
    const qsizetype separator = folder.lastIndexOf(u'/');
    return separator <= 0 ? u"/"_s : folder.first(separator);
}

QString lastName(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

} // namespace zephira
