// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// A tip that names the keys which do the same, as the desktop writes them: "Delete the files (Del)". `keys` are written
/// as in QKeySequence::PortableText; without any the tip stays as it is.
QString tipWithKeys(QStringView tip, QStringView keys);

} // namespace zephira
