// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <span>

namespace zephira {

/// A piece of a tag's text.
struct TagPiece {
    enum class Kind {
        Fixed,    ///< `text`
        Optional, ///< `text`, the field and a closing quote; nothing if the field is empty
        Always,   ///< the same, also if the field is empty
        Ticked,   ///< `text`, if the box named `field` is ticked
        Typed,    ///< the field
    };

    Kind kind = Kind::Fixed;
    QStringView text = {};
    /// The name of the control with the value.
    QStringView field = {};
};

/// A tag that can be built from fields: what it consists of, and the button that builds it.
struct TagTemplate {
    QStringView okButton;
    std::span<const TagPiece> pieces;
};

/// What the user has entered: the texts and the ticked boxes, by the names of their controls.
struct TagFields {
    QHash<QString, QString> texts = {};
    QSet<QString> ticked = {};
};

/// The tags in the order of their pages.
std::span<const TagTemplate> tagTemplates();

/// The text of a tag. The fields are used as typed: a quote in one of them ends the attribute.
QString tagText(const TagTemplate &tag, const TagFields &fields);

/// The three parts of a colour that has red in its lowest byte.
struct ColourParts {
    quint32 red = 0;
    quint32 green = 0;
    quint32 blue = 0;

    friend bool operator==(const ColourParts &, const ColourParts &) = default;
};

ColourParts GetRGB(quint32 colour);

/// "#" and two capital hexadecimal digits for each part, which is at most 255.
QString HexColor(const ColourParts &parts);

} // namespace zephira
