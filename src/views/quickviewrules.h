// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Whether quick view shows the file as a picture: the last three characters of its name are "jpg", "gif" or "bmp" in
/// any case. A ".jpeg" file is shown as text.
bool isQuickViewPicture(const QString &fileName);

} // namespace zephira
