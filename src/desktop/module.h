// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QObject>

namespace zephira {

/// Loads a part of the program from its own file, so that only those who use it pay for it, and returns its object,
/// which lives as long as the process. A path that isn't absolute is refused: nothing is searched for. Loading a file
/// again returns the same object.
Result<QObject *> loadModule(const QString &file);

/// The same, cast to an interface that the object implements; an object without that interface is refused.
template<typename Interface>
Result<Interface *> loadModuleAs(const QString &file)
{
    const Result<QObject *> module = loadModule(file);
    if (!module)
        return module.error();
    if (Interface *interface = qobject_cast<Interface *>(module.value()))
        return interface;
    return Error{Error::Code::Malformed,
                 QStringLiteral("The file %1 belongs to another version of the program.").arg(file)};
}

} // namespace zephira
