// SPDX-License-Identifier: GPL-3.0-or-later
// search_bench FOLDER PATTERN [case] [word] [expression]: searches the files of FOLDER as the panel does, and prints how
// many matches there are.
#include "search/searchrun.h"

#include <QFile>

#include <chrono>
#include <cstdio>
#include <thread>

using namespace zephira;

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    ProjectSearch search;
    search.folder = QFile::decodeName(argv[1]);
    search.request.pattern = QString::fromUtf8(argv[2]);
    for (int i = 3; i < argc; ++i) {
        const QByteArrayView option(argv[i]);
        search.request.matchCase |= option == "case";
        search.request.wholeWord |= option == "word";
        search.request.regularExpression |= option == "expression";
    }
    const auto run = SearchRun::start(search);
    if (!run)
        return 1;
    // The panel looks as often as that.
    while (!run.value()->isFinished()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        run.value()->take();
    }
    const SearchCounts counts = run.value()->counts();
    std::printf("%d matches in %d of %d files\n", counts.matches, counts.filesWithMatches, counts.files);
    return 0;
}
