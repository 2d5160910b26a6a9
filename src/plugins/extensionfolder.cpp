// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/extensionfolder.h"

#include "core/errorstyles.h"
#include "plugins/moduletrust.h"
#include "widgets/filenames.h"

#include <QFileInfo>
#include <QMetaObject>
#include <QPluginLoader>
#include <QStringBuilder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

ExtensionFolder::ExtensionFolder(const ExtensionKind &kind, const QString &programFolder)
    : m_kind(kind), m_programFolder(programFolder)
{}

QString ExtensionFolder::path() const
{
    return QString(m_programFolder % u'/' % m_kind.folder);
}

QStringList ExtensionFolder::fileNames() const
{
    return zephira::fileNames(path(), modulePattern.toString());
}

QString ExtensionFolder::objectName(const QString &fileName)
{
    return fileName.section(u'.', 0, 0) + u".Main"_s;
}

std::shared_ptr<LateBound> ExtensionFolder::create(const QString &name)
{
    if (const auto object = m_inUse.value(name).lock(); object && object->isAlive())
        return object;
    const QString file = fileOf(name);
    if (file.isEmpty())
        throw HandlerError{u"There is no module for %1."_s.arg(name)};
    if (!isTrustedModule(file, m_programFolder))
        throw HandlerError{u"Others can change the module %1."_s.arg(file)};
    std::shared_ptr<LateBound> object;
    QString reason = u"it doesn't know the name %1"_s.arg(name);
    runForeign([&] {
        QPluginLoader loader(QFileInfo(file).canonicalFilePath());
        // Without this hint a function that the module needs and nobody has ends the process at its first call.
        loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
        if (QObject *module = loader.instance())
            object = objectOf(*module, name);
        else
            reason = loader.errorString();
    });
    if (!object)
        throw HandlerError{u"The module makes no object: %1."_s.arg(reason)};
    return object;
}

/// Empty if there is no such module.
QString ExtensionFolder::fileOf(const QString &name) const
{
    const QStringList names = fileNames();
    const auto found =
        std::ranges::find_if(names, [&name](const QString &fileName) { return objectName(fileName) == name; });
    return found == names.end() ? QString() : path() + u'/' + *found;
}

std::shared_ptr<LateBound> ExtensionFolder::objectOf(QObject &module, const QString &name)
{
    if (module.metaObject()->indexOfMethod("create(QString)") < 0) {
        auto object = std::make_shared<LateBound>(&module);
        m_inUse.insert(name, object);
        return object;
    }
    QObject *made = nullptr;
    QMetaObject::invokeMethod(&module, "create", Qt::DirectConnection, Q_RETURN_ARG(QObject *, made),
                              Q_ARG(QString, name));
    return made ? std::make_shared<LateBound>(made) : nullptr;
}

} // namespace zephira
