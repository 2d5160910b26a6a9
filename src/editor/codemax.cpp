// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codemax.h"

#include "editor/accessibleeditor.h"
#include "editor/bidipainter.h"
#include "editor/bracematcher.h"
#include "editor/codemaxglobals.h"
#include "editor/editorappearance.h"
#include "editor/editormargins.h"
#include "editor/editorprinter.h"
#include "editor/editorsearch.h"
#include "editor/finddialog.h"
#include "editor/gotodialog.h"
#include "editor/idlecolouring.h"
#include "editor/indicators.h"
#include "editor/propertiesdialog.h"
#include "files/buffertext.h"
#include "widgets/qtvalues.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QStyleHints>

#include <algorithm>
#include <array>
#include <utility>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

struct EngineSetting {
    unsigned int message;
    int first;
    int second;
};

/// The engine's initial settings. Only notifications before insertions and deletions are used; those after them would
/// walk through the text from its start at every key.
constexpr std::array engineSettings{
    EngineSetting{QsciScintillaBase::SCI_SETCODEPAGE, QsciScintillaBase::SC_CP_UTF8, 0},
    EngineSetting{QsciScintillaBase::SCI_SETMODEVENTMASK,
                  QsciScintillaBase::SC_MOD_BEFOREINSERT | QsciScintillaBase::SC_MOD_BEFOREDELETE
                      | QsciScintillaBase::SC_MOD_CONTAINER,
                  0},
    EngineSetting{QsciScintillaBase::SCI_SETTABINDENTS, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETMULTIPLESELECTION, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETADDITIONALSELECTIONTYPING, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETSEARCHFLAGS, QsciScintillaBase::SCFIND_MATCHCASE, 0},
    EngineSetting{QsciScintillaBase::SCI_SETMULTIPASTE, QsciScintillaBase::SC_MULTIPASTE_EACH, 0},
    EngineSetting{QsciScintillaBase::SCI_SETVIRTUALSPACEOPTIONS, QsciScintillaBase::SCVS_RECTANGULARSELECTION, 0},
    EngineSetting{QsciScintillaBase::SCI_SETRECTANGULARSELECTIONMODIFIER, QsciScintillaBase::SCMOD_ALT, 0},
    EngineSetting{QsciScintillaBase::SCI_SETMOUSESELECTIONRECTANGULARSWITCH, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETSCROLLWIDTH, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETSCROLLWIDTHTRACKING, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETLAYOUTCACHE, QsciScintillaBase::SC_CACHE_PAGE, 0},
    EngineSetting{QsciScintillaBase::SCI_SETCARETWIDTH, 2, 0},
    EngineSetting{QsciScintillaBase::SCI_SETPASTECONVERTENDINGS, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETEXTRAASCENT, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETEXTRADESCENT, 1, 0},
    EngineSetting{QsciScintillaBase::SCI_SETWRAPINDENTMODE, QsciScintillaBase::SC_WRAPINDENT_SAME, 0},
    EngineSetting{QsciScintillaBase::SCI_SETWRAPVISUALFLAGS, QsciScintillaBase::SC_WRAPVISUALFLAG_END, 0},
    EngineSetting{QsciScintillaBase::SCI_USEPOPUP, QsciScintillaBase::SC_POPUP_NEVER, 0},
    EngineSetting{QsciScintillaBase::SCI_SETYCARETPOLICY, QsciScintillaBase::CARET_EVEN, 0},
    EngineSetting{QsciScintillaBase::SCI_INDICSETSTYLE, BoundsIndicator, QsciScintillaBase::INDIC_BOX},
    EngineSetting{QsciScintillaBase::SCI_INDICSETSTYLE, StrikeIndicator, QsciScintillaBase::INDIC_STRIKE},
};

} // namespace

