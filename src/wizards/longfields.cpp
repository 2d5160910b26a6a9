// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/longfields.h"

#include <QComboBox>
#include <QLineEdit>

#include <limits>

namespace zephira {

void acceptAnyText(const QWidget &form)
{
    const auto lists = form.findChildren<QComboBox *>();
    for (QComboBox *list : lists) {
        if (list->isEditable())
            list->setCompleter(nullptr);
    }
    const auto boxes = form.findChildren<QLineEdit *>();
    for (QLineEdit *box : boxes)
        box->setMaxLength(std::numeric_limits<int>::max());
}

} // namespace zephira
