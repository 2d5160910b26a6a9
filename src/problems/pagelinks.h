// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>

#include <functional>

namespace zephira {

/// Where the files are that a page links.
struct LinkPlaces {
    /// The folder of the page; empty if the page has no file yet.
    QString folder = {};
    /// The folder of the project; empty if there is none.
    QString project = {};
    /// Whether a file or folder exists.
    std::function<bool(const QString &path)> exists = {};
};

/// Tells links whose files don't exist. Only names of this machine are looked at, nothing is ever asked over a network
/// protocol.
class PageLinks
{
public:
    /// @param isPart  whether the page is put into others, so that its links may count from their folders
    PageLinks(LinkPlaces places, bool isPart);

    /// Whether the address, as it is written in a page, is that of a file of this machine that doesn't exist.
    bool isBroken(QByteArrayView address);

    /// More files than these aren't looked for.
    static constexpr int mostLookups = 5000;

private:
    bool isThere(const QString &path);

    const LinkPlaces m_places;
    const bool m_isPart;
    /// The folder, the project and the folders around.
    QStringList m_roots;
    QHash<QByteArray, bool> m_known;
    int m_lookups = 0;
};

/// An address with its character references read.
QByteArray plainAddress(QByteArrayView address);

} // namespace zephira
