// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidychecks.h"

#include "tools/tidyoptions.h"

#include <QCheckBox>
#include <QGridLayout>

namespace zephira {

TidyChecks::TidyChecks(QWidget *parent) : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    const auto checks = tidyChecks();
    const int rows = static_cast<int>(checks.size() + 1) / 2;
    for (const TidyCheck &check : checks) {
        auto *box = new QCheckBox(check.caption.toString(), this);
        box->setObjectName(check.control);
        const int number = static_cast<int>(m_boxes.size());
        grid->addWidget(box, number % rows, number / rows);
        m_boxes.push_back(box);
    }
}

QSet<QString> TidyChecks::ticked() const
{
    QSet<QString> names;
    for (const QCheckBox *box : m_boxes) {
        if (box->isChecked())
            names.insert(box->objectName());
    }
    return names;
}

} // namespace zephira
