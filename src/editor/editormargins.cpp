// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editormargins.h"

#include "editor/colouritems.h"

#include <algorithm>
#include <array>
#include <string>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

constexpr int fewestDigits = 3;
constexpr int bookmarkMask = 1 << bookmarkMarker;

struct MarkerSymbol {
    int marker;
    int symbol;
};

constexpr std::array markerSymbols{
    MarkerSymbol{dividerMarker, Sci::SC_MARK_UNDERLINE},
    MarkerSymbol{highlightMarker, Sci::SC_MARK_BACKGROUND},
    MarkerSymbol{bookmarkMarker, Sci::SC_MARK_BOOKMARK},
    MarkerSymbol{Sci::SC_MARKNUM_FOLDER, Sci::SC_MARK_BOXPLUS},
    MarkerSymbol{Sci::SC_MARKNUM_FOLDEROPEN, Sci::SC_MARK_BOXMINUS},
    MarkerSymbol{Sci::SC_MARKNUM_FOLDERSUB, Sci::SC_MARK_VLINE},
    MarkerSymbol{Sci::SC_MARKNUM_FOLDERTAIL, Sci::SC_MARK_LCORNER},
    MarkerSymbol{Sci::SC_MARKNUM_FOLDEREND, Sci::SC_MARK_BOXPLUSCONNECTED},
    MarkerSymbol{Sci::SC_MARKNUM_FOLDEROPENMID, Sci::SC_MARK_BOXMINUSCONNECTED},
    MarkerSymbol{Sci::SC_MARKNUM_FOLDERMIDTAIL, Sci::SC_MARK_TCORNER},
};

struct MarginRow {
    EditorMargins::Margin margin;
    int type;
    int mask;
    bool sensitive;
};

constexpr std::array marginRows{
    MarginRow{EditorMargins::Bookmarks, Sci::SC_MARGIN_COLOUR, bookmarkMask, true},
    MarginRow{EditorMargins::LineNumbers, Sci::SC_MARGIN_NUMBER, 0, false},
    MarginRow{EditorMargins::Folds, Sci::SC_MARGIN_SYMBOL, static_cast<int>(Sci::SC_MASK_FOLDERS), true},
    MarginRow{EditorMargins::Divider, Sci::SC_MARGIN_COLOUR, 0, false},
};

} // namespace

EditorMargins::EditorMargins(SciEngine engine) : m_engine(engine)
{
    for (const auto [margin, type, mask, sensitive] : marginRows) {
        m_engine.send(Sci::SCI_SETMARGINTYPEN, margin, type);
        m_engine.send(Sci::SCI_SETMARGINMASKN, margin, mask);
        m_engine.send(Sci::SCI_SETMARGINSENSITIVEN, margin, sensitive);
        m_engine.send(Sci::SCI_SETMARGINWIDTHN, margin, 0);
    }
    for (const auto [marker, symbol] : markerSymbols)
        m_engine.send(Sci::SCI_MARKERDEFINE, marker, symbol);
    m_engine.send(Sci::SCI_SETMARGINLEFT, 0, 4);
    m_engine.send(Sci::SCI_SETFOLDFLAGS, Sci::SC_FOLDFLAG_LINEAFTER_CONTRACTED);
    m_engine.send(Sci::SCI_SETAUTOMATICFOLD, Sci::SC_AUTOMATICFOLD_SHOW | Sci::SC_AUTOMATICFOLD_CLICK);
}

void EditorMargins::setLeftMargin(bool on)
{
    m_leftMargin = on;
    updateWidths();
}

void EditorMargins::setLineNumbers(bool on)
{
    m_lineNumbers = on;
    updateWidths();
}

void EditorMargins::setFolds(bool on)
{
    m_folds = on;
    updateWidths();
}

void EditorMargins::updateWidths()
{
    const auto setWidth = [this](Margin margin, qsizetype width) {
        if (m_engine.send(Sci::SCI_GETMARGINWIDTHN, margin) != width)
            m_engine.send(Sci::SCI_SETMARGINWIDTHN, margin, width);
    };
    const auto lineHeight = m_engine.send(Sci::SCI_TEXTHEIGHT, 0);
    const auto digits = std::max<std::size_t>(std::to_string(m_engine.lineCount()).size(), fewestDigits);
    const std::string widest = "_" + std::string(digits, '9');
    setWidth(Bookmarks, m_leftMargin ? lineHeight : 0);
    setWidth(LineNumbers,
             m_lineNumbers ? m_engine.sendText(Sci::SCI_TEXTWIDTH, Sci::STYLE_LINENUMBER, widest.c_str()) + 4 : 0);
    setWidth(Folds, m_folds ? lineHeight * 4 / 5 : 0);
    setWidth(Divider, m_leftMargin || m_lineNumbers || m_folds ? 1 : 0);
}

qsizetype EditorMargins::width() const
{
    qsizetype width = 0;
    for (qsizetype margin = 0; margin < m_engine.send(Sci::SCI_GETMARGINS); ++margin)
        width += m_engine.send(Sci::SCI_GETMARGINWIDTHN, margin);
    return width;
}

void EditorMargins::setMark(qsizetype line, int marker, bool on)
{
    if (line < 0 || line >= m_engine.lineCount())
        return;
    const bool marked = m_engine.send(Sci::SCI_MARKERGET, line) >> marker & 1;
    if (marked != on)
        m_engine.send(on ? Sci::SCI_MARKERADD : Sci::SCI_MARKERDELETE, line, marker);
}

void EditorMargins::setHighlightedLine(qsizetype line)
{
    // Edits move marks, so the old one may be on another line by now. It usually isn't, and checking its line first
    // avoids searching a large text.
    const bool inPlace = m_highlighted >= 0 && m_engine.send(Sci::SCI_MARKERGET, m_highlighted) >> highlightMarker & 1;
    if (inPlace && line == m_highlighted)
        return;
    if (inPlace)
        m_engine.send(Sci::SCI_MARKERDELETE, m_highlighted, highlightMarker);
    else if (m_highlighted >= 0)
        m_engine.send(Sci::SCI_MARKERDELETEALL, highlightMarker);
    m_highlighted = std::max<qsizetype>(line, -1);
    setMark(m_highlighted, highlightMarker, true);
}

void EditorMargins::setDivider(qsizetype line, bool on)
{
    setMark(line, dividerMarker, on);
}

void EditorMargins::toggleBookmark(qsizetype line)
{
    setMark(line, bookmarkMarker, !(m_engine.send(Sci::SCI_MARKERGET, line) & bookmarkMask));
}

qsizetype EditorMargins::bookmarkFrom(qsizetype line, bool backward) const
{
    const auto message = backward ? Sci::SCI_MARKERPREVIOUS : Sci::SCI_MARKERNEXT;
    const qsizetype found = m_engine.send(message, line + (backward ? -1 : 1), bookmarkMask);
    return found >= 0 ? found : m_engine.send(message, backward ? m_engine.lineCount() - 1 : 0, bookmarkMask);
}

} // namespace zephira
