// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/localfiles.h"

#include "core/paths.h"
#include "web/remoteaccess.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Schemes that pages may use in addition to local files. All others, such as the engine's own pages, are refused.
constexpr QStringView openSchemes[] = {u"http", u"https", u"ws", u"wss", u"data", u"blob", u"about"};

bool hasOpenScheme(const QUrl &address)
{
    return std::ranges::find(openSchemes, address.scheme()) != std::end(openSchemes);
}

/// The file at an address with all links resolved; empty for a file that doesn't exist or isn't on this machine.
QString fileBehind(const QUrl &address)
{
    if (!address.isLocalFile() || !address.host().isEmpty())
        return {};
    return QFileInfo(address.toLocalFile()).canonicalFilePath();
}

bool liesBeneath(const QString &file, const QString &folder)
{
    return file == folder || file.startsWith(withSlash(folder));
}

} // namespace

void LocalFiles::open(const QUrl &address)
{
    m_coming = address;
    if (!address.isLocalFile())
        return;
    QString folder = QFileInfo(QFileInfo(address.toLocalFile()).path()).canonicalFilePath();
    if (!folder.isEmpty() && !m_projectFolder.isEmpty() && liesBeneath(folder, m_projectFolder))
        folder = m_projectFolder;
    m_folders.removeAll(folder);
    if (!folder.isEmpty())
        m_folders.append(folder);
}

void LocalFiles::setProjectFolder(const QString &folder)
{
    m_projectFolder = folder.isEmpty() ? QString() : QFileInfo(folder).canonicalFilePath();
}

void LocalFiles::shown(const QUrl &address)
{
    m_shown = address;
    m_coming.clear();
}

/// The opened folder that contains a page; empty for one that isn't local.
QString LocalFiles::readableFolder(const QUrl &page) const
{
    const QString file = fileBehind(page);
    const auto folder = std::find_if(m_folders.rbegin(), m_folders.rend(),
                                     [&](const QString &open) { return liesBeneath(file, open); });
    return folder == m_folders.rend() ? QString() : *folder;
}

bool LocalFiles::isLocal() const
{
    return !isRemote(m_shown) || (!m_coming.isEmpty() && !isRemote(m_coming));
}

bool LocalFiles::mayShow(const QUrl &address) const
{
    if (!address.isLocalFile())
        return hasOpenScheme(address);
    // A missing page reveals nothing, so it may be shown: then the engine tells the user about it in its own words.
    const bool isOwn = address == m_coming || address == m_shown;
    return (isOwn && !QFileInfo::exists(address.toLocalFile())) || !readableFolder(address).isEmpty();
}

bool LocalFiles::mayLoad(const QUrl &address) const
{
    if (!address.isLocalFile())
        return hasOpenScheme(address);
    const QString file = fileBehind(address);
    if (file.isEmpty())
        return false;
    return std::ranges::any_of(std::initializer_list<QUrl>{m_shown, m_coming}, [&](const QUrl &page) {
        const QString folder = readableFolder(page);
        return !folder.isEmpty() && liesBeneath(file, folder);
    });
}

} // namespace zephira
