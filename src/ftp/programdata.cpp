// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/programdata.h"

#include "core/appcontext.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "files/appfolder.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView files[] = {u"zephira",      u"zephira.ini", u"tags.dat",    u"asptags.dat", u"readme.txt",
                                 u"TIPOFDAY.TXT", u"zephira.svg", u"zephira.ico", u"reg.ini"};
constexpr QStringView folders[] = {u"deps/", u"ctabs/", u"help/", u"templates/", u"Scripts/", u"Tags/"};
constexpr QStringView profileEnd = u".ftp";

/// The file's own place below a folder, or nothing; a link's target doesn't count.
QString placeIn(const QString &root, const QString &file)
{
    const QString folder = QFileInfo(parentFolder(file)).canonicalFilePath();
    const QString top = QFileInfo(root).canonicalFilePath();
    if (top.isEmpty() || folder.isEmpty())
        return {};
    const QString path = withSlash(folder) + lastName(file);
    return path.startsWith(withSlash(top)) ? path.sliced(withSlash(top).size()) : QString();
}

bool confirmNeeded(const AppContext &context, const QStringList &needed, const QString &question)
{
    return needed.isEmpty()
        || context.prompts.ask({u"Zephira itself needs: "_s + needed.join(u", "_s) + u"\r\n"_s + question,
                                {},
                                Question::Icon::Question,
                                Question::Buttons::YesNo})
        == Answer::Yes;
}

} // namespace

bool isProgramData(const QString &appPath, const QString &file)
{
    if (!placeIn(userFolder(), file).isEmpty())
        return true;
    const QString inside = placeIn(appPath, file);
    return std::ranges::find(files, QStringView(inside)) != std::end(files)
        || (inside.endsWith(u".so") && !inside.contains(u'/'))
        || std::ranges::any_of(folders, [&](QStringView own) { return inside.startsWith(own); });
}

bool mayChangeProgramData(const AppContext &context, const QString &folder, const QStringList &names,
                          const QString &question)
{
    QStringList needed;
    std::ranges::copy_if(names, std::back_inserter(needed),
                         [&](const QString &name) { return isProgramData(context.appPath, folder + name); });
    return confirmNeeded(context, needed, question);
}

bool mayOverwriteProgramData(const AppContext &context, const QString &folder, const QStringList &names)
{
    const auto isOwn = [&](const QString &file) {
        const QString inside = placeIn(context.appPath, file);
        return isProgramData(context.appPath, file) || (inside.endsWith(profileEnd) && !inside.contains(u'/'));
    };
    QStringList needed;
    for (const QString &name : names) {
        const QString target = QFileInfo(folder + name).canonicalFilePath();
        if (!target.isEmpty() && (isOwn(folder + name) || isOwn(target)))
            needed.append(name);
    }
    return confirmNeeded(context, needed, u"Overwrite it all the same?"_s);
}

} // namespace zephira
