// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

// Single elements. Fields are inserted as typed: nothing is quoted or checked.

struct RefreshFields {
    QString address = {};
    QString delay = {};
};

/// The tag that lets another page follow. Delay and address are in two quoted values.
QString refreshMarkup(const RefreshFields &fields);

/// Where the text goes on after a line break.
enum class LineBreak { Unchosen, Normal, ClearRight, ClearLeft, ClearBoth };

/// A line break. An unchosen one has an empty "clear" attribute.
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
    /// A value that ends in "default)" omits its attribute.
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
