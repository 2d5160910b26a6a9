// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/colourtable.h"

#include "core/editingcontrol.h"
#include "core/editoritems.h"
#include "core/settings.h"

namespace zephira {

ColourTable readColours(const Configuration &configuration, const QString &file)
{
    ColourTable table;
    for (int row = 0; row < std::ssize(appearanceRows); ++row) {
        const auto number = [&](ColourPart part) { return wholeNumber(configuration, colourSetting(row, part), file); };
        ColourEntry &entry = table[static_cast<std::size_t>(row)];
        entry.background = number(ColourPart::Background);
        entry.foreground = number(ColourPart::Foreground);
        entry.fontStyle = number(ColourPart::FontStyle);
    }
    return table;
}

void applyColours(const ColourTable &table, EditingControl &editor)
{
    std::array<int, fontStyleTotal> styles{};
    std::array<int, colourItemTotal> colours{};
    for (std::size_t row = 0; row < appearanceRows.size(); ++row) {
        const AppearanceRow &items = appearanceRows[row];
        if (items.fontStyle >= 0)
            styles[static_cast<std::size_t>(items.fontStyle)] = table[row].fontStyle;
        if (items.foreground >= 0)
            colours[static_cast<std::size_t>(items.foreground)] = table[row].foreground;
        if (items.background >= 0)
            colours[static_cast<std::size_t>(items.background)] = table[row].background;
    }
    for (int item = 0; item < fontStyleTotal; ++item)
        editor.setFontStyle(item, styles[static_cast<std::size_t>(item)]);
    for (int item = 0; item < colourItemTotal; ++item)
        editor.setColor(item, static_cast<quint32>(colours[static_cast<std::size_t>(item)]));
}

} // namespace zephira
