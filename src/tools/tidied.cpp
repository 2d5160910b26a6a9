// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidied.h"

#include "files/lineends.h"
#include "files/textfile.h"
#include "tools/fonttags.h"
#include "tools/tidyplaces.h"

namespace zephira {

namespace {

/// The parts of the whole at which the three runs end, if there are three.
constexpr double firstEnd = 0.4;
constexpr double secondEnd = 0.6;

} // namespace

Result<TidyOutcome> tidied(const TidyEngine &engine, const QByteArray &file, const TidyChoices &choices,
                           TidyWatch &watch)
{
    using Steps = TidyEngine::Steps;
    // Tidy counts lines by line feeds.
    const QByteArray markup = toLineEnds(decodeText(file).utf8, LineEnds::Lf);
    const std::vector<TidySetting> settings = tidySettings(choices);
    const bool dropsFontTags = !choices.isXml && choices.ticked.contains(fontTagsCheck.toString());

    watch.setSpan(0, dropsFontTags ? firstEnd : 1);
    Result<TidyEngine::Run> first = engine.run(markup, settings, Steps::All, watch);
    if (!first)
        return first.error();
    TidyEngine::Run run = std::move(first).value();
    TidyOutcome outcome{{}, std::move(run.messages)};
    toTextPlaces(outcome.messages, markup, countsBytes(choices.charEncoding));
    if (dropsFontTags && run.hasFontTags) {
        // The tags are taken out of the document as it was parsed, before it is cleaned: by then Tidy has closed each
        // of them, and has replaced none by style rules yet.
        watch.setSpan(firstEnd, secondEnd);
        const Result<TidyEngine::Run> parsed = engine.run(markup, parsingSettings(choices), Steps::Parsing, watch);
        if (!parsed)
            return parsed.error();
        watch.setSpan(secondEnd, 1);
        Result<TidyEngine::Run> cleaned =
            engine.run(withoutFontTags(toLineEnds(parsed.value().output, LineEnds::Lf)), settings, Steps::All, watch);
        if (!cleaned)
            return cleaned.error();
        run.output = std::move(cleaned).value().output;
    }
    outcome.text = decodeTidied(run.output, choices.charEncoding);
    return outcome;
}

} // namespace zephira
