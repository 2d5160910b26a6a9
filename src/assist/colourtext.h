// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QColor>

#include <optional>
#include <vector>

namespace zephira {

/// A color that stands in a line of text.
struct ColourText {
    /// Byte offsets in the line, from the first byte up to the one behind the last.
    qsizetype start = 0;
    qsizetype end = 0;
    QColor colour;

    friend bool operator==(const ColourText &, const ColourText &) = default;
};

/// The colors in a line of a page, a style sheet or a script: the values of properties and attributes that take colors, as
/// #rgb, #rgba, #rrggbb, #rrggbbaa, rgb(), rgba(), hsl(), hsla() or a name.
std::vector<ColourText> coloursIn(QByteArrayView line);

/// The color that a text is, in one of these notations.
std::optional<QColor> colourOf(QByteArrayView text);

/// Another color in the notation that stood there: digits and their case, function, separators and opacity stay. A short
/// notation gets long if the color needs it; a name becomes a name if the color has one, else #rrggbb.
QByteArray rewritten(QByteArrayView old, const QColor &colour);

} // namespace zephira
