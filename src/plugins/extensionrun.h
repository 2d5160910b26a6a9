// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace zephira {

class ExtensionFolder;
class LateBound;

/// Runs the extensions of a folder. An extension is asked again and again until it is done; in between the program
/// handles its events, so the user can go on working, and can start another run. There is one place for the object that
/// runs: a run that was started later takes it over, and the earlier one ends, without a result, when it comes to its
/// turn again.
class ExtensionRun
{
public:
    /// What is done with a result. A text is never empty here. A language that the list doesn't have ends the run
    /// before `setLanguage` and `finish`.
    struct Delivery {
        std::function<void(const QString &text)> useText;
        std::function<void(int row)> setLanguage;
        /// Called when text and language have been delivered; may be empty.
        std::function<void()> finish = {};
    };

    /// The folder must outlive this.
    explicit ExtensionRun(ExtensionFolder &folder) : m_folder(folder) {}

    /// Makes a new object of that name, runs it and delivers its result. An error ends the run without a message.
    void run(const QString &name, const Delivery &delivery);
    /// Ends all runs at their next turn, without a result: the window is closing.
    void abandon() { ++m_abandoned; }

private:
    const LateBound &object() const;

    ExtensionFolder &m_folder;
    std::shared_ptr<LateBound> m_object;
    /// How often abandon() was called.
    int m_abandoned = 0;
};

} // namespace zephira
