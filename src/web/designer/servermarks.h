// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/pagescan.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace zephira {

/// Puts marks in the place of what a browser would spoil or hide in a page (server code, comments, declarations), and
/// puts the very same characters back in the place of the marks. A mark is a comment between tags and a word elsewhere:
///
///     <td <%= attributes %>><!-- here --><%= value %></td>
///     <td zs1f0x0a><!--zs1f0x1c--><!--zs1f0x2s--></td>
///
/// The last letter of a mark tells where it stands: "s" server code between tags, "c" a comment there, "a" in the place
/// of an attribute or in its name, "v" inside a value or inside text that holds no tags.
///
/// Scripts get an attribute that keeps the engine from waiting for them, as long as it has the page:
///
///     <script nomodule="zs1f0" src="menu.js"></script>
///
/// and the groups of rows that the author wrote one that tells them from those that the engine adds:
///
///     <tbody zs1f0t="">
class ServerMarks
{
public:
    /// What the marks of a page begin with: a word of lower-case letters and digits that the page doesn't hold.
    explicit ServerMarks(QString prefix) : m_prefix(std::move(prefix)) {}

    /// The source with marks. What they stand for is remembered beside what earlier calls found.
    QString mask(QStringView source);
    QString mask(QStringView source, const std::vector<PagePiece> &pieces);
    /// Puts back what the marks stand for, wherever they have got to and however often; words that look like a mark and
    /// are none stay.
    QString unmask(QStringView html) const;

    const QString &prefix() const { return m_prefix; }
    const QStringList &blocks() const { return m_blocks; }

private:
    QString markFor(QStringView block, char16_t kind);
    QString idleAttribute() const;
    QString writtenAttribute() const;

    QString m_prefix;
    QStringList m_blocks;
};

/// A prefix that the source doesn't hold, different at each call as far as chance goes.
QString freshMarkPrefix(const QString &source);

} // namespace zephira
