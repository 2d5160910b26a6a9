// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

namespace zephira {

/// Which brackets, quotes and end tags of a text were put behind a caret while one typed. They move with the text. All
/// positions and sizes are in bytes.
class AutoClosed
{
public:
    struct Place {
        qsizetype at = 0;
        qsizetype size = 0;
        friend bool operator==(const Place &, const Place &) = default;
    };

    void add(qsizetype at, qsizetype size) { m_places.push_back({at, size}); }
    /// To be called when text is put somewhere, or removed. What is changed inside isn't remembered any more.
    void inserted(qsizetype at, qsizetype size);
    void erased(qsizetype at, qsizetype size);
    void forget(qsizetype at);
    void clear() { m_places.clear(); }

    /// The size of what begins at a place; 0 if nothing does.
    qsizetype sizeAt(qsizetype at) const;
    const std::vector<Place> &places() const { return m_places; }

private:
    std::vector<Place> m_places;
};

} // namespace zephira
