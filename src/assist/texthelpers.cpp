// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/texthelpers.h"

#include "assist/lastedit.h"

namespace zephira {

TextHelpers::TextHelpers(CodeMax &rt, const AppContext &context, ToolPanel &panel)
    : m_rt(rt), m_context(context), m_panel(panel), m_lastEdit(std::make_unique<LastEdit>(rt))
{}

TextHelpers::~TextHelpers() = default;

void TextHelpers::start() {}

} // namespace zephira
