// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>
#include <QString>

class QWidget;

namespace zephira {

class UserSettings;

/// Restores or saves a window's place: the keys WindowState, Top, Left, Height and Width in the section named after the
/// window's objectName. States are 0 normal, 1 minimised, 2 maximised; the other values are in twips, 1/15 of a pixel.
///
/// Saving writes the state first and then returns the window to normal, so that the saved place is the one it has when
/// it is neither minimised nor maximised. Restoring keeps the window's own value where a stored one is missing or not a
/// number, and sets the state last. A window whose stored place is on no screen is moved to the first screen. A window
/// without a stored size is limited to the size of its screen.
void FormPosition(QWidget &form, bool saving, UserSettings &settings);

/// Where a window should go, in pixels. Its size is at most that of all screens together and at least a title bar and
/// `least`, below which its contents can't go. If enough of the window's upper edge to grab it lies on a screen, the
/// wanted place is kept; else the result is the nearest place on the first screen, made small enough to fit. Without
/// screens, the wanted place is returned as is.
QRect placeOnScreens(const QRect &wanted, const QSize &least, const QList<QRect> &screens);

} // namespace zephira
