// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary sizes and speeds: every caption is short and ends in its unit, and numbers read back.
#include "fuzz/fuzztarget.h"
#include "tools/documentweight.h"
#include "tools/numbertext.h"

#include <cmath>
#include <cstring>

FUZZ_TARGET(documentweight)
{
    using namespace zephira;
    using namespace Qt::StringLiterals;
    double numbers[2];
    if (size < sizeof numbers)
        return 0;
    std::memcpy(numbers, data, sizeof numbers);
    const auto [kilobytes, speed] = numbers;
    if (!std::isfinite(kilobytes) || kilobytes < 0 || !std::isfinite(speed) || speed <= 0)
        return 0;
    const double back = numberText(kilobytes).toDouble();
    check(std::abs(back - kilobytes) <= 1e-14 * kilobytes || kilobytes < 1e-300);
    const std::optional<QString> caption = sizeCaption(kilobytes);
    check(caption.has_value() == (kilobytes != 10));
    check(!caption || (caption->endsWith(u" KB") && caption->size() <= 8));
    const QString time = timeCaption(kilobytes, LineSpeed{speed});
    check(time.endsWith(u" Sec.") && time.size() > 5);
    return 0;
}
