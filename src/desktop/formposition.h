// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>
#include <QString>

class QWidget;

namespace zephira {

class UserSettings;

/// Restores or saves where a window stands: the keys WindowState, Top, Left, Height and Width in the section that bears
/// the window's objectName. States are 0 normal, 1 minimised, 2 maximised; the other values are twips, 1/15 of a pixel.
///
/// Saving writes the state first and then returns the window to normal, so that the place kept is the one it has when it
/// is neither minimised nor maximised. Restoring takes a value that is missing or no number as the window's own, sets
/// the state last, and brings a window whose stored place no screen shows back to the first screen. A window without a
/// stored size is made to fit its screen.
void FormPosition(QWidget &form, bool saving, UserSettings &settings);

/// The wanted place, no larger than all screens together and no smaller than a title bar, if enough of the window's upper
/// edge to grab it lies on a screen; else the nearest place on the first screen, made small enough to fit. Without
/// screens the place is as wanted.
QRect placeOnScreens(const QRect &wanted, const QList<QRect> &screens);

} // namespace zephira
