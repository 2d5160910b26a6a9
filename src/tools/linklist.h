// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

class QStringListModel;

namespace zephira {

/// A list of texts that may have millions of rows, so there is no item object for each.
class LinkList final : public QListView
{
    Q_OBJECT
    Q_PROPERTY(QStringList rows READ rows WRITE setRows)
    Q_PROPERTY(int horizontalExtent READ horizontalExtent WRITE setHorizontalExtent)

public:
    explicit LinkList(QWidget *parent = nullptr);

    QStringList rows() const;
    void setRows(const QStringList &rows);
    /// Appends rows below the others.
    void append(const QStringList &rows);

    /// The width in pixels that can be scrolled to; 0 for the width of the list.
    int horizontalExtent() const { return m_extent; }
    void setHorizontalExtent(int pixels);

private:
    QStringListModel *const m_model;
    int m_extent = 0;
};

} // namespace zephira
