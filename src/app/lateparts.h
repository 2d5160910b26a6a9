// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/windowservices.h"

#include <QHash>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>

namespace zephira {

/// The parts of a window that are invisible at first. They are created in the order in which they were added: at once,
/// or one at a time when the window has been painted and is idle.
class LateParts final : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive this.
    LateParts(QWidget &window, HiddenParts when);

    /// Adds a function that creates a part, or adds to parts created earlier. Its controls get the positions in the tab
    /// order that they would have if they were created now.
    void add(std::function<void()> make);

    /// Creates all remaining parts at once, for code that needs them.
    void finish();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Part {
        std::function<void()> make;
        QPointer<QWidget> before;
    };

    void makeNext();
    void moveInFocusChain(const QWidget *lastOther, QWidget *before);

    QWidget &m_window;
    const HiddenParts m_when;
    std::deque<Part> m_parts;
    /// For each control after which late ones were inserted: the last of these.
    QHash<QWidget *, QPointer<QWidget>> m_lastBehind;
    QTimer m_idle;
};

} // namespace zephira
