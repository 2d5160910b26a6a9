// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/netconnection.h"

#include "core/paths.h"
#include "ftp/namepattern.h"
#include "ftp/siteprofile.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The path without its trailing "/", unless it is the root.
QString withoutLastSlash(const QString &path)
{
    return path.size() > 1 && path.endsWith(u'/') ? path.chopped(1) : path;
}

} // namespace

bool NetConnection::logIn(const QString &server, quint16 port, const QString &user, const QString &password)
{
    const QByteArray userName = user.isEmpty() ? anonymousUser.toUtf8() : user.toUtf8();
    if (!m_conversation.logIn(server, port, userName, password.toUtf8()))
        return false;
    m_folder = m_names.shown(QString(), m_conversation.loginFolder());
    return true;
}

bool NetConnection::setCurrentFolder(const QString &folder)
{
    const QString path = withoutLastSlash(absolutePath(folder));
    if (!execute("CWD", path))
        return false;
    m_folder = path;
    return true;
}

bool NetConnection::execute(const char *name, const QString &path)
{
    return !path.isEmpty() && m_conversation.execute(command(name, path));
}

bool NetConnection::rename(const QString &from, const QString &to)
{
    return !from.isEmpty() && !to.isEmpty()
        && m_conversation.rename(m_names.sent(absolutePath(from)), m_names.sent(absolutePath(to)));
}

std::vector<FindData> NetConnection::find(const QString &search, QDate today)
{
    const QString path = absolutePath(search);
    const QString pattern = lastName(path);
    const QString folder = path.chopped(pattern.size());
    const auto entries = m_conversation.list(m_names.sent(withoutLastSlash(folder)), today);
    std::vector<FindData> found;
    for (const ListedEntry &entry : entries.value_or(std::vector<ListedEntry>())) {
        const QString name = m_names.shown(folder, entry.name);
        if (!matchesNamePattern(name, pattern))
            continue;
        found.push_back({entry.isFolder ? FILE_ATTRIBUTE_DIRECTORY : 0, entry.lastWriteTime,
                         static_cast<quint32>(entry.size >> 32), static_cast<quint32>(entry.size & 0xffffffff), name});
    }
    return found;
}

bool NetConnection::beginTransfer(const char *name, const QString &path)
{
    return !path.isEmpty() && m_conversation.beginTransfer(command(name, path));
}

QString NetConnection::absolutePath(const QString &path) const
{
    if (path.startsWith(u'/'))
        return path;
    return withSlash(m_folder) + path;
}

QByteArray NetConnection::command(const char *name, const QString &path) const
{
    return QByteArray(name) + ' ' + m_names.sent(absolutePath(path));
}

} // namespace zephira
