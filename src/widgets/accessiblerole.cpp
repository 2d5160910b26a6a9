// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/accessiblerole.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace zephira {

namespace {

constexpr auto roleProperty = "zephiraAccessibleRole";

QAccessibleInterface *make(const QString &, QObject *object)
{
    const QVariant role = object ? object->property(roleProperty) : QVariant();
    auto *widget = role.isValid() ? qobject_cast<QWidget *>(object) : nullptr;
    return widget ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

} // namespace

void giveRole(QWidget &widget, QAccessible::Role role)
{
    widget.setProperty(roleProperty, static_cast<int>(role));
    // Installing the same factory again changes nothing.
    QAccessible::installFactory(make);
}

} // namespace zephira
