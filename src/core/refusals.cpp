// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/refusals.h"

#include "core/designer.h"

#include <array>

namespace zephira {

namespace {

struct Wording {
    QStringView text;
    QStringView title;
};

// In the order of Refusal.
constexpr std::array<Wording, 6> wordings{{
    {},
    {u"Sorry, these tools can only be used in Code View", u"Feature Limitation"},
    {u"Sorry, these tools can only be used in Code View for now, this may be changed in the next version",
     u"Feature Limitation"},
    {u"Sorry these tools can only be used in Code View", {}},
    {u"Sorry this command can not be executed from WYSIWYG Mode", {}},
    {u"Sorry this command can not be executed from WYSIWYG mode", {}},
}};

} // namespace

Question refusalNote(Refusal refusal)
{
    const Wording &wording = wordings[static_cast<std::size_t>(refusal)];
    return {wording.text.toString(), wording.title.toString(), Question::Icon::Information, Question::Buttons::Ok};
}

bool isRefused(Refusal refusal, const Designer &designer, Prompts &prompts)
{
    if (refusal == Refusal::None || !designer.isShowing())
        return false;
    prompts.ask(refusalNote(refusal));
    return true;
}

} // namespace zephira
