// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filelookup.h"

#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/prompts.h"
#include "core/relativepath.h"

#include <QFileInfo>

namespace zephira {

std::optional<QString> FileLookup::choose(const AppContext &context, const QString &title, const QString &filter)
{
    const DocumentHost &document = context.document;
    const QString folder = m_folder.isEmpty() && hasProject(document) ? document.projectPath() : m_folder;
    const auto file = context.prompts.file({.title = title, .filter = filter, .initialFolder = folder});
    if (file)
        m_folder = QFileInfo(*file).path();
    return file;
}

QString projectReference(const DocumentHost &document, const QString &file)
{
    return hasProject(document) ? MakeRelativePath(document.projectPath(), file) : file;
}

} // namespace zephira
