// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>

namespace zephira {

/// A scroll bar whose value is the place of a picture's left or top edge in its viewport, in pixels: 0 at one end, -1000
/// at the other, whatever the size of the picture. The place is known by the names that scroll bars have for it.
class PictureBar final : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ firstPlace)
    Q_PROPERTY(int maximum READ lastPlace)
    Q_PROPERTY(int value READ place WRITE setPlace NOTIFY placeChanged)

public:
    explicit PictureBar(QWidget *parent = nullptr);

    static constexpr int firstPlace() { return 0; }
    static constexpr int lastPlace() { return -1000; }
    int place() const { return -value(); }
    /// A place outside the range counts as its nearest end.
    void setPlace(int place) { setValue(-place); }
    /// Makes the steps fit the inner width or height of the viewport.
    void setViewport(int length) { setPageStep(length / 4); }
    /// Moves the picture so far that a position in it is visible, as far as the range allows.
    void makeVisible(int position, int viewport);

Q_SIGNALS:
    void placeChanged(int place);
};

} // namespace zephira
