// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/texthelpers.h"

#include "assist/abbreviations/abbreviations.h"
#include "assist/colourswatches.h"
#include "assist/lastedit.h"
#include "assist/pairs/elements.h"
#include "assist/pairs/enclosing.h"
#include "assist/pairs/typedpairs.h"
#include "assist/picturetip.h"
#include "completion/completer.h"
#include "core/appcontext.h"
#include "problems/problems.h"

namespace zephira {

TextHelpers::TextHelpers(CodeMax &rt, const AppContext &context, ToolPanel &panel)
    : m_rt(rt), m_context(context), m_panel(panel), m_lastEdit(std::make_unique<LastEdit>(rt))
{}

TextHelpers::~TextHelpers() = default;

void TextHelpers::start()
{
    // A list must not come up for what is completed at once.
    typedPairs();
    completer();
    swatches();
    new PictureTip(m_rt, m_context);
    problems().start();
}

void TextHelpers::languageChanged()
{
    if (m_problems)
        m_problems->languageChanged();
}

Completer &TextHelpers::completer()
{
    if (!m_completer)
        m_completer = std::make_unique<Completer>(m_rt, m_context);
    return *m_completer;
}

ColourSwatches &TextHelpers::swatches()
{
    if (!m_swatches)
        m_swatches = new ColourSwatches(m_rt, m_context);
    return *m_swatches;
}

Problems &TextHelpers::problems()
{
    if (!m_problems) {
        m_problems =
            std::make_unique<Problems>(Problems::Parts{m_rt, m_context, m_panel, [this] { return completer().data(); },
                                                       m_services.loadTidy, m_services.notice, m_services.showCode});
    }
    return *m_problems;
}

Elements &TextHelpers::elements()
{
    if (!m_elements)
        m_elements = std::make_unique<Elements>(m_rt);
    return *m_elements;
}

EnclosingElements &TextHelpers::enclosing()
{
    if (!m_enclosing)
        m_enclosing = std::make_unique<EnclosingElements>(m_rt, elements());
    return *m_enclosing;
}

TypedPairs &TextHelpers::typedPairs()
{
    if (!m_typedPairs)
        m_typedPairs = std::make_unique<TypedPairs>(m_rt, m_context, elements());
    return *m_typedPairs;
}

Abbreviations &TextHelpers::abbreviations()
{
    if (!m_abbreviations)
        m_abbreviations = std::make_unique<Abbreviations>(
            Abbreviations::Parts{m_rt, m_context.document, m_services.loadAbbreviations, m_services.notice});
    return *m_abbreviations;
}

} // namespace zephira
