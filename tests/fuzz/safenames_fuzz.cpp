// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary names of files and folders: what is allowed is one name in a folder, and a text for the server is one
// line.
#include "core/paths.h"
#include "files/templatename.h"
#include "ftp/safenames.h"
#include "fuzz/fuzztarget.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(safenames)
{
    const QString name = zephira::fuzz::inputText(data, size);
    if (name.isEmpty())
        return 0;
    const QByteArray bytes = name.toUtf8();
    if (isSafeRemoteName(name)) {
        check(isSafeRemoteName(bytes) && bytes.size() <= longestRemoteName && isSafeInCommand(name));
        check(QFileInfo(u"/a/"_s + name).fileName() == name && QDir::cleanPath(u"/a/"_s + name) == u"/a/"_s + name);
    }
    if (checkTemplateName(name))
        check(QFileInfo(u"/a/"_s + name).fileName() == name && QDir::cleanPath(u"/a/"_s + name) == u"/a/"_s + name);
    if (isSafeInCommand(name))
        check(isSafeInCommand(bytes) && !bytes.contains('\n') && !bytes.contains('\r') && !bytes.contains('\0'));
    isSafeRemoteName(zephira::fuzz::inputBytes(data, size));
    check(folderOf(name) + fileTitleOf(name) == name && name.endsWith(extensionOf(name)));
    check(withSeparator(name).startsWith(name) && withSlash(name).startsWith(name)
          && withSlash(bytes).startsWith(bytes));
    check(name.endsWith(lastName(name)) && !parentFolder(name).isEmpty());
    return 0;
}
