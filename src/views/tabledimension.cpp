// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/tabledimension.h"

#include "core/vbtext.h"

#include <algorithm>

namespace zephira {

std::optional<int> tableDimension(const QString &text)
{
    const QString digits = Trim(text);
    const bool isWhole = std::ranges::all_of(digits, [](QChar c) { return c >= u'0' && c <= u'9'; });
    bool isNumber = false;
    const short number = digits.toShort(&isNumber);
    return isWhole && isNumber && number > 0 ? std::optional<int>(number) : std::nullopt;
}

} // namespace zephira
