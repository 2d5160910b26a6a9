// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

#include <QColor>
#include <QFont>

namespace zephira {

/// Converts a colour number, red in the lowest byte, to a QColor. The highest byte is ignored.
inline QColor toQColor(quint32 number)
{
    return QColor(static_cast<int>(number & 0xff), static_cast<int>(number >> 8 & 0xff),
                  static_cast<int>(number >> 16 & 0xff));
}

inline quint32 toColourNumber(const QColor &colour)
{
    const QRgb rgb = colour.rgb();
    return static_cast<quint32>(qRed(rgb) | qGreen(rgb) << 8 | qBlue(rgb) << 16);
}

inline QFont toQFont(const FontChoice &choice)
{
    QFont font(choice.name);
    if (choice.size > 0)
        font.setPointSizeF(choice.size);
    font.setBold(choice.bold);
    font.setItalic(choice.italic);
    font.setStrikeOut(choice.strikethrough);
    font.setUnderline(choice.underline);
    return font;
}

inline FontChoice toFontChoice(const QFont &font)
{
    return {font.family(), font.pointSizeF(), font.bold(), font.italic(), font.strikeOut(), font.underline()};
}

} // namespace zephira
