// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/quickviewrules.h"

#include "core/languages.h"

#include <algorithm>

namespace zephira {

bool isQuickViewPicture(const QString &fileName)
{
    return std::ranges::any_of(fileTypes(), [&](const FileType &type) {
        return type.isImage && fileName.endsWith(type.extension, Qt::CaseInsensitive);
    });
}

} // namespace zephira
