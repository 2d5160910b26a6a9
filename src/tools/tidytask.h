// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/tidied.h"

#include <memory>
#include <optional>

namespace zephira {

/// A clean-up in a thread of its own. Nobody ever waits for the thread: it owns all that it uses, so that a task may be
/// cancelled, replaced or destroyed at any time. What a cancelled thread still finds is thrown away.
class TidyTask
{
public:
    TidyTask() = default;
    ~TidyTask() { cancel(); }
    Q_DISABLE_COPY_MOVE(TidyTask)

    /// Starts cleaning the content of a file, after cancelling what is still running. The engine has to live as long as
    /// the process. Fails if there is no room for another thread.
    Result<void> start(const TidyEngine &engine, const QByteArray &file, const TidyChoices &choices);
    void cancel();

    /// Whether a clean-up was started and its result wasn't taken yet.
    bool isRunning() const { return m_shared != nullptr; }
    /// From 0 to 1000.
    int permille() const;
    /// The result, once, as soon as there is one.
    std::optional<Result<TidyOutcome>> take();

private:
    struct Shared;

    std::shared_ptr<Shared> m_shared;
};

} // namespace zephira
