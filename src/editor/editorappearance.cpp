// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorappearance.h"

#include "editor/editormargins.h"
#include "editor/longruns.h"
#include "syntax/syntaxstyle.h"
#include "widgets/qtvalues.h"

#include <QPalette>

#include <cmath>
#include <utility>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

constexpr int firstFoldMarker = Sci::SC_MARKNUM_FOLDEREND;
constexpr int lastFoldMarker = Sci::SC_MARKNUM_FOLDEROPEN;

bool isItem(int item)
{
    return item >= 0 && item < colourItemTotal;
}
bool isStyle(int item)
{
    return item >= 0 && item < fontStyleTotal;
}

int engineColour(const QColor &colour)
{
    return static_cast<int>(toColourNumber(colour));
}

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto part = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return QColor(part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()));
}

} // namespace

EditorAppearance::EditorAppearance(SciEngine engine) : m_engine(engine)
{
    m_looks.colours = shippedColours;
    applyAll();
}

void EditorAppearance::setColour(int item, quint32 colour)
{
    if (!isItem(item) || m_looks.colours[static_cast<std::size_t>(item)] == colour)
        return;
    m_looks.colours[static_cast<std::size_t>(item)] = colour;
    if (m_dark == isDark())
        applyColour(item);
    else
        applyAll();
}

quint32 EditorAppearance::colour(int item) const
{
    return isItem(item) ? m_looks.colours[static_cast<std::size_t>(item)] : 0;
}

void EditorAppearance::setFontStyle(int item, int style)
{
    if (!isStyle(item) || m_looks.styles[static_cast<std::size_t>(item)] == style)
        return;
    m_looks.styles[static_cast<std::size_t>(item)] = style;
    applyStyle(item);
}

int EditorAppearance::fontStyle(int item) const
{
    return isStyle(item) ? m_looks.styles[static_cast<std::size_t>(item)] : 0;
}

void EditorAppearance::setFont(const FontChoice &font)
{
    if (font == m_looks.font)
        return;
    m_looks.font = font;
    applyAll();
}

void EditorAppearance::setLooks(const EditorLooks &looks)
{
    m_looks = looks;
    applyAll();
}

void EditorAppearance::showText()
{
    if (!std::exchange(m_hasText, true))
        applyControlFont();
}

void EditorAppearance::showStyles()
{
    if (std::exchange(m_showsStyles, true))
        return;
    for (int item = 0; item < fontStyleTotal; ++item)
        applyStyle(item);
}

/// Whether shipped colours are shown as their dark counterparts: while the desktop is dark, unless the user has changed
/// the colour of the text or the window, because then the other colours are meant to fit these.
bool EditorAppearance::isDark() const
{
    const auto isShipped = [this](int item) { return colour(item) == shippedColours[static_cast<std::size_t>(item)]; };
    const QColor paper = m_engine.view().palette().color(QPalette::Active, QPalette::Base);
    return !m_onPaper && paper.lightness() < 128 && isShipped(WindowColour) && isShipped(TextFore);
}

void EditorAppearance::setOnPaper(bool on)
{
    m_onPaper = on;
    if (m_dark != isDark())
        applyAll();
}

/// The colour of an item under the current desktop palette.
quint32 EditorAppearance::current(int item) const
{
    const auto index = static_cast<std::size_t>(item);
    const quint32 chosen = m_looks.colours[index];
    return m_dark && chosen == shippedColours[index] ? colourItemTable[index].dark : chosen;
}

void EditorAppearance::applyAll()
{
    m_dark = isDark();
    applyFont();
    for (int item = 0; item < colourItemTotal; ++item) {
        if (item != WindowColour)
            applyColour(item);
    }
    for (int item = 0; item < fontStyleTotal; ++item)
        applyStyle(item);
}

/// The default style holds the values that all other styles start from.
void EditorAppearance::applyFont()
{
    m_engine.sendText(Sci::SCI_STYLESETFONT, Sci::STYLE_DEFAULT, m_looks.font.name.toUtf8().constData());
    if (m_looks.font.size > 0)
        m_engine.send(Sci::SCI_STYLESETSIZEFRACTIONAL, Sci::STYLE_DEFAULT,
                      std::lround(m_looks.font.size * int{Sci::SC_FONT_SIZE_MULTIPLIER}));
    m_engine.send(Sci::SCI_STYLESETFORE, Sci::STYLE_DEFAULT, engineColour(shown(TextFore)));
    m_engine.send(Sci::SCI_STYLESETBACK, Sci::STYLE_DEFAULT, engineColour(shown(WindowColour)));
    m_engine.send(Sci::SCI_STYLESETBOLD, Sci::STYLE_DEFAULT, m_looks.font.bold);
    m_engine.send(Sci::SCI_STYLESETITALIC, Sci::STYLE_DEFAULT, m_looks.font.italic);
    m_engine.send(Sci::SCI_STYLESETUNDERLINE, Sci::STYLE_DEFAULT, m_looks.font.underline);
    m_engine.send(Sci::SCI_STYLECLEARALL);
    if (m_hasText)
        applyControlFont();
    applyContrast();
}

/// Characters without a glyph are painted as small, narrow text, so that they never make a line higher.
void EditorAppearance::applyControlFont()
{
    m_engine.sendText(Sci::SCI_STYLESETFONT, Sci::STYLE_CONTROLCHAR, "Sans Serif");
    m_engine.send(Sci::SCI_STYLESETSIZEFRACTIONAL, Sci::STYLE_CONTROLCHAR,
                  m_engine.send(Sci::SCI_STYLEGETSIZEFRACTIONAL, Sci::STYLE_DEFAULT) * 4 / 5);
}

