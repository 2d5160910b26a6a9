// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeWidget>

namespace zephira {

struct AppContext;

/// The list of ASP codes in the side pane. A double click inserts one after the selection.
class AspTagTree final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit AspTagTree(const AppContext &context, QWidget *parent = nullptr);

    /// Adds a root node for each line, including blank ones.
    void addLines(const QStringList &lines);
};

} // namespace zephira
