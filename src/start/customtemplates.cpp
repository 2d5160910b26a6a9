// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/customtemplates.h"

#include "core/filestore.h"
#include "files/recoverycopies.h"
#include "files/templatename.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Keeps the file that is about to be overwritten, if there is one.
Result<void> keepExisting(const FileStore &files, RecoveryCopies &recovery, const QString &path)
{
    if (!files.signature(path).exists)
        return {};
    const Result<QByteArray> content = files.read(path);
    if (!content)
        return content.error();
    const Result<QString> copy = recovery.keepDisk(path, content.value());
    return copy ? Result<void>() : copy.error();
}

} // namespace

Result<void> renameCustomTemplate(FileStore &files, RecoveryCopies &recovery, const QString &folder,
                                  const QString &oldName, const QString &newName)
{
    if (const Result<void> checked = checkTemplateName(newName); !checked)
        return checked;
    const QString oldPath = folder + u'/' + oldName;
    const QString newPath = folder + u'/' + newName;
    const Result<QByteArray> content = files.read(oldPath);
    if (!content)
        return content.error();
    if (const Result<void> kept = keepExisting(files, recovery, newPath); !kept) {
        return Error{kept.error().code,
                     u"The template was not renamed, because the file \"%1\", which would be overwritten, could not be "
                     "backed up. "_s.arg(newName)
                         + kept.error().sentence};
    }
    if (const Result<void> written = files.write(newPath, content.value()); !written)
        return written;
    return files.remove(oldPath);
}

} // namespace zephira
