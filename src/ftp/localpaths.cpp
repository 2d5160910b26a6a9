// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/localpaths.h"

#include "core/vbtext.h"

using namespace Qt::StringLiterals;

namespace zephira {

QString withSlash(const QString &folder)
{
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

QString parentFolder(const QString &folder)
{
    const qsizetype separator = folder.lastIndexOf(u'/');
    return separator <= 0 ? u"/"_s : folder.first(separator);
}

QString folderName(const QString &folder)
{
    return folder.sliced(folder.lastIndexOf(u'/') + 1);
}

QString shownFolder(const QString &folder)
{
    constexpr qsizetype longest = 30;
    return folder.size() > longest ? Trim(u"..."_s + Right(folder, longest)) : folder;
}

} // namespace zephira
