// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "tools/tidyoptions.h"

#include <QByteArray>
#include <QtPlugin>

#include <atomic>
#include <functional>
#include <vector>

namespace zephira {

/// What Tidy says about one place of a document.
struct TidyMessage {
    enum class Kind { Warning, Error };

    Kind kind = Kind::Warning;
    /// 0-based, -1 for the document as a whole.
    int line = -1;
    /// 0-based. An engine counts as Tidy does; tidied() turns that into UTF-16 code units.
    int column = 0;
    /// The whole sentence, with the place as Tidy counts it.
    QString text = {};
    /// Tidy's own name for the message; given by a check alone.
    QByteArray key = {};

    friend bool operator==(const TidyMessage &, const TidyMessage &) = default;
};

/// How far a job has come, and whether it is still wanted. Shared by the thread that works and the one that waits.
class TidyWatch
{
public:
    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }
    /// From 0 to 1000.
    int permille() const { return m_permille; }

    /// The part of the whole that the next run takes, from 0 to 1.
    void setSpan(double from, double to)
    {
        m_from = from;
        m_to = to;
        setProgress(0);
    }
    /// The progress within that part, from 0 to 1.
    void setProgress(double done) { m_permille = static_cast<int>(1000 * (m_from + (m_to - m_from) * done)); }

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<int> m_permille = 0;
    /// Used by the working thread alone.
    double m_from = 0;
    double m_to = 1;
};

/// Tidy itself. It keeps nothing between two runs, so several threads may use it at a time.
class TidyEngine
{
public:
    enum class Steps {
        All,     ///< parse, clean and repair, diagnose
        Parsing, ///< parse and write
        Checking ///< parse only, for the messages and their keys
    };
    /// The largest number of messages that are kept.
    static constexpr std::size_t mostMessages = 1'000'000;

    struct Run {
        QByteArray output;
        std::vector<TidyMessage> messages;
        /// Whether the parsed document has font or center elements.
        bool hasFontTags = false;
    };

    virtual ~TidyEngine() = default;
    /// Reads the markup, which has LF line ends, and writes it again unless it is only checked. Fails if the job is cancelled, if elements are
    /// nested too deeply, if the document needs far more memory than its size suggests, or if Tidy gives up.
    virtual Result<Run> run(const QByteArray &markup, const std::vector<TidySetting> &settings, Steps steps,
                            TidyWatch &watch) const = 0;
};

/// Returns the engine, which lives as long as the process, loading its module at the first call; fails if it can't be
/// loaded.
using TidyEngineLoader = std::function<Result<TidyEngine *>()>;

} // namespace zephira

Q_DECLARE_INTERFACE(zephira::TidyEngine, "org.zephira.TidyEngine")
