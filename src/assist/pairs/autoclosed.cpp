// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/autoclosed.h"

#include <algorithm>

namespace zephira {

void AutoClosed::inserted(qsizetype at, qsizetype size)
{
    std::erase_if(m_places, [&](const Place &each) { return each.at < at && at < each.at + each.size; });
    for (Place &each : m_places) {
        if (each.at >= at)
            each.at += size;
    }
}

void AutoClosed::erased(qsizetype at, qsizetype size)
{
    std::erase_if(m_places, [&](const Place &each) { return each.at < at + size && at < each.at + each.size; });
    for (Place &each : m_places) {
        if (each.at >= at)
            each.at -= size;
    }
}

void AutoClosed::forget(qsizetype at)
{
    std::erase_if(m_places, [&](const Place &each) { return each.at == at; });
}

qsizetype AutoClosed::sizeAt(qsizetype at) const
{
    const auto found = std::ranges::find(m_places, at, &Place::at);
    return found == m_places.end() ? 0 : found->size;
}

} // namespace zephira
