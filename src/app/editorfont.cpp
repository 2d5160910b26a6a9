// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editorfont.h"

#include "core/configuration.h"

#include <algorithm>

namespace zephira {

namespace {

/// Sizes in points at which a text can be read, or shown to a hall.
constexpr double smallestFont = 4;
constexpr double largestFont = 144;

} // namespace

FontChoice editorFont(const Configuration &configuration, const FontChoice &initial)
{
    FontChoice font = initial;
    font.bold = isTrue(configuration, Setting::FontBold);
    font.italic = isTrue(configuration, Setting::FontItalic);
    if (const QString name = configuration.value(Setting::FontName); !name.isEmpty())
        font.name = name;
    if (const double size = measure(configuration, Setting::FontSize); size > 0)
        font.size = std::clamp(size, smallestFont, largestFont);
    font.strikethrough = isTrue(configuration, Setting::FontStrikethrough);
    font.underline = isTrue(configuration, Setting::FontUnderline);
    return font;
}

} // namespace zephira
