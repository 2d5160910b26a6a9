// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <atomic>
#include <functional>
#include <random>

class QAction;
class QWidget;
class QWindow;

namespace zephira {

class frmmain;
class SoakDesk;

/// Somebody who does anything that can be done with keys and mouse, or who chooses any command, without sense. The events
/// take the way of real ones: they are queued in front of the windows, so that they reach whatever is open by then.
class SoakUser final : public QObject
{
    Q_OBJECT

public:
    struct Plan {
        quint32 seed = 1;
        int steps = 0;
        /// After so many steps everything is closed, and the user rests.
        int between = 1000;
        /// Called with each step before it is done.
        std::function<void(int step, const QString &what)> tell;
    };

    SoakUser(SoakDesk &desk, Plan plan);

    void start();
    /// Why it can't go on, if it can't.
    QString fault() const { return m_fault; }

Q_SIGNALS:
    /// Only the main window is open, with an empty document.
    void resting(int step);
    void finished();

private:
    void tick();
    /// Each of them does one step and returns what it was.
    QString act();
    QString actInPopup(QWidget &popup);
    QString actInDialog(QWidget &dialog);
    QString actInWindow(QWidget &window);
    QString openDocument();
    QString command();
    QString type(QWidget &window);
    QString key(QWidget &window);
    QString clickIn(QWidget &window, QWidget &widget);
    QString dragIn(QWidget &window, QWidget &widget);
    QString wheelIn(QWidget &window, QWidget &widget);
    QString clickSomewhere(QWidget &window);

    void press(QWidget &window, int key, Qt::KeyboardModifiers modifiers, const QString &text = {});
    void mouse(QWidget &window, QPoint at, QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void deliver(QWidget &window, const std::function<void(QWindow &)> &event);
    /// Does one step towards the state of rest, and tells whether it is reached.
    bool comeToRest();
    bool closeOne();
    bool mayBeChosen(const QAction &action) const;
    QList<QWidget *> otherWindows() const;

    int below(int end) { return static_cast<int>(m_random() % static_cast<quint32>(end)); }
    bool oneIn(int number) { return below(number) == 0; }
    QPoint pointIn(const QWidget &window, const QWidget &widget);

    SoakDesk &m_desk;
    const Plan m_plan;
    std::mt19937 m_random;
    QTimer m_timer;
    int m_step = 0;
    /// The names of the commands that have been chosen.
    QSet<QString> m_chosen;
    /// The time of the next event in milliseconds, which tells single clicks from double ones.
    int m_time = 1;
    QPointer<QWidget> m_dialog;
    int m_stepsInDialog = 0;
    bool m_rests = false;
    bool m_isEmpty = false;
    int m_stillFor = 0;
    int m_closings = 0;
    QString m_fault;
};

} // namespace zephira
