// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/fontsettings.h"

namespace zephira {

std::vector<SettingChange> fontChanges(const FontChoice &font)
{
    return {
        truthChange(Setting::FontBold, font.bold),
        truthChange(Setting::FontItalic, font.italic),
        {Setting::FontName, font.name},
        measureChange(Setting::FontSize, font.size),
        truthChange(Setting::FontStrikethrough, font.strikethrough),
        truthChange(Setting::FontUnderline, font.underline),
    };
}

} // namespace zephira
