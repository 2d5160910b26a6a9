// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/editplaces.h"

#include <algorithm>

namespace zephira {

void EditPlaces::move(qsizetype position, qsizetype growth)
{
    for (qsizetype &place : m_places) {
        if (place > position)
            place = std::max(position, place + growth);
    }
}

qsizetype EditPlaces::next(qsizetype caret)
{
    qsizetype place = -1;
    for (std::size_t tried = 0; tried < m_places.size(); ++tried) {
        m_shown = m_shown % m_places.size() + 1;
        place = m_places[m_places.size() - m_shown];
        if (place != caret)
            break;
    }
    return place;
}

} // namespace zephira
