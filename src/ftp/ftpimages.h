// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

class QWidget;

namespace zephira {

/// A picture of the image lists by its number, from 1 to 13, large and small; see filetypes.h for what the numbers stand
/// for. Where the icon theme lacks it, it is one of the widget's style.
QIcon ftpImage(int number, const QWidget &widget);

/// The picture of a folder in the tree, which is another one while the folder is selected.
QIcon ftpFolderImage(const QWidget &widget);

} // namespace zephira
