// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/quickviewrules.h"

#include <algorithm>

namespace zephira {

bool isQuickViewPicture(const QString &fileName)
{
    constexpr QStringView endings[] = {u"jpg", u"gif", u"bmp"};
    return std::any_of(std::begin(endings), std::end(endings),
                       [&](QStringView ending) { return fileName.endsWith(ending, Qt::CaseInsensitive); });
}

} // namespace zephira
