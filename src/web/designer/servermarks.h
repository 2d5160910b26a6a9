// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/pagescan.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace zephira {

/// Replaces whatever a browser would damage or hide in a page (server code, comments, declarations) by marks, and later
/// restores the original characters. A mark is a comment between tags and a word elsewhere:
///
///     <td <%= attributes %>><!-- here --><%= value %></td>
///     <td zs1f0x0a><!--zs1f0x1c--><!--zs1f0x2s--></td>
///
/// The last letter of a mark tells its kind: "s" server code between tags, "c" a comment between tags, "a" an attribute
/// or part of its name, "v" inside a value or inside text that can't contain tags.
///
/// Scripts get an attribute that keeps the engine from waiting for them while the page is loaded:
///
///     <script nomodule="zs1f0" src="menu.js"></script>
///
/// and the author's tbody elements get one to distinguish them from those that the engine adds:
///
///     <tbody zs1f0t="">
class ServerMarks
{
public:
    /// `prefix` begins the marks of a page: a word of lower-case letters and digits that doesn't occur in the page.
    explicit ServerMarks(QString prefix) : m_prefix(std::move(prefix)) {}

    /// Returns the source with marks. The replaced texts are remembered, in addition to those of earlier calls.
    QString mask(QStringView source);
    QString mask(QStringView source, const std::vector<PagePiece> &pieces);
    /// Replaces all marks by the original texts, wherever and however often they occur; words that only look like a
    /// mark stay.
    QString unmask(QStringView html) const;

    /// The text with the numbers of its marks and the values that the engine gives them left out, for comparing texts
    /// in which they were given differently.
    QString withoutNumbers(QStringView html) const;

    const QString &prefix() const { return m_prefix; }
    const QStringList &blocks() const { return m_blocks; }

private:
    QString markFor(QStringView block, char16_t kind);
    QString idleAttribute() const;
    QString writtenAttribute() const;

    QString m_prefix;
    QStringList m_blocks;
};

/// A random prefix that doesn't occur in the source.
QString freshMarkPrefix(const QString &source);

} // namespace zephira
