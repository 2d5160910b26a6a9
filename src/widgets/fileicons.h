// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace zephira {

/// A picture of the image lists by its number, from 1 to 13, in a large and a small size; see fileimages.h for the
/// meaning of the numbers. If the icon theme lacks the picture, the application's style provides one.
QIcon fileIcon(int number);

/// The picture of a folder in the tree; it differs while the folder is selected.
QIcon folderIcon();

} // namespace zephira
