// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

// Single elements. Fields are inserted as typed: nothing is quoted or checked.

struct RefreshFields {
    QString address = {};
    QString delay = {};
};

/// The tag that redirects to another page. Delay and address are in two quoted values.
QString refreshMarkup(const RefreshFields &fields);

/// Where the text continues after a line break.
enum class LineBreak { Unchosen, Normal, ClearRight, ClearLeft, ClearBoth };

/// A line break. If no kind was chosen, its "clear" attribute is empty.
QString breakMarkup(LineBreak kind);

struct InlineFrameFields {
    QString source = {};
    /// Written twice, as name and as id.
    QString name = {};
    QString width = {};
    QString height = {};
    QString marginWidth = {};
    QString marginHeight = {};
    QString alignment = {};
    /// The attribute is omitted for a value that ends in "default)".
    QString scrolling = {};
    QString border = {};
};

QString inlineFrameMarkup(const InlineFrameFields &fields);

struct MarqueeFields {
    QString text = {};
    QString alignment = {};
    QString behaviour = {};
    QString background = {};
    QString direction = {};
    QString amount = {};
    QString delay = {};
    /// Omitted if empty.
    QString width = {};
    QString height = {};
    /// Written as a statement of a server-side script. Its values are in doubled quotes, except for width and height.
    bool responseWrite = false;
};

QString marqueeMarkup(const MarqueeFields &fields);

} // namespace zephira
