// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages: the elements around a place are nested tags of the text, whether it is read at once or in pieces,
// after a change or afresh.
#include "assist/elementcaption.h"
#include "core/openelements.h"
#include "fuzz/fuzztarget.h"

#include <vector>

using namespace zephira;

namespace {

std::vector<ElementTag> elementsAround(OpenElements &reader, const OpenElements::Text &text, qsizetype place)
{
    for (;;) {
        if (const auto found = reader.around(text, place, 64))
            return *found;
    }
}

void checkElements(OpenElements &reader, QByteArrayView text, const std::vector<ElementTag> &elements, qsizetype place)
{
    qsizetype at = 0;
    for (const ElementTag &element : elements) {
        check(element.begin >= at && element.begin <= place && element.tagEnd > element.begin);
        check(element.tagEnd <= text.size() && text[element.begin] == '<' && !element.name.isEmpty());
        at = element.tagEnd;
    }
    // From the outermost to the innermost, as the positions behind them go down.
    qsizetype end = text.size();
    for (const ElementTag &element : elements) {
        const qsizetype behind = reader.endOf({text, {}}, element);
        check(behind >= element.tagEnd && behind <= end);
        end = behind;
        elementCaption(text.sliced(element.begin, element.tagEnd - element.begin), element.name);
    }
}

} // namespace

FUZZ_TARGET(openelements)
{
    // Two bytes are places.
    if (size < 2)
        return 0;
    const QByteArrayView text(data + 2, static_cast<qsizetype>(size) - 2);
    const qsizetype place = text.size() * data[0] / 255;
    const qsizetype border = text.size() * data[1] / 255;
    for (const MarkupRules rules : {MarkupRules::Html, MarkupRules::Xml}) {
        OpenElements reader(rules);
        const std::vector<ElementTag> elements = elementsAround(reader, {text, {}}, place);
        checkElements(reader, text, elements, place);
        reader.changedFrom(border);
        check(elementsAround(reader, {text.first(border), text.sliced(border)}, place) == elements);
        OpenElements other(rules);
        elementsAround(other, {text.first(border), text.first(border)}, border);
        other.changedFrom(border);
        check(elementsAround(other, {text.first(border), text.sliced(border)}, place) == elements);
    }
    return 0;
}
