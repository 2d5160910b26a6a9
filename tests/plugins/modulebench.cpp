// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/modulebench.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QFile::Permissions onlyMine = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

QString builtModule(const char *path)
{
    return QString::fromUtf8(path);
}

} // namespace

QString testmodule::citizen()
{
    return builtModule(ZEPHIRA_CITIZEN);
}

QString testmodule::lonely()
{
    return builtModule(ZEPHIRA_LONELY);
}

QString testmodule::bare()
{
    return builtModule(ZEPHIRA_BARE);
}

QString testmodule::throwing()
{
    return builtModule(ZEPHIRA_THROWING);
}

QString testmodule::unresolved()
{
    return builtModule(ZEPHIRA_UNRESOLVED);
}

QString testmodule::filler()
{
    return builtModule(ZEPHIRA_FILLER);
}

QString testmodule::article()
{
    return builtModule(ZEPHIRA_ARTICLE);
}

QString installModule(const QString &programFolder, const QString &folder, const QString &fileName,
                      const QString &module)
{
    const QString path = programFolder + u'/' + folder + u'/' + fileName;
    if (!QDir().mkpath(QFileInfo(path).path()) || !QFile::copy(module, path))
        qFatal("can't copy %s to %s", qPrintable(module), qPrintable(path));
    QFile::setPermissions(path, onlyMine);
    QFile::setPermissions(QFileInfo(path).path(), onlyMine);
    QFile::setPermissions(programFolder, onlyMine);
    return path;
}

QStringList takeLog()
{
    const QStringList log = qApp->property("log").toStringList();
    qApp->setProperty("log", {});
    return log;
}

ModuleBench::ModuleBench()
{
    takeLog();
}

} // namespace zephira
