// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/shownfolder.h"

#include "core/vbtext.h"

using namespace Qt::StringLiterals;

namespace zephira {

QString shownFolder(const QString &folder)
{
    constexpr qsizetype longest = 30;
    return folder.size() > longest ? Trim(u"..."_s + Right(folder, longest)) : folder;
}

} // namespace zephira