CodeMax::CodeMax(EditorServices services, QWidget *parent)
    : QsciScintillaBase(parent)
    , m_services(services)
    , m_engine(*this)
    , m_globals(std::make_unique<CodeMaxGlobals>(this))
    , m_appearance(std::make_unique<EditorAppearance>(m_engine))
    , m_margins(std::make_unique<EditorMargins>(m_engine))
    , m_colouring(std::make_unique<IdleColouring>(m_engine))
    , m_braces(std::make_unique<BraceMatcher>(m_engine))
    , m_bidi(std::make_unique<BidiPainter>(m_engine, *m_appearance))
    , m_file(services.files, services.recovery)
    , m_format(m_engine)
    , m_typing(m_engine)
    , m_steps(m_engine)
    , m_news(*this, m_engine)
{
    // Installed to take precedence over the editor library's factory, whose objects walk through the text at every key.
    QAccessible::installFactory(&AccessibleEditor::make);
    setAccessibleName(u"Source text"_s);
    if (services.font)
        m_appearance->setFont(*services.font);
    setUpEngine();
    connectEngine();
}

CodeMax::~CodeMax() = default;

void CodeMax::setUpEngine()
{
    for (const auto [message, first, second] : engineSettings)
        m_engine.send(message, first, second);
    m_engine.send(SCI_SETCARETPERIOD, QGuiApplication::styleHints()->cursorFlashTime() / 2);
    m_appearance->applyAll();
    setOptions({});
    m_margins->setLeftMargin(false);
    m_seen = {0, 0, 1, 1};
}

void CodeMax::connectEngine()
{
    connect(this, &QsciScintillaBase::SCEN_CHANGE, this, &CodeMax::noteChange);
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int position, int type, const char *, int length, int, int, int, int, int token) {
                if (type & SC_MOD_CONTAINER)
                    m_format.changeWasUndone(token, type & SC_PERFORMED_UNDO);
                else
                    beforeEdit(position, type, length);
            });
    connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this] {
        if (m_actions == 0)
            noteSelection();
    });
    connect(this, &QsciScintillaBase::SCN_STYLENEEDED, m_colouring.get(), &IdleColouring::colourTo);
    connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] {
        m_margins->updateWidths();
        m_bidi->fontChanged();
    });
    connect(this, &QsciScintillaBase::SCN_MARGINCLICK, this, [this](int position, int, int margin) {
        if (margin == EditorMargins::Bookmarks)
            m_margins->toggleBookmark(m_engine.lineOf(position));
    });
    m_colouring->setLineFolded(
        [this](qsizetype line, int level, int nextLevel) { m_margins->setDivider(line, level > 0 && nextLevel == 0); });
    connect(m_globals.get(), &CodeMaxGlobals::languageRegistered, this, [this](const QString &name) {
        if (name.compare(m_language, Qt::CaseInsensitive) == 0)
            setLanguage(m_language);
    });
}

void CodeMax::beforeEdit(int position, int type, int length)
{
    settleInsertion();
    m_colouring->beforeEdit(position);
    if (!(type & SC_MOD_BEFOREDELETE)) {
        m_appearance->showText();
        m_inserted = {position, length};
        return;
    }
    m_units -= utf16Length(m_engine.bytes(position, position + length));
    m_news.willRemove(position, length);
}

/// Processes an announced insertion, whose text is available only after the insertion.
void CodeMax::settleInsertion()
{
    const auto [position, length] = std::exchange(m_inserted, {});
    if (length == 0)
        return;
    const QByteArrayView text = m_engine.bytes(position, position + length);
    m_units += utf16Length(text);
    m_bidi->learn(text);
    m_news.inserted(position, length);
}

/// Called before each change made by the engine; one action may make several. A change outside an action is reported
/// from the event loop.
void CodeMax::noteChange()
{
    ++m_textVersion;
    m_changed = true;
    if (m_actions == 0)
        QMetaObject::invokeMethod(
            this, [this] { goOn([] {}); }, Qt::QueuedConnection);
}

