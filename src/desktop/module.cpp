// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/module.h"

#include <QDir>
#include <QPluginLoader>

using namespace Qt::StringLiterals;

namespace zephira {

Result<QObject *> loadModule(const QString &file)
{
    if (!QDir::isAbsolutePath(file))
        return Error{Error::Code::Refused, u"The module %1 isn't named by its full path."_s.arg(file)};
    // Destroying the loader doesn't unload the module.
    QPluginLoader loader(file);
    if (QObject *module = loader.instance())
        return module;
    return Error{Error::Code::Failed, u"A part of the program can't be loaded: %1"_s.arg(loader.errorString())};
}

} // namespace zephira
