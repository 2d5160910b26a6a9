// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/sourcefolder.h"

namespace zephira {

QString sourcePath(const QString &path)
{
    return QStringLiteral(ZEPHIRA_SOURCE_DIR "/") + path;
}

} // namespace zephira
