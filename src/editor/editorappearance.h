// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"
#include "editor/colouritems.h"
#include "editor/sciengine.h"

#include <QColor>

#include <array>

namespace zephira {

/// The values behind the looks of a control. Colours have red in the lowest byte.
struct EditorLooks {
    std::array<quint32, colourItemTotal> colours{};
    std::array<int, fontStyleTotal> styles{};
    FontChoice font{QStringLiteral("Monospace"), 10};

    friend bool operator==(const EditorLooks &, const EditorLooks &) = default;
};

/// What the control's text and margins look like: the colour items, the font styles and the font. Values are kept as they
/// were set, so that they read back exactly, and are translated to the engine's styles on the way. Under a dark palette
/// the shipped colours show as their dark counterparts.
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
    /// Everything at once, to take over the looks of another control.
    const EditorLooks &looks() const { return m_looks; }
    void setLooks(const EditorLooks &looks);

    /// From now on the text has the font styles. A text without colours is never seen in any of them, and does without
    /// the fonts, which are dear to load.
    void showStyles();

    /// Puts all of it into force again; the selection's colours follow the desktop's.
    void applyAll();

    /// What shows in a background, an automatic one included.
    QColor background(int item) const;
    /// Behind the main selection, or behind the others.
    QColor selectionColour(bool main) const;
    QColor whitespaceColour() const;

private:
    void applyColour(int item);
    void applyStyle(int item);
    void setStyle(unsigned int message, int style, qsizetype value);
    void applyFont();
    void applyContrast();
    bool isDark() const;
    quint32 current(int item) const;
    QColor shown(int item) const;

    SciEngine m_engine;
    EditorLooks m_looks;
    bool m_showsStyles = false;
    bool m_dark = false;
};

} // namespace zephira
