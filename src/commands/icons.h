// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QObject>

class QAction;
class QGuiApplication;

namespace zephira {

/// The icon that a command table names:
///   "document-save"  an icon of the Breeze theme,
///   "#checkbox"      one of the program's own drawings,
///   ":td"            no icon: a button shows this text instead.
/// An empty name gives no icon either. All follow the colours of the palette.
QIcon iconFor(QStringView icon);

/// Gives an action its icon or its button text. Menus continue to show the action's own text.
void setCommandIcon(QAction *action, QStringView icon);

/// Keeps the icon theme in step with the colours of the desktop: Breeze on light windows, Breeze Dark on dark ones. The
/// theme's folders are set explicitly, so that it works without a desktop too. Create it before the first icon is
/// drawn.
class IconTheme : public QObject
{
    Q_OBJECT

public:
    explicit IconTheme(QGuiApplication &application);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followPalette();
};

/// Disables an action that needs a program which doesn't exist on this system. Its tips say so.
void markUnsupported(QAction *action);

} // namespace zephira