void CodeMax::endAction()
{
    if (--m_actions > 0)
        return;
    m_engine.leaveOutdatedRectangle();
    settleInsertion();
    const QPointer<CodeMax> alive(this);
    const bool changed = std::exchange(m_changed, false);
    if (changed) {
        showStrikethrough();
        Q_EMIT Change();
    }
    // A slot may do anything, including closing the window.
    if (alive && m_actions == 0) {
        if (changed)
            showBraces();
        noteSelection();
    }
}

void CodeMax::noteSelection()
{
    const Selection now{m_engine.anchor(), m_engine.caret(), m_engine.send(SCI_GETSELECTIONS), m_engine.lineCount()};
    if (now == m_seen)
        return;
    if (now.lines != m_seen.lines)
        m_margins->updateWidths();
    m_seen = now;
    showBraces();
    showSelectionBounds();
    m_news.selectionMoved(now.anchor, now.caret);
    Q_EMIT SelChange();
}

void CodeMax::showBraces()
{
    if (!m_options.matchBraces || !isVisible())
        return;
    // Newly typed text must have its style before it can be matched.
    m_colouring->colourTo(m_engine.lineEnd(m_engine.lineOf(m_engine.caret())));
    m_braces->update();
}

void CodeMax::setLanguage(const QString &name)
{
    const auto language = name.isEmpty() ? nullptr : m_globals->languages().engine(name);
    m_language = language ? name : QString();
    if (language) {
        m_appearance->showStyles();
        m_margins->updateWidths();
    }
    m_engine.send(SCI_MARKERDELETEALL, dividerMarker);
    m_colouring->setLanguage(language);
    m_braces->clear();
}

bool CodeMax::displayWhitespace() const
{
    return m_engine.send(SCI_GETVIEWWS) != SCWS_INVISIBLE;
}

void CodeMax::setDisplayWhitespace(bool on)
{
    m_engine.send(SCI_SETVIEWWS, on ? SCWS_VISIBLEALWAYS : SCWS_INVISIBLE);
    m_engine.send(SCI_SETWHITESPACESIZE, 2);
}

bool CodeMax::displayLeftMargin() const
{
    return m_margins->leftMargin();
}

void CodeMax::setDisplayLeftMargin(bool on)
{
    m_margins->setLeftMargin(on);
}

bool CodeMax::lineNumbering() const
{
    return m_margins->lineNumbers();
}

void CodeMax::setLineNumbering(bool on)
{
    m_margins->setLineNumbers(on);
}

void CodeMax::setSelBounds(bool on)
{
    m_selBounds = on;
    showSelectionBounds();
}

/// Draws a frame around the selected text.
void CodeMax::showSelectionBounds()
{
    m_engine.send(SCI_SETINDICATORCURRENT, BoundsIndicator);
    if (m_boundsShown)
        m_engine.send(SCI_INDICATORCLEARRANGE, 0, m_engine.length());
    m_boundsShown = m_selBounds && !m_engine.send(SCI_GETSELECTIONEMPTY);
    if (!m_boundsShown)
        return;
    m_engine.send(SCI_INDICSETFORE, BoundsIndicator,
                  static_cast<int>(toColourNumber(palette().color(QPalette::Highlight))));
    const qsizetype count = m_engine.send(SCI_GETSELECTIONS);
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype start = m_engine.send(SCI_GETSELECTIONNSTART, i);
        m_engine.send(SCI_INDICATORFILLRANGE, start, m_engine.send(SCI_GETSELECTIONNEND, i) - start);
    }
}

/// The engine's styles have no strikethrough, so an indicator strikes out the whole text.
void CodeMax::showStrikethrough()
{
    const bool on = m_appearance->font().strikethrough;
    if (!on && !m_strikeShown)
        return;
    m_engine.send(SCI_SETINDICATORCURRENT, StrikeIndicator);
    m_engine.send(SCI_INDICSETFORE, StrikeIndicator, static_cast<int>(m_appearance->colour(TextFore) & 0xffffff));
    m_engine.send(on ? SCI_INDICATORFILLRANGE : SCI_INDICATORCLEARRANGE, 0, m_engine.length());
    m_strikeShown = on;
}

