// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/textedits.h"

namespace zephira {

class Elements;
class TextHelpers;

/// Selects the elements around what is selected, from the inside to the outside and back.
class EnclosingElements
{
public:
    /// Both must outlive it.
    EnclosingElements(CodeMax &rt, Elements &elements) : m_rt(rt), m_elements(elements) {}

    void selectOuter();
    /// Selects what was selected before the last step outwards, unless something else was done since.
    void selectInner();

private:
    struct Step {
        TextSelections before;
        TextSelections after;
        quint64 version = 0;
    };

    TextSelection outerOf(const TextSelection &selection) const;
    void forgetOldSteps();

    CodeMax &m_rt;
    Elements &m_elements;
    std::vector<Step> m_steps;
};

void selectEnclosing(TextHelpers &helpers);
void selectInner(TextHelpers &helpers);

} // namespace zephira
