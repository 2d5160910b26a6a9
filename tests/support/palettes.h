// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

#include <vector>

namespace zephira {

struct NamedPalette {
    const char *name;
    QPalette palette;
};

/// Palettes of desktops, from the usual to the unusual.
inline std::vector<NamedPalette> desktopPalettes()
{
    const auto make = [](QColor window, QColor base, QColor text, QColor highlight, QColor highlightedText) {
        QPalette palette(window, window);
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::AlternateBase, base);
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            palette.setColor(role, text);
        palette.setColor(QPalette::Highlight, highlight);
        palette.setColor(QPalette::HighlightedText, highlightedText);
        return palette;
    };
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    return {
        {"light", make({239, 240, 241}, white, {35, 38, 41}, {61, 174, 233}, white)},
        {"light, dark selection", make({239, 239, 239}, white, black, {48, 140, 198}, white)},
        {"dark", make({49, 54, 59}, {35, 38, 41}, {239, 240, 241}, {61, 174, 233}, white)},
        {"high contrast, black", make(black, black, white, {26, 235, 255}, black)},
        {"high contrast, white", make(white, white, black, black, white)},
        {"grey", make({128, 128, 128}, {150, 150, 150}, black, {70, 70, 70}, white)},
        {"dark with white lists", make({50, 50, 50}, white, black, {0, 90, 160}, white)},
    };
}

} // namespace zephira