int CodeMax::highlightedLine() const
{
    return static_cast<int>(m_margins->highlightedLine());
}

void CodeMax::setHighlightedLine(int line)
{
    m_margins->setHighlightedLine(line);
}

FontChoice CodeMax::editorFont() const
{
    return m_appearance->font();
}

void CodeMax::setEditorFont(const FontChoice &font)
{
    m_appearance->setFont(font);
    m_bidi->fontChanged();
    m_margins->updateWidths();
    showStrikethrough();
}

QFont CodeMax::textFont() const
{
    return toQFont(m_appearance->font());
}

void CodeMax::setTextFont(const QFont &font)
{
    setEditorFont(toFontChoice(font));
}

void CodeMax::setColor(int item, quint32 colour)
{
    m_appearance->setColour(item, colour);
}

quint32 CodeMax::color(int item) const
{
    return m_appearance->colour(item);
}

void CodeMax::setFontStyle(int item, int style)
{
    // Every style change makes the engine reload its fonts before the next measurement.
    if (m_appearance->fontStyle(item) == style)
        return;
    m_appearance->setFontStyle(item, style);
    m_margins->updateWidths();
}

int CodeMax::fontStyle(int item) const
{
    return m_appearance->fontStyle(item);
}

void CodeMax::setOptions(const EditorOptions &options)
{
    m_options = options;
    m_options.tabWidth = std::clamp(options.tabWidth, 1, 32);
    m_typing.setOptions(m_options);
    m_engine.send(SCI_SETTABWIDTH, m_options.tabWidth);
    m_engine.send(SCI_SETINDENT, m_options.tabWidth);
    m_engine.send(SCI_SETUSETABS, !m_options.tabsAsBlanks);
    m_engine.send(SCI_SETWRAPMODE, m_options.wordWrap ? SC_WRAP_WORD : SC_WRAP_NONE);
    m_engine.send(SCI_SETEDGEMODE, m_options.edgeColumn > 0 ? EDGE_LINE : EDGE_NONE);
    m_engine.send(SCI_SETEDGECOLUMN, m_options.edgeColumn);
    m_engine.send(SCI_SETCARETLINEVISIBLE, m_options.highlightCaretLine);
    m_engine.send(SCI_SETCARETLINEVISIBLEALWAYS, true);
    m_margins->setFolds(m_options.foldMargin);
    if (!m_options.matchBraces)
        m_braces->clear();
}

bool CodeMax::isCaretLineHighlighted() const
{
    return m_options.highlightCaretLine || m_margins->highlightedLine() == m_engine.lineOf(m_engine.caret());
}

void CodeMax::highlightCaretLine(bool on)
{
    if (on == isCaretLineHighlighted())
        return;
    bool handled = false;
    Q_EMIT CaretLineChosen(on, &handled);
    if (handled)
        return;
    EditorOptions options = m_options;
    options.highlightCaretLine = on;
    setOptions(options);
}

void CodeMax::setReadOnly(bool on)
{
    m_engine.send(SCI_SETREADONLY, on);
}

bool CodeMax::isReadOnly() const
{
    return m_engine.send(SCI_GETREADONLY);
}

void CodeMax::setOvertype(bool on)
{
    if (on == overtype())
        return;
    m_typing.setOvertype(on);
    m_steps.setOvertype(on);
    Q_EMIT OvertypeChanged(on);
}

EditorSearch &CodeMax::search()
{
    if (!m_search)
        m_search = std::make_unique<EditorSearch>(*this);
    return *m_search;
}

EditorPrinter &CodeMax::printer()
{
    if (!m_printer)
        m_printer = std::make_unique<EditorPrinter>(*this);
    return *m_printer;
}

} // namespace zephira
