// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugins/extensionkind.h"
#include "plugins/latebound.h"

#include <QHash>
#include <QStringList>

namespace zephira {

/// The extensions of one kind: the modules in its folder, and the objects that they make. The folder is looked through
/// anew each time. A module stays loaded until the program ends.
class ExtensionFolder
{
public:
    ExtensionFolder(const ExtensionKind &kind, const QString &programFolder);

    const ExtensionKind &kind() const { return m_kind; }
    /// Full path of the folder, which need not exist.
    QString path() const;
    /// Names of the modules, in the order of a file list.
    QStringList fileNames() const;

    /// The name of the object that belongs to a module's file: "hello.Main" for "hello.so" and for "hello.2.so".
    static QString objectName(const QString &fileName);

    /// Makes the object of that name. It comes from the first module with that name, through its invokable function
    /// create(QString), or it is the module's own object if it has no such function. Raises HandlerError if there is no
    /// such module, if others could have changed it, if it can't be loaded, or if it doesn't know the name.
    std::shared_ptr<LateBound> create(const QString &name);

private:
    QString fileOf(const QString &name) const;
    std::shared_ptr<LateBound> objectOf(QObject &module, const QString &name);

    const ExtensionKind &m_kind;
    const QString m_programFolder;
    /// The objects that are modules themselves. While one is in use, it is all there is of that name.
    QHash<QString, std::weak_ptr<LateBound>> m_inUse;
};

} // namespace zephira
