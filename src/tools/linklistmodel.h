// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QStringListModel>

namespace zephira {

/// Addresses under one heading, each with a small picture. A page may name millions of them, so there is no item object
/// for each.
class LinkListModel final : public QStringListModel
{
    Q_OBJECT

public:
    LinkListModel(QString heading, QIcon picture, QObject *parent);

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    const QString m_heading;
    const QIcon m_picture;
};

} // namespace zephira
