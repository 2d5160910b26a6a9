// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QWidget>

#include <vector>

class QCheckBox;

namespace zephira {

/// The check boxes for the options of Tidy, in two columns.
class TidyChecks final : public QWidget
{
    Q_OBJECT

public:
    explicit TidyChecks(QWidget *parent = nullptr);

    /// The names of the ticked boxes.
    QSet<QString> ticked() const;

private:
    std::vector<QCheckBox *> m_boxes;
};

} // namespace zephira
