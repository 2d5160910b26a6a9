// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace zephira {

/// Names on a server as text and as the bytes that the server knows. A name in UTF-8 needs no memory. One in an older
/// encoding is shown as Windows-1252, and its bytes are kept, so that the file can be asked for by the path shown.
class RemoteNames
{
public:
    /// The text of an entry's name in a folder, whose path ends in "/". When two names look alike, the last one shown is
    /// meant.
    QString shown(const QString &folder, const QByteArray &name);
    /// The bytes of a path that is made of names shown before, of others, or of both.
    QByteArray sent(const QString &path) const;

private:
    /// The bytes of the last name in a path.
    QHash<QString, QByteArray> m_bytes;
};

} // namespace zephira
