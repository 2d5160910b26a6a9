// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/documentnames.h"
#include "core/filestore.h"

#include <QHash>

namespace zephira {

/// The names in the style sheets that a document links, and in those that they import. Sheets are read again when they have
/// changed on the disk. Only files of this machine are read, at most so many of them and so much of each that it can't be
/// noticed; a sheet that imports itself, directly or not, is read once.
class LinkedSheets
{
public:
    /// The store must outlive this.
    explicit LinkedSheets(const FileStore &files) : m_files(files) {}

    /// @param sheets   their addresses, as written in the document
    /// @param folder   of the document, with a "/" at its end; "" if it has none
    /// @param root     what an address with a leading "/" begins at; "" if it isn't known
    DocumentNames names(const QByteArrayList &sheets, const QString &folder, const QString &root);

private:
    struct Sheet {
        FileSignature signature;
        DocumentNames names;
    };

    const DocumentNames *read(const QString &path, qsizetype &allowance);

    const FileStore &m_files;
    QHash<QString, Sheet> m_sheets;
};

/// The path that a link means, without what follows a "?" or "#"; empty if it isn't one of this machine.
QString linkedPath(const QByteArray &address, const QString &folder, const QString &root);

} // namespace zephira
