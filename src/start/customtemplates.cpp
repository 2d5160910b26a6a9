// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/customtemplates.h"

#include "core/filestore.h"

#include <QDir>

namespace zephira {

QStringList customTemplateNames(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
}

Result<void> renameCustomTemplate(FileStore &files, const QString &folder, const QString &oldName,
                                  const QString &newName)
{
    const QString oldPath = folder + u'/' + oldName;
    const Result<QByteArray> content = files.read(oldPath);
    if (!content)
        return content.error();
    if (const Result<void> written = files.write(folder + u'/' + newName, content.value()); !written)
        return written;
    return files.remove(oldPath);
}

} // namespace zephira
