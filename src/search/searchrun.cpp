// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/searchrun.h"

#include "files/buffertext.h"
#include "files/bulkreader.h"
#include "files/filewalk.h"
#include "files/textfile.h"
#include "search/bytefilter.h"
#include "widgets/filenames.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>
#include <utility>

namespace zephira {

namespace {

/// Files that a thread takes at a time.
constexpr int filesAtOnce = 16;
constexpr unsigned int mostThreads = 4;

struct Job {
    int order = 0;
    QByteArray path;
};

} // namespace

/// What the threads share.
class SearchRun::State
{
public:
    State(const ProjectSearch &search, PatternSearch pattern, int atMost)
        : m_search(search)
        , m_pattern(std::move(pattern))
        , m_filter(search.request)
        , m_openText(withLineFeeds(search.openText))
        , m_names(search.filePatterns)
        , m_walk(search.folder, [this](const QString &name) { return m_names.match(name); })
        , m_left(atMost)
    {}

    ~State()
    {
        stop();
        for (std::thread &thread : m_threads)
            thread.join();
    }

    void start()
    {
        const unsigned int threads = std::clamp(std::thread::hardware_concurrency(), 1U, mostThreads);
        m_running = static_cast<int>(threads);
        for (unsigned int i = 0; i < threads; ++i)
            m_threads.emplace_back([this] { work(); });
    }

    void stop() { m_isStopped = true; }
    bool isFinished() const { return m_running == 0; }

    std::vector<FoundFile> take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_found, {});
    }

    SearchCounts counts() const
    {
        const std::scoped_lock lock(m_mutex);
        SearchCounts counts = m_counts;
        counts.isStopped = m_isStopped && !counts.isCut;
        return counts;
    }

private:
    void work()
    {
        BulkReader reader({.mayHold = [this](QByteArrayView bytes) { return m_filter.mayHold(bytes); },
                           .overlap = m_filter.overlap(),
                           .isStopped = [this] { return m_isStopped.load(); },
                           .isAlwaysWanted = [this](const FileSignature &file) { return isOpen(file); }});
        std::vector<Job> jobs;
        while (!m_isStopped && takeJobs(jobs)) {
            for (const Job &job : std::as_const(jobs)) {
                if (m_isStopped)
                    break;
                search(reader, job);
            }
        }
        --m_running;
    }

    bool takeJobs(std::vector<Job> &jobs)
    {
        jobs.clear();
        const std::scoped_lock lock(m_walkMutex);
        while (jobs.size() < filesAtOnce && !m_isStopped) {
            std::optional<QByteArray> path = m_walk.next();
            if (!path)
                break;
            jobs.push_back({m_order++, std::move(*path)});
        }
        const std::scoped_lock countsLock(m_mutex);
        const FileWalk::LeftOut &leftOut = m_walk.leftOut();
        m_counts.unreadableFolders = leftOut.unreadableFolders;
        m_counts.otherFileSystems = leftOut.otherFileSystems;
        m_counts.invalidNames = leftOut.invalidNames;
        return !jobs.empty();
    }

    bool isOpen(const FileSignature &file) const
    {
        const FileSignature &open = m_search.openFile;
        return open.exists && file.device == open.device && file.inode == open.inode;
    }

    void search(BulkReader &reader, const Job &job)
    {
        const BulkReader::Content content = reader.read(job.path);
        if (content.kind != BulkReader::Kind::Wanted) {
            count(content.kind);
            return;
        }
        const bool open = isOpen(content.signature);
        FoundMatches found = findMatches(m_pattern, open ? m_openText : textOf(content.bytes), m_search.replacement,
                                         m_left, [this] { return !m_isStopped; });
        const std::scoped_lock lock(m_mutex);
        ++m_counts.files;
        m_counts.givenUp += found.gaveUp ? 1 : 0;
        // Another thread may have found some meanwhile.
        const int left = m_left;
        if (found.isCut || static_cast<int>(found.matches.size()) > left) {
            found.matches.resize(std::min(found.matches.size(), static_cast<std::size_t>(left)));
            m_counts.isCut = true;
            m_isStopped = true;
        }
        if (found.matches.empty())
            return;
        const int matches = static_cast<int>(found.matches.size());
        m_left = left - matches;
        ++m_counts.filesWithMatches;
        m_counts.matches += matches;
        m_found.push_back({job.order, QFile::decodeName(job.path), content.signature, open, std::move(found.matches)});
    }

    static QString textOf(QByteArrayView bytes)
    {
        const DecodedText text = decodeText(QByteArray::fromRawData(bytes.data(), bytes.size()));
        return withLineFeeds(fromBuffer(text.utf8, LineEnds::Mixed));
    }

    void count(BulkReader::Kind kind)
    {
        const std::scoped_lock lock(m_mutex);
        m_counts.files += kind == BulkReader::Kind::Unwanted ? 1 : 0;
        m_counts.binaryFiles += kind == BulkReader::Kind::Binary ? 1 : 0;
        m_counts.unreadableFiles += kind == BulkReader::Kind::Unreadable ? 1 : 0;
        m_counts.tooLargeFiles += kind == BulkReader::Kind::TooLarge ? 1 : 0;
    }

    const ProjectSearch m_search;
    const PatternSearch m_pattern;
    const ByteFilter m_filter;
    const QString m_openText;
    const FilePatterns m_names;

    std::mutex m_walkMutex;
    FileWalk m_walk;
    int m_order = 0;

    mutable std::mutex m_mutex;
    std::vector<FoundFile> m_found;
    SearchCounts m_counts;

    /// Matches that may still be listed.
    std::atomic_int m_left;
    std::atomic_bool m_isStopped = false;
    std::atomic_int m_running = 0;
    std::vector<std::thread> m_threads;
};

SearchRun::SearchRun(std::unique_ptr<State> state) : m_state(std::move(state)) {}

SearchRun::~SearchRun() = default;

Result<std::unique_ptr<SearchRun>> SearchRun::start(const ProjectSearch &search, int atMost)
{
    Result<PatternSearch> pattern = PatternSearch::make(search.request);
    if (!pattern)
        return pattern.error();
    auto state = std::make_unique<State>(search, std::move(pattern).value(), atMost);
    state->start();
    return std::unique_ptr<SearchRun>(new SearchRun(std::move(state)));
}

std::vector<FoundFile> SearchRun::take()
{
    return m_state->take();
}

SearchCounts SearchRun::counts() const
{
    return m_state->counts();
}

bool SearchRun::isFinished() const
{
    return m_state->isFinished();
}

void SearchRun::stop()
{
    m_state->stop();
}

} // namespace zephira
