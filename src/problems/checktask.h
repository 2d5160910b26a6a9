// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/documentcheck.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace zephira {

/// Checks documents in a thread, one after the other. Nobody ever waits for the thread: it owns all that it uses, so that
/// this may be destroyed at any time.
class CheckTask final : public QObject
{
    Q_OBJECT

public:
    CheckTask() = default;
    ~CheckTask() override;

    /// Begins a check as soon as the one before has ended, whose report isn't wanted any more. `make` makes the order
    /// when the check begins.
    void start(std::function<CheckOrder()> make);
    /// The report of what runs isn't wanted any more.
    void cancel();
    /// Whether a report is still to come.
    bool isBusy() const { return m_wanted || (m_shared && !m_isCancelled); }

Q_SIGNALS:
    /// The last check that was started has ended.
    void finished(const zephira::CheckReport &report);

private:
    struct Shared;

    void begin();
    void end();

    std::shared_ptr<Shared> m_shared;
    std::function<CheckOrder()> m_wanted;
    bool m_isCancelled = false;
};

} // namespace zephira
