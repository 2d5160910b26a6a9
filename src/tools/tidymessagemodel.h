// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/tidyengine.h"

#include <QAbstractListModel>
#include <QIcon>

#include <vector>

namespace zephira {

/// Tidy's messages under one heading: a small picture that tells warnings from errors, and the sentence. There may be a
/// million of them, so there is no item object for each.
class TidyMessageModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Pictures {
        QIcon warning;
        QIcon error;
    };

    TidyMessageModel(QString heading, Pictures pictures, QObject *parent);

    /// Appends the warnings, then the errors, each in their order.
    void append(const std::vector<TidyMessage> &messages);
    /// The message of a row.
    const TidyMessage &message(int row) const { return m_messages[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const QString m_heading;
    const Pictures m_pictures;
    std::vector<TidyMessage> m_messages;
};

} // namespace zephira
