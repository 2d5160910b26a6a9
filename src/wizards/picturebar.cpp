// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/picturebar.h"

#include <algorithm>

namespace zephira {

PictureBar::PictureBar(QWidget *parent) : QScrollBar(parent)
{
    setRange(-firstPlace(), -lastPlace());
    setSingleStep(1);
    connect(this, &QScrollBar::valueChanged, this, [this] { Q_EMIT placeChanged(place()); });
}

void PictureBar::makeVisible(int position, int viewport)
{
    // Some of the surroundings become visible, too.
    const int margin = std::min(20, viewport / 4);
    const int nearest = margin - position;
    const int farthest = viewport - margin - position;
    if (place() < nearest)
        setPlace(nearest);
    else if (place() > farthest)
        setPlace(farthest);
}

} // namespace zephira
