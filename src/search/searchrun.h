// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filestore.h"
#include "search/foundmatch.h"

#include <QString>

#include <memory>
#include <vector>

namespace zephira {

/// What is searched for, and where.
struct ProjectSearch {
    SearchRequest request;
    QString replacement = {};
    /// Full path of the folder; the folders below it are searched as well.
    QString folder = {};
    /// Of the files' names; see FilePatterns.
    QString filePatterns = {};
    /// The document in the editor: its file, known by device and inode under any path, and its text with any line ends,
    /// which is searched in place of the file's.
    FileSignature openFile = {};
    QString openText = {};
};

/// A file with matches. A file that isn't the open document had the signature when it was read.
struct FoundFile {
    int order = 0; ///< its place among all files that were searched
    QString path = {};
    FileSignature signature = {};
    bool isOpenDocument = false;
    std::vector<FoundMatch> matches = {};
};

/// How far a search is, and what it left out.
struct SearchCounts {
    int files = 0;
    int filesWithMatches = 0;
    int matches = 0;
    int binaryFiles = 0;
    int unreadableFiles = 0;
    int tooLargeFiles = 0;
    int unreadableFolders = 0;
    int otherFileSystems = 0;
    int invalidNames = 0;
    /// Files in which the expression needed too many steps.
    int givenUp = 0;
    /// The limit of matches was reached, and the search ended there.
    bool isCut = false;
    bool isStopped = false;

    friend bool operator==(const SearchCounts &, const SearchCounts &) = default;
};

/// More matches than these aren't listed.
constexpr int maximumMatches = 20'000;

/// One search through the files of a folder, in threads of its own, which begins when it is made.
class SearchRun
{
public:
    /// Fails for an invalid regular expression, as PatternSearch does.
    static Result<std::unique_ptr<SearchRun>> start(const ProjectSearch &search, int atMost = maximumMatches);
    /// Stops the search and waits for the file that is being read.
    ~SearchRun();
    SearchRun(const SearchRun &) = delete;
    SearchRun &operator=(const SearchRun &) = delete;

    /// What was found since the last call, in the order in which it was found.
    std::vector<FoundFile> take();
    SearchCounts counts() const;
    /// Whether all threads have ended. What they found may still be there to take.
    bool isFinished() const;
    /// Returns at once; the threads end soon.
    void stop();

private:
    class State;

    explicit SearchRun(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};

} // namespace zephira
