// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QWidget;

namespace zephira {

/// Ctrl+F6 moves the focus from one part of the window to the next, Shift+Ctrl+F6 to the previous one. It is the way to
/// leave the code view, which uses the Tab key itself.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    struct Part {
        QWidget *area = nullptr;
        /// Focuses the part. If it is empty, the first control in the area that takes focus gets it.
        std::function<void()> enter = {};
    };

    /// @param window  the window in which the keys work
    /// @param parts   in focus order; all must outlive the ring
    FocusRing(QWidget &window, std::vector<Part> parts);

    /// Adds a part behind the others.
    void add(Part part) { m_parts.push_back(std::move(part)); }

    /// Focuses the next or previous part that can take focus.
    void walk(bool backward);

private:
    static QWidget *firstControl(QWidget &area);

    std::vector<Part> m_parts;
};

} // namespace zephira
