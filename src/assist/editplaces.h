// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

namespace zephira {

/// The places where a text was changed last. They move with the text. Positions are byte offsets.
class EditPlaces
{
public:
    /// To be called with every insertion and removal; `isNear` says whether two places count as one.
    template<typename IsNear>
    void inserted(qsizetype position, qsizetype length, IsNear isNear)
    {
        note(position, isNear);
        move(position, length);
        m_places.back() = position + length;
    }
    template<typename IsNear>
    void removed(qsizetype position, qsizetype length, IsNear isNear)
    {
        note(position, isNear);
        move(position, -length);
        m_places.back() = position;
    }
    void clear() { m_places.clear(); }

    /// The place changed last, and with each further call without a change in between the one before; after the oldest the
    /// newest again. -1 if nothing was changed. Passes over the places where the caret is, as far as there are others.
    qsizetype next(qsizetype caret);

    static constexpr std::size_t mostPlaces = 20;

private:
    template<typename IsNear>
    void note(qsizetype position, IsNear isNear)
    {
        m_shown = 0;
        if (m_places.empty() || !isNear(m_places.back(), position))
            m_places.push_back(position);
        if (m_places.size() > mostPlaces)
            m_places.erase(m_places.begin());
    }
    void move(qsizetype position, qsizetype growth);

    std::vector<qsizetype> m_places;
    /// The number of places, counted from the newest, that were shown since the last change.
    std::size_t m_shown = 0;
};

} // namespace zephira
