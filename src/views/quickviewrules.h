// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Whether quick view shows the file as a picture: its name's last three characters are "jpg", "gif" or "bmp" in any
/// case. A ".jpeg" file is a text.
bool isQuickViewPicture(const QString &fileName);

} // namespace zephira
