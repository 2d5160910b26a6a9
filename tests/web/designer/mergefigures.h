// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/designerbench.h"

#include <QList>
#include <QMap>
#include <QStringList>

namespace zephira {

/// What edits of real pages do to their sources.
struct MergeFigures {
    /// For each kind of edit, the lines that are gone and come, page by page.
    QMap<QString, QList<int>> lines;
    /// What is wrong, with the page and the edit.
    QStringList faults;
    /// Edits for which the whole page was written.
    QStringList wholePages;
    /// Edits that touched many lines.
    QStringList wide;
    int pages = 0;

    int median(const QString &edit) const;
    /// A line for each kind of edit.
    QString table() const;
};

/// Edits each of the pages in each way: nothing, a letter, a bold word, Enter, a link, a table's row, a paragraph removed.
/// Where a page has no place for an edit, that is left out.
MergeFigures measureMerges(DesignerBench &bench, const QStringList &pages);

/// The lines of one text that the other doesn't have, and the reverse, counted as a comparison of versions counts them.
int linesGoneAndCome(const QString &before, const QString &after);

} // namespace zephira
