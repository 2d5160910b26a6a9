// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/hiddenfocus.h"

#include <QApplication>
#include <QWidget>

namespace zephira {

void keepFocusFromHidden(QWidget &view)
{
    QObject::connect(qApp, &QApplication::focusChanged, &view, [&view](QWidget *before, QWidget *now) {
        if (before && now && !view.isVisible() && view.isAncestorOf(now) && !view.isAncestorOf(before))
            before->setFocus();
    });
}

} // namespace zephira
