// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace zephira {

class Designer;

/// The appearance of the designer's toolbar.
struct DesignerBarState {
    struct Button {
        bool enabled = false;
        bool pressed = false;

        friend bool operator==(const Button &, const Button &) = default;
    };
    struct Box {
        QString text;
        bool enabled = false;

        friend bool operator==(const Box &, const Box &) = default;
    };

    /// In the order of designerButtons().
    QList<Button> buttons;
    Box font;
    Box size;

    friend bool operator==(const DesignerBarState &, const DesignerBarState &) = default;
};

/// The appearance for the current position of the designer's caret.
DesignerBarState designerBarState(Designer &designer);

/// The size at the caret as the box shows it; empty if there is none, or the selection has several.
QString currentFontSize(Designer &designer);

} // namespace zephira
