// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/enclosing.h"

#include "assist/pairs/elements.h"
#include "assist/texthelpers.h"
#include "editor/codemax.h"

#include <algorithm>

namespace zephira {

/// The selection itself if nothing is around it.
TextSelection EnclosingElements::outerOf(const TextSelection &selection) const
{
    const std::vector<ElementTag> elements = m_elements.around(selection.start());
    const auto contains = [&](const TextSelection &element) {
        return element.end() >= selection.end()
            && element.end() - element.start() > selection.end() - selection.start();
    };
    // An element that begins where the selection does isn't around that place.
    for (auto it = elements.rbegin(); it != elements.rend(); ++it) {
        const TextSelection element{m_elements.endOf(*it), it->begin};
        if (contains(element))
            return element;
    }
    return selection;
}

/// Steps after which something else was done can't be taken back.
void EnclosingElements::forgetOldSteps()
{
    if (!m_steps.empty()
        && (m_steps.back().version != m_rt.textVersion()
            || m_steps.back().after.all != textSelections(m_rt.engine()).all))
        m_steps.clear();
}

void EnclosingElements::selectOuter()
{
    forgetOldSteps();
    const TextSelections before = textSelections(m_rt.engine());
    TextSelections outer;
    for (const TextSelection &each : before.all) {
        const TextSelection around = outerOf(each);
        // What was two selections may be in one element.
        while (!outer.all.empty() && around.start() <= outer.all.back().start()
               && around.end() >= outer.all.back().end())
            outer.all.pop_back();
        const bool isInside = !outer.all.empty() && around.end() <= outer.all.back().end();
        if (!isInside)
            outer.all.push_back(around);
    }
    outer.main = outer.all.size() - 1;
    if (outer.all == before.all)
        return;
    selectTexts(m_rt, outer);
    m_steps.push_back({before, textSelections(m_rt.engine()), m_rt.textVersion()});
}

void EnclosingElements::selectInner()
{
    forgetOldSteps();
    if (m_steps.empty())
        return;
    const TextSelections before = m_steps.back().before;
    m_steps.pop_back();
    selectTexts(m_rt, before);
}

void selectEnclosing(TextHelpers &helpers)
{
    helpers.enclosing().selectOuter();
}

void selectInner(TextHelpers &helpers)
{
    helpers.enclosing().selectInner();
}

} // namespace zephira
