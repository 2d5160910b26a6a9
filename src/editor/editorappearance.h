// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"
#include "editor/colouritems.h"
#include "editor/sciengine.h"

#include <QColor>

#include <array>

namespace zephira {

/// The values that make up the appearance of a control. Colours have red in the lowest byte.
struct EditorLooks {
    std::array<quint32, colourItemTotal> colours{};
    std::array<int, fontStyleTotal> styles{};
    FontChoice font{QStringLiteral("Monospace"), 10};

    friend bool operator==(const EditorLooks &, const EditorLooks &) = default;
};

/// The appearance of the control's text and margins: the colour items, the font styles and the font. Values are kept as
/// they were set, so that they read back exactly, and are translated to the engine's styles. Under a dark palette the
/// shipped colours are shown as their dark counterparts.
class EditorAppearance
{
public:
    explicit EditorAppearance(SciEngine engine);

    /// Items are those of ColourItem; others are left alone and read as 0.
    void setColour(int item, quint32 colour);
    quint32 colour(int item) const;
    /// Items are those of FontStyleItem; others are left alone and read as 0.
    void setFontStyle(int item, int style);
    int fontStyle(int item) const;
    void setFont(const FontChoice &font);
    const FontChoice &font() const { return m_looks.font; }
    /// All values at once, to copy the appearance of another control.
    const EditorLooks &looks() const { return m_looks; }
    void setLooks(const EditorLooks &looks);

    /// Enables the font of control characters from now on. An empty text has none and so avoids loading it.
    void showText();
    /// Enables the font styles from now on. A text without syntax colouring doesn't use them and so avoids loading
    /// their fonts, which is slow.
    void showStyles();

    /// Whether the text is shown on paper, which is white under a dark palette, too.
    void setOnPaper(bool on);

    /// Puts all of it into force again; the selection's colours follow the desktop's.
    void applyAll();

    /// The colour shown as a background, with an automatic one resolved.
    QColor background(int item) const;
    /// The background colour of the main selection, or of the additional ones.
    QColor selectionColour(bool main) const;
    QColor whitespaceColour() const;

private:
    void applyColour(int item);
    void applyStyle(int item);
    void setStyle(unsigned int message, int style, qsizetype value);
    void applyFont();
    void applyControlFont();
    void applyContrast();
    bool isDark() const;
    quint32 current(int item) const;
    QColor shown(int item) const;

    SciEngine m_engine;
    EditorLooks m_looks;
    bool m_hasText = false;
    bool m_showsStyles = false;
    bool m_dark = false;
    bool m_onPaper = false;
};

} // namespace zephira
