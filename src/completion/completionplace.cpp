// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completionplace.h"

#include "completion/completiontext.h"
#include "completion/markupplace.h"
#include "completion/styleplace.h"

#include <array>

namespace zephira {

namespace {

/// What a text may be in the middle of, by how it begins and ends.
struct Stretch {
    QByteArrayView begin;
    QByteArrayView end;
};

constexpr std::array<Stretch, 5> stretches{{
    {"<!--", "-->"},
    {"<script", "</script"},
    {"<style", "</style"},
    {"<%", "%>"},
    {"<?", "?>"},
}};

/// Where a text that was cut anywhere can be read from: behind the first end of a comment, script, style sheet or server
/// block that has no beginning, otherwise at the first tag.
qsizetype firstSafePlace(QByteArrayView text)
{
    qsizetype from = 0;
    for (const Stretch &stretch : stretches) {
        const qsizetype end = findIgnoringCase(text, stretch.end, 0);
        if (end < 0)
            continue;
        const qsizetype begin = findIgnoringCase(text.first(end), stretch.begin, 0);
        if (begin < 0)
            from = std::max(from, stretch.end.startsWith("</") ? end : end + stretch.end.size());
    }
    const qsizetype tag = text.indexOf('<', from);
    return tag < 0 ? from : tag;
}

CompletionPlace wordPlace(QByteArrayView text)
{
    return {.kind = PlaceKind::Words, .start = nameStart(text, text.size())};
}

} // namespace

CompletionPlace completionPlace(QByteArrayView before, PlaceLanguage language, bool isCut)
{
    if (language == PlaceLanguage::Other)
        return wordPlace(before);
    qsizetype from = 0;
    if (isCut && language == PlaceLanguage::StyleSheet)
        from = before.indexOf('}') + 1;
    else if (isCut)
        from = firstSafePlace(before);
    const QByteArrayView text = before.sliced(from);
    CompletionPlace place = language == PlaceLanguage::StyleSheet ? stylePlace(text, false)
                                                                  : markupPlace(text, language == PlaceLanguage::Xml);
    place.start += from;
    return place;
}

} // namespace zephira
