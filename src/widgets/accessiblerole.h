// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

class QWidget;

namespace zephira {

/// What a widget that paints itself is for assistive technology, which otherwise hears only that something is there. To be
/// called in the widget's constructor.
void giveRole(QWidget &widget, QAccessible::Role role);

} // namespace zephira
