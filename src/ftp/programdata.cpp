// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/programdata.h"

#include "core/paths.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView files[] = {u"zephira",    u"zephira.ini",  u"tags.dat",   u"asptags.dat",
                                 u"readme.txt", u"TIPOFDAY.TXT", u"zephira.svg"};
constexpr QStringView folders[] = {u"deps/", u"ctabs/", u"help/", u"templates/", u"Scripts/", u"Tags/"};

} // namespace

bool isProgramData(const QString &appPath, const QString &file)
{
    // The file may be a link; its own location counts, not its target's.
    const QString folder = QFileInfo(parentFolder(file)).canonicalFilePath();
    const QString program = QFileInfo(appPath).canonicalFilePath();
    if (program.isEmpty() || folder.isEmpty())
        return false;
    const QString path = withSlash(folder) + lastName(file);
    if (!path.startsWith(withSlash(program)))
        return false;
    const QString inside = path.sliced(withSlash(program).size());
    return std::ranges::find(files, QStringView(inside)) != std::end(files)
        || (inside.endsWith(u".so") && !inside.contains(u'/'))
        || std::ranges::any_of(folders, [&](QStringView own) { return inside.startsWith(own); });
}

} // namespace zephira
