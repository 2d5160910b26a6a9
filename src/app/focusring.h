// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QWidget;

namespace zephira {

/// Ctrl+F6 takes the keyboard from one part of the window to the next, Shift+Ctrl+F6 back. It is the way out of the text,
/// which keeps the Tab key to itself.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    struct Part {
        QWidget *area = nullptr;
        /// Gives the keyboard to the part; without it the first control inside that takes it gets it.
        std::function<void()> enter = {};
    };

    /// @param window  the keys work in this window
    /// @param parts   in the order of the walk; each outlives the ring
    FocusRing(QWidget &window, std::vector<Part> parts);

    /// Goes to the next part that can take the keyboard, or to the one before.
    void walk(bool backward);

private:
    static QWidget *firstControl(QWidget &area);

    std::vector<Part> m_parts;
};

} // namespace zephira
