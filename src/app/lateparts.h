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

/// The parts of a window that nobody sees at first. They are made in the order in which they are added: at once, or when
/// the window has been painted and has nothing else to do, one at a time.
class LateParts final : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive this.
    LateParts(QWidget &window, HiddenParts when);

    /// Adds what makes a part, or goes on with parts that were added before. What it makes takes the place in the tab
    /// order that it would have if it were made now.
    void add(std::function<void()> make);

    /// Makes at once what is still to be made, for whoever needs it.
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
    /// By the control behind which late ones were put: the last of them.
    QHash<QWidget *, QPointer<QWidget>> m_lastBehind;
    QTimer m_idle;
};

} // namespace zephira
