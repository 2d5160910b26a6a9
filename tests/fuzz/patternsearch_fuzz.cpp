// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary searches: matches lie within the text, in order and without overlapping, nothing is missed by the look at
// the bytes, and replacing them changes these places alone.
#include "fuzz/fuzztarget.h"
#include "search/bytefilter.h"
#include "search/filereplacement.h"
#include "search/foundmatch.h"

#include <QStringEncoder>

using namespace zephira;

namespace {

void checkReplacing(const QString &text, const ReplaceOrder &order, const PatternSearch &search)
{
    const FoundMatches found = findMatches(search, text, order.replacement, 1000, [] { return true; });
    for (const FoundMatch &match : found.matches) {
        check(match.line >= 0 && match.column >= 0 && match.endLine >= match.line);
        check(match.start >= 0 && match.length >= 0 && match.start + match.length <= match.text.size());
        const ReplacedLine line = replacedLine(match);
        check(line.start >= 0 && line.start + line.length <= line.text.size());
    }
    if (found.gaveUp || found.isCut)
        return;
    std::vector<bool> chosen(found.matches.size(), true);
    const auto changes = replacementsIn(text, order, found.matches, chosen);
    check(changes && areInOrder(changes.value(), text.size()) && changes.value().size() == chosen.size());
    chosen.assign(chosen.size(), false);
    const auto none = replacementsIn(text, order, found.matches, chosen);
    check(none && none.value().empty());
}

} // namespace

FUZZ_TARGET(patternsearch)
{
    // The first line is the pattern, with what kind of search it is in its first character, the second the replacement.
    QString text = zephira::fuzz::inputText(data, size);
    QString pattern = zephira::fuzz::takenLine(text);
    const QString replacement = zephira::fuzz::takenLine(text);
    const ushort kind = pattern.isEmpty() ? ushort{0} : pattern.front().unicode();
    const SearchRequest request{pattern.mid(1), (kind & 1) != 0, (kind & 2) != 0, (kind & 4) != 0};
    const Result<PatternSearch> search = PatternSearch::make(request);
    if (!search || request.pattern.isEmpty())
        return 0;
    text = withLineFeeds(text);
    const std::vector<TextMatch> all = search.value().all(text, 0, text.size(), replacement);
    qsizetype end = 0;
    for (const TextMatch &match : all) {
        check(match.start >= end && match.end >= match.start && match.end <= text.size());
        end = match.end;
    }
    const std::optional<TextMatch> first = search.value().next(text, 0, text.size(), replacement);
    check(first == (all.empty() ? std::nullopt : std::optional(all.front())));
    const ByteFilter filter(request);
    if (!all.empty()) {
        check(filter.mayHold(text.toUtf8()));
        check(filter.mayHold("\xff\xfe" + QByteArray(QStringEncoder(QStringEncoder::Utf16LE)(text))));
    }
    checkReplacing(text, {request, replacement}, search.value());
    return 0;
}
