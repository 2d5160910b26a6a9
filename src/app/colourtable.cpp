// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/colourtable.h"

#include "app/startdecision.h"
#include "core/editingcontrol.h"

using namespace Qt::StringLiterals;

namespace zephira {

const std::array<ColourItems, colourRowCount> &colourItems()
{
    static constexpr std::array<ColourItems, colourRowCount> rows = {{
        {2, 3, -1},   // bookmark
        {14, 15, 5},  // comment
        {28, -1, -1}, // horizontal divider lines
        {29, -1, -1}, // vertical divider lines
        {30, -1, -1}, // highlighted line
        {8, 9, 2},    // keyword
        {1, -1, -1},  // left margin
        {26, 27, 11}, // line number
        {6, 7, 1},    // number
        {10, 11, 3},  // operator
        {12, 13, 4},  // scope keyword
        {16, 17, 6},  // string
        {22, 23, 9},  // tag element name
        {20, 21, 8},  // tag entity
        {24, 25, 10}, // tag attribute name
        {18, 19, 7},  // tag text
        {4, 5, 0},    // text
        {0, -1, -1},  // window
    }};
    return rows;
}

ColourTable readColours(const Configuration &configuration, const QString &file)
{
    ColourTable table;
    for (int row = 0; row < colourRowCount; ++row) {
        const auto number = [&](const QString &part) {
            return requiredNumber(configuration, u"Colors"_s, u"clr%1%2"_s.arg(row).arg(part), file);
        };
        ColourEntry &entry = table[size_t(row)];
        entry.background = number(u"bg"_s);
        entry.foreground = number(u"fr"_s);
        entry.fontStyle = number(u"fnt"_s);
    }
    return table;
}

void applyColours(const ColourTable &table, EditingControl &editor)
{
    std::array<int, fontStyleItemCount> styles{};
    std::array<int, colourItemCount> colours{};
    for (size_t row = 0; row < colourRowCount; ++row) {
        const ColourItems &items = colourItems()[row];
        if (items.fontStyle >= 0)
            styles[size_t(items.fontStyle)] = table[row].fontStyle;
        if (items.foreground >= 0)
            colours[size_t(items.foreground)] = table[row].foreground;
        if (items.background >= 0)
            colours[size_t(items.background)] = table[row].background;
    }
    for (int item = 0; item < fontStyleItemCount; ++item)
        editor.setFontStyle(item, styles[size_t(item)]);
    for (int item = 0; item < colourItemCount; ++item)
        editor.setColor(item, quint32(colours[size_t(item)]));
}

} // namespace zephira
