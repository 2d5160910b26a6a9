// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace zephira {

/// The modules that tests install.
namespace testmodule {
QString citizen();
QString lonely();
QString bare();
QString throwing();
QString unresolved();
QString filler();
QString article();
} // namespace testmodule

/// Copies a module into the folder "plugins" or "wizards" of a program folder, under a name of the test's choice, and
/// returns the copy's path. Nobody else may write to the file and its folder.
QString installModule(const QString &programFolder, const QString &folder, const QString &fileName,
                      const QString &module = testmodule::citizen());

/// What the citizens have noted since the last call.
QStringList takeLog();

/// A program folder for modules.
class ModuleBench
{
public:
    ModuleBench();

    QString path() const { return m_folder.path(); }
    QString plugin(const QString &fileName, const QString &module = testmodule::citizen()) const
    {
        return installModule(path(), QStringLiteral("plugins"), fileName, module);
    }
    QString wizard(const QString &fileName, const QString &module = testmodule::citizen()) const
    {
        return installModule(path(), QStringLiteral("wizards"), fileName, module);
    }

private:
    const QTemporaryDir m_folder;
};

} // namespace zephira
