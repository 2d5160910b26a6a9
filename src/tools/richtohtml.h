// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// How a character looks.
struct CharacterFormat {
    /// The codes are those of the alignments' option buttons.
    enum class Alignment { Left = 0, Right = 1, Center = 2 };

    Alignment alignment = Alignment::Left;
    bool bold = false;
    bool underline = false;
    bool italic = false;
    bool strikethrough = false;
    QString fontName;
    /// Red is in the lowest byte.
    quint32 colour = 0;

    friend bool operator==(const CharacterFormat &, const CharacterFormat &) = default;
};

/// Characters that follow one another and look the same.
struct FormattedRun {
    QString text;
    CharacterFormat format;
};

/// Markup that switches on and off what changes from one run to the next. Tags that are still open at the end aren't
/// closed, `font` and `p` tags never are, and line ends stay as they are. Without text there is no markup either.
QString richToHtml(const std::vector<FormattedRun> &runs);

/// Six hexadecimal digits in the order red, green, blue, for a colour with red in the lowest byte.
QString RGBtoHEX(quint32 colour);

} // namespace zephira
