// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/documentcheck.h"

#include "problems/pagecheck.h"
#include "problems/structurecheck.h"
#include "problems/stylecheck.h"
#include "problems/xmlcheck.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

void append(std::vector<Problem> &all, std::vector<Problem> more)
{
    all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

std::vector<Problem> problemsOfPage(const CheckOrder &order, CheckReport &report, ProblemSink &sink, TidyWatch &watch)
{
    PageFacts page = checkPage(coverServerCode(order.text, false), *order.names, order.places, sink, watch);
    std::vector<Problem> all = sink.taken();
    // What a server puts into a page may open and close elements. Where one isn't closed, Tidy guesses where it ends, and
    // what it says then about those behind follows from the guess.
    const bool isSure =
        !page.isMadeByServer && !page.isBroken && page.unbalanced.empty() && !page.structure.trimmed().isEmpty();
    append(all, std::move(page.unbalanced));
    if (order.tidy && isSure) {
        ProblemSink nesting;
        const Result<void> checked = checkStructure(page, *order.tidy, nesting, watch);
        if (!checked && !watch.isCancelled())
            report.notes.append(checked.error().sentence);
        report.isCut = nesting.isFull();
        append(all, nesting.taken());
    }
    return all;
}

std::vector<Problem> problemsIn(const CheckOrder &order, CheckReport &report, ProblemSink &sink, TidyWatch &watch)
{
    switch (order.language) {
    case PlaceLanguage::Html:
        return problemsOfPage(order, report, sink, watch);
    case PlaceLanguage::Xml:
        checkXml(coverServerCode(order.text, true), sink, watch);
        break;
    case PlaceLanguage::StyleSheet: {
        const CoveredText sheet = coverServerCode(order.text, false);
        checkStyleSheet({sheet.text, 0}, *order.names, sink, watch);
        break;
    }
    case PlaceLanguage::Other:
        break;
    }
    return sink.taken();
}

} // namespace

CheckReport checkDocument(const CheckOrder &order, TidyWatch &watch)
{
    CheckReport report;
    ProblemSink sink;
    std::vector<Problem> problems = problemsIn(order, report, sink, watch);
    if (watch.isCancelled())
        return {};
    const auto key = [](const Problem &each) { return std::tuple(each.start, each.severity, each.end); };
    std::ranges::stable_sort(problems, {}, key);
    const auto repeated = std::ranges::unique(problems);
    problems.erase(repeated.begin(), repeated.end());
    report.isCut = report.isCut || sink.isFull() || problems.size() > CheckReport::mostProblems;
    if (problems.size() > CheckReport::mostProblems)
        problems.resize(CheckReport::mostProblems);
    report.problems = std::move(problems);
    return report;
}

} // namespace zephira
