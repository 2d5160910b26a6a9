// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace zephira {

/// Converts names between text and the bytes that the server uses. A UTF-8 name needs no bookkeeping. A name in an
/// older encoding is shown as Windows-1252, and its bytes are kept, so that the displayed path leads back to the file.
class RemoteNames
{
public:
    /// The text of an entry's name in a folder, whose path ends in "/". If two names have the same text, it refers to
    /// the last one shown.
    QString shown(const QString &folder, const QByteArray &name);
    /// The bytes of a path; it may consist of names shown before, other names, or both.
    QByteArray sent(const QString &path) const;

private:
    /// The bytes of a path's last name.
    QHash<QString, QByteArray> m_bytes;
};

} // namespace zephira
