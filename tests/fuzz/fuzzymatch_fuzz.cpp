// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary texts and searches: the characters that matched stand in the text, in ascending order, and a text is
// found by itself.
#include "core/fuzzymatch.h"
#include "fuzz/fuzztarget.h"

using namespace zephira;

FUZZ_TARGET(fuzzymatch)
{
    QString text = zephira::fuzz::inputText(data, size);
    const FuzzyPattern pattern(zephira::fuzz::takenLine(text));
    const FuzzyText prepared(text);
    check(prepared.size() <= 256);
    if (const std::optional<FuzzyMatch> match = pattern.match(prepared)) {
        qsizetype last = -1;
        for (const qsizetype place : match->places) {
            check(place > last && place < prepared.size());
            last = place;
        }
    }
    for (const QString &word : pattern.words()) {
        const std::optional<FuzzyMatch> match = matchWord(word, prepared);
        check(!match || match->places.size() == word.size());
        for (qsizetype i = 0; match && i < word.size(); ++i)
            check(prepared.folded()[match->places[i]] == word[i]);
    }
    return 0;
}