void EditorAppearance::applyStyle(int item)
{
    const int engineStyle = fontStyleTable[static_cast<std::size_t>(item)];
    const bool isSeen = m_showsStyles || item == TextFont || item == LineNumberFont;
    const int style = isSeen ? m_looks.styles[static_cast<std::size_t>(item)] : NormalStyle;
    // Line numbers don't take bold, italic or underline from the text's font.
    const bool text = engineStyle != lineNumberStyle;
    setStyle(Sci::SCI_STYLESETBOLD, engineStyle, (text && m_looks.font.bold) || style & BoldStyle);
    setStyle(Sci::SCI_STYLESETITALIC, engineStyle, (text && m_looks.font.italic) || style & ItalicStyle);
    setStyle(Sci::SCI_STYLESETUNDERLINE, engineStyle, (text && m_looks.font.underline) || style & UnderlinedStyle);
}

/// Each text style has a twin that looks the same.
void EditorAppearance::setStyle(unsigned int message, int style, qsizetype value)
{
    m_engine.send(message, style, value);
    if (style < syntaxStyleCount)
        m_engine.send(message, style + twinDistance, value);
}

void EditorAppearance::applyColour(int item)
{
    const auto [name, target, index, dark] = colourItemTable[static_cast<std::size_t>(item)];
    const int plain = engineColour(shown(item));
    switch (target) {
    case ColourTarget::Window:
        applyAll();
        break;
    case ColourTarget::LeftMargin:
        m_engine.send(Sci::SCI_SETMARGINBACKN, EditorMargins::Bookmarks, plain);
        m_engine.send(Sci::SCI_SETFOLDMARGINCOLOUR, true, plain);
        m_engine.send(Sci::SCI_SETFOLDMARGINHICOLOUR, true, plain);
        applyContrast();
        break;
    case ColourTarget::MarkerFore:
        m_engine.send(Sci::SCI_MARKERSETFORE, index, plain);
        break;
    case ColourTarget::MarkerBack:
    case ColourTarget::LineDivider:
        m_engine.send(Sci::SCI_MARKERSETBACK, index, engineColour(background(item)));
        if (index == highlightMarker)
            m_engine.send(Sci::SCI_SETCARETLINEBACK, engineColour(background(item)));
        break;
    case ColourTarget::StyleFore:
        setStyle(Sci::SCI_STYLESETFORE, index, plain);
        if (item == TextFore || item == LineNumberFore)
            applyContrast();
        break;
    case ColourTarget::StyleBack:
        setStyle(Sci::SCI_STYLESETBACK, index, engineColour(background(item)));
        break;
    case ColourTarget::MarginDivider:
        m_engine.send(Sci::SCI_SETMARGINBACKN, EditorMargins::Divider, plain);
        m_engine.send(Sci::SCI_SETEDGECOLOUR, plain);
        break;
    }
}

/// Sets the colours that have no item of their own: caret and white space are derived from the text, the selection from
/// the desktop's and the window's colour, the fold marks from the line numbers.
void EditorAppearance::applyContrast()
{
    const QColor window = shown(WindowColour);
    const QColor text = shown(TextFore);
    m_engine.send(Sci::SCI_SETCARETFORE, engineColour(text));
    m_engine.send(Sci::SCI_SETADDITIONALCARETFORE, engineColour(mixed(window, text, 0.6)));
    m_engine.send(Sci::SCI_SETSELBACK, true, engineColour(selectionColour(true)));
    m_engine.send(Sci::SCI_SETADDITIONALSELBACK, engineColour(selectionColour(false)));
    m_engine.send(Sci::SCI_SETWHITESPACEFORE, true, engineColour(whitespaceColour()));
    m_engine.send(Sci::SCI_STYLESETFORE, Sci::STYLE_INDENTGUIDE, engineColour(mixed(window, text, 0.25)));
    for (int marker = firstFoldMarker; marker <= lastFoldMarker; ++marker) {
        m_engine.send(Sci::SCI_MARKERSETFORE, marker, engineColour(shown(LeftMarginColour)));
        m_engine.send(Sci::SCI_MARKERSETBACK, marker,
                      engineColour(mixed(shown(LeftMarginColour), shown(LineNumberFore), 0.8)));
    }
}

QColor EditorAppearance::selectionColour(bool main) const
{
    const QColor window = shown(WindowColour);
    const QColor highlight = m_engine.view().palette().color(QPalette::Active, QPalette::Highlight);
    const QColor selection = mixed(window, highlight, 0.38);
    return main ? selection : mixed(window, selection, 0.7);
}

QColor EditorAppearance::whitespaceColour() const
{
    return mixed(shown(WindowColour), shown(TextFore), 0.35);
}

QColor EditorAppearance::shown(int item) const
{
    const quint32 number = current(item);
    if (number != automaticColour)
        return toQColor(number);
    return item == WindowColour ? QColor(Qt::white) : item == TextFore ? QColor(Qt::black) : shown(TextFore);
}

QColor EditorAppearance::background(int item) const
{
    return current(item) == automaticColour ? shown(WindowColour) : shown(item);
}

} // namespace zephira
