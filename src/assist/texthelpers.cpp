// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/texthelpers.h"

namespace zephira {

TextHelpers::TextHelpers(CodeMax &rt, const AppContext &context, ToolPanel &panel)
    : m_rt(rt), m_context(context), m_panel(panel)
{}

TextHelpers::~TextHelpers() = default;

void TextHelpers::start() {}

} // namespace zephira
