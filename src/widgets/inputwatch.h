// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace zephira {

/// Knows whether the user has just clicked or pressed a key in a web view. A page's scripts can imitate clicks inside the
/// page, but not here.
class InputWatch final : public QObject
{
    Q_OBJECT

public:
    explicit InputWatch(QWidget &view);

    /// Whether there was input a moment ago that hasn't been taken. Each input can be taken once.
    bool take();

    /// How long input counts, in milliseconds: the page needs some time until it follows a link.
    static constexpr int patience = 2000;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Invalid if there is none that can be taken.
    QElapsedTimer m_sinceInput;
};

} // namespace zephira
