// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/pagelinks.h"

#include "completion/linkedsheets.h"
#include "core/entitynames.h"
#include "core/paths.h"
#include "problems/markupreader.h"

#include <QDir>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A longer address than this isn't that of a file.
constexpr qsizetype longestAddress = 4096;
constexpr int mostRoots = 32;

/// What a server may add to a name.
constexpr std::array<QStringView, 5> endings{u".html", u".htm", u".php", u".asp", u".aspx"};

} // namespace

QByteArray plainAddress(QByteArrayView address)
{
    QByteArray plain;
    while (!address.isEmpty()) {
        const qsizetype ampersand = address.indexOf('&');
        plain += address.first(ampersand < 0 ? address.size() : ampersand);
        if (ampersand < 0)
            break;
        address = address.sliced(ampersand);
        const qsizetype end = address.indexOf(';');
        const char32_t c = end < 0 ? 0 : entityCharacter(QString::fromUtf8(address.sliced(1, end - 1)));
        plain += c == 0 ? QByteArray("&") : QString::fromUcs4(&c, 1).toUtf8();
        address = address.sliced(c == 0 ? 1 : end + 1);
    }
    return plain.trimmed();
}

PageLinks::PageLinks(LinkPlaces places, bool isPart) : m_places(std::move(places)), m_isPart(isPart)
{
    if (m_places.folder.isEmpty())
        return;
    // Where the server's root lies isn't known: any folder around the page may be it.
    for (QString folder = QDir::cleanPath(m_places.folder); m_roots.size() < mostRoots; folder = parentFolder(folder)) {
        m_roots.append(folder);
        if (folder == u"/" || !folder.contains(u'/'))
            break;
    }
    if (!m_places.project.isEmpty())
        m_roots.append(m_places.project);
}

bool PageLinks::isThere(const QString &path)
{
    ++m_lookups;
    return m_places.exists(path);
}

bool PageLinks::isBroken(QByteArrayView address)
{
    if (m_places.folder.isEmpty() || address.size() > longestAddress || isDynamic(address) || m_lookups >= mostLookups)
        return false;
    QByteArray plain = plainAddress(address);
    plain.replace('\\', '/');
    constexpr QByteArrayView notOfFiles("$<>{}\"|\n\r\t~*");
    const bool isMade = std::ranges::any_of(std::as_const(plain), [&](char c) { return notOfFiles.contains(c); });
    if (plain.isEmpty() || plain.startsWith('#') || plain.startsWith('?') || isMade)
        return false;
    const auto known = m_known.constFind(plain);
    if (known != m_known.cend())
        return *known;
    const bool isFromRoot = plain.startsWith('/');
    const QStringList roots = isFromRoot || m_isPart ? m_roots : QStringList{m_places.folder};
    bool isBroken = false;
    for (const QString &root : roots) {
        const QString path = linkedPath(plain, root, root);
        isBroken = !path.isEmpty() && !path.contains(QChar(0)) && !isThere(path)
            && std::ranges::none_of(endings, [&](QStringView ending) { return isThere(path + ending.toString()); });
        if (!isBroken)
            break;
    }
    m_known.insert(plain, isBroken);
    return isBroken;
}

} // namespace zephira
