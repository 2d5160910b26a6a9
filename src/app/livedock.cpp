// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/livedock.h"

#include "app/focusring.h"
#include "commands/menus.h"
#include "commands/texttable.h"
#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/errorstyles.h"
#include "core/languages.h"
#include "core/paths.h"
#include "editor/codemax.h"
#include "views/live/livepane.h"

#include <QDockWidget>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QMainWindow>
#include <QScrollBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int caretDelay = 60;
constexpr int scrollDelay = 30;
constexpr int lookDelay = 100;
/// In a larger text, caret and scroll bar aren't followed: to count its characters would take too long.
constexpr qsizetype mostFollowed = 5'000'000;
/// How many elements around the caret are offered to the page.
constexpr std::size_t mostAround = 40;
/// Of the window's width at first.
constexpr int share = 3;

qsizetype unitsIn(QByteArrayView utf8)
{
    qsizetype units = 0;
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        units += (byte & 0xC0) != 0x80;
        units += byte >= 0xF0;
    }
    return units;
}

} // namespace

LiveDock::LiveDock(Parts parts) : m_parts(std::move(parts))
{
    m_caretSoon.setSingleShot(true);
    m_caretSoon.setInterval(caretDelay);
    m_scrollSoon.setSingleShot(true);
    m_scrollSoon.setInterval(scrollDelay);
    m_lookSoon.setSingleShot(true);
    m_lookSoon.setInterval(lookDelay);
}

LiveDock::~LiveDock()
{
    delete m_dock;
}

void LiveDock::make()
{
    m_dock = new QDockWidget(tr("Live Page"), &m_parts.window);
    m_dock->setObjectName(u"liveDock"_s);
    m_dock->setAllowedAreas(Qt::RightDockWidgetArea | Qt::BottomDockWidgetArea);
    m_dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    m_pane = new LivePane(m_dock);
    m_dock->setWidget(m_pane);
    m_pane->makeView = [this](QWidget *parent) {
        const Result<WebViews *> views = m_parts.loadViews();
        if (!views) {
            tellError(m_parts.context.prompts, views.error());
            return LivePageView();
        }
        return views.value()->makeLivePage(m_parts.context.files, parent);
    };
    m_pane->size = [this] { return m_parts.rt.engine().length(); };
    m_pane->source = [this]() -> std::optional<LivePane::Source> {
        const LanguageRow *language = languageRow(m_parts.context.document.languageRow());
        if (!language || language->preview != PreviewKind::Page)
            return {};
        const auto pieces = m_parts.rt.utf8Pieces();
        QByteArray text;
        text.reserve(pieces[0].size() + pieces[1].size());
        text.append(pieces[0]).append(pieces[1]);
        m_shownVersion = m_parts.rt.textVersion();
        const QString name = m_parts.context.document.commonDialogFile();
        const bool isInProject = name.isEmpty() && hasProject(m_parts.context.document);
        return LivePane::Source{QString::fromUtf8(text),
                                isInProject ? withSlash(m_parts.context.document.projectPath()) + u"page.htm"_s : name};
    };
    m_pane->permissions = m_parts.permissions;
    m_pane->leave = [this] { m_parts.rt.setFocus(); };
    connect(m_pane, &LivePane::shown, this, [this] {
        showCaret(false);
        // It may have been scrolled to before the page could follow.
        if (std::exchange(m_isScrolled, false))
            followText();
        watchDocument();
    });
    connect(m_pane, &LivePane::clicked, this, &LiveDock::takeClick);
    connect(m_pane, &LivePane::scrolled, this, &LiveDock::takeScroll);
    connect(m_pane, &LivePane::sheetsChanged, this, &LiveDock::watch);
    connect(m_pane, &LivePane::remoteAllowed, this, m_parts.allowRemote);
    connect(m_dock, &QDockWidget::visibilityChanged, this, &LiveDock::visibilityChanged);
    connectText();
    m_parts.window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    m_parts.window.resizeDocks({m_dock}, {m_parts.window.width() / share}, Qt::Horizontal);
    if (m_ring)
        m_ring->add({m_dock});
}

/// What is heard of the text counts only while the page is open.
void LiveDock::connectText()
{
    CodeMax &rt = m_parts.rt;
    connect(&rt, &CodeMax::Change, this, [this] {
        if (!m_isOpen)
            return;
        m_pane->textChanged();
        watchDocument();
    });
    connect(&rt, &CodeMax::SelChange, this, [this] {
        if (m_isOpen)
            m_caretSoon.start();
    });
    connect(&rt, &QsciScintillaBase::SCN_MODIFIED, this, [this](int position, int type) {
        if (m_isOpen && type & (QsciScintillaBase::SC_MOD_BEFOREINSERT | QsciScintillaBase::SC_MOD_BEFOREDELETE))
            m_elements.changedFrom(position);
    });
    connect(rt.verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!m_isOpen || value == std::exchange(m_followed, -1))
            return;
        m_isScrolled = true;
        if (!m_scrollSoon.isActive())
            m_scrollSoon.start();
    });
    connect(&m_caretSoon, &QTimer::timeout, this, [this] { showCaret(true); });
    connect(&m_scrollSoon, &QTimer::timeout, this, &LiveDock::followText);
    connect(&m_lookSoon, &QTimer::timeout, this, &LiveDock::lookForSaved);
}

void LiveDock::toggle()
{
    if (!m_dock) {
        make();
        m_dock->show();
        visibilityChanged();
    } else {
        if (!m_dock->isHidden() && m_dock->isAncestorOf(m_parts.window.focusWidget()))
            m_parts.rt.setFocus();
        m_dock->setVisible(m_dock->isHidden());
    }
}

void LiveDock::visibilityChanged()
{
    const bool isOpen = !m_dock->isHidden();
    m_parts.menus.setChecked(textname::livePage, isOpen);
    if (isOpen == m_isOpen)
        return;
    m_isOpen = isOpen;
    if (isOpen) {
        // Nothing was heard meanwhile.
        m_elements = OpenElements();
        m_pane->textChanged();
        watchDocument();
    }
}

/// Whether the page shows this very text, so that places in it are places in the page.
bool LiveDock::isCurrent() const
{
    return m_isOpen && m_pane->page() && m_shownVersion == m_parts.rt.textVersion()
        && m_parts.rt.engine().length() <= mostFollowed;
}

qsizetype LiveDock::unitsBefore(qsizetype position) const
{
    const auto pieces = m_parts.rt.utf8Pieces();
    const qsizetype inFirst = std::min(position, pieces[0].size());
    return unitsIn(pieces[0].first(inFirst)) + unitsIn(pieces[1].first(std::min(position - inFirst, pieces[1].size())));
}

qsizetype LiveDock::positionAt(qsizetype units) const
{
    qsizetype position = 0;
    qsizetype seen = 0;
    for (const QByteArrayView piece : m_parts.rt.utf8Pieces()) {
        for (const char c : piece) {
            const auto byte = static_cast<unsigned char>(c);
            const bool begins = (byte & 0xC0) != 0x80;
            if (begins && seen >= units)
                return position;
            seen += begins + (byte >= 0xF0);
            ++position;
        }
    }
    return position;
}

void LiveDock::showCaret(bool bringsIntoSight)
{
    if (!isCurrent())
        return;
    const auto around =
        m_elements.around(m_parts.rt.utf8Pieces(), m_parts.rt.engine().caret(), m_parts.rt.engine().length() + 1);
    std::vector<qsizetype> places;
    for (auto element = around->rbegin(); element != around->rend() && places.size() < mostAround; ++element)
        places.push_back(unitsBefore(element->begin));
    m_pane->page()->showCaret(places, bringsIntoSight);
}

void LiveDock::followText()
{
    if (!isCurrent())
        return;
    const SciEngine &engine = m_parts.rt.engine();
    const QScrollBar *bar = m_parts.rt.verticalScrollBar();
    const qsizetype first = engine.send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE);
    const qsizetype line = engine.send(QsciScintillaBase::SCI_DOCLINEFROMVISIBLE, first);
    m_pane->page()->follow(unitsBefore(engine.lineStart(line)), bar->maximum() > 0 && bar->value() == bar->maximum());
}

/// The caret goes into the start tag, so that the element is the one around it.
void LiveDock::takeClick(qsizetype place, bool isUsed)
{
    if (!isCurrent() || !m_parts.rt.isVisible())
        return;
    const SciEngine &engine = m_parts.rt.engine();
    const qsizetype position = positionAt(place + 1);
    m_parts.rt.perform([&] {
        engine.send(QsciScintillaBase::SCI_ENSUREVISIBLEENFORCEPOLICY, engine.lineOf(position));
        engine.send(QsciScintillaBase::SCI_SETSEL, position, position);
        engine.send(QsciScintillaBase::SCI_SCROLLCARET);
    });
    // The page stays where the user clicked.
    m_followed = m_parts.rt.verticalScrollBar()->value();
    m_scrollSoon.stop();
    if (!isUsed)
        m_parts.rt.setFocus();
}

void LiveDock::takeScroll(qsizetype place, bool isAtEnd)
{
    if (!isCurrent())
        return;
    const SciEngine &engine = m_parts.rt.engine();
    QScrollBar *bar = m_parts.rt.verticalScrollBar();
    const qsizetype line = engine.lineOf(positionAt(place));
    const auto wanted = static_cast<int>(engine.send(QsciScintillaBase::SCI_VISIBLEFROMDOCLINE, line));
    const int value = isAtEnd ? bar->maximum() : std::min(wanted, bar->maximum());
    if (value == bar->value())
        return;
    m_followed = value;
    m_isScrolled = false;
    bar->setValue(value);
}

/// Looks from now on whether these files, or the document's, are saved.
void LiveDock::watch(const QStringList &sheets)
{
    m_sheets = sheets;
    if (!m_watcher) {
        m_watcher = new QFileSystemWatcher(this);
        const auto look = [this] { m_lookSoon.start(); };
        connect(m_watcher, &QFileSystemWatcher::fileChanged, this, look);
        connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, look);
    }
    QHash<QString, FileSignature> files;
    QStringList paths;
    const QString document = m_parts.context.document.commonDialogFile();
    for (const QString &file : sheets + (document.isEmpty() ? QStringList() : QStringList{document})) {
        files.insert(file, m_files.contains(file) ? m_files.value(file) : m_parts.context.files.signature(file));
        // A file that is replaced by another one is seen in its folder alone.
        for (const QString &path : {file, QFileInfo(file).path()}) {
            if (!paths.contains(path) && QFileInfo::exists(path))
                paths.append(path);
        }
    }
    m_files = files;
    const QStringList before = m_watcher->files() + m_watcher->directories();
    if (!before.isEmpty())
        m_watcher->removePaths(before);
    if (!paths.isEmpty())
        m_watcher->addPaths(paths);
}

/// A very large page is shown only when it is saved, so it is watched before it has ever been shown.
void LiveDock::watchDocument()
{
    const QString file = m_parts.context.document.commonDialogFile();
    if (!file.isEmpty() && !m_files.contains(file))
        watch(m_sheets);
}

void LiveDock::lookForSaved()
{
    const QStringList files = m_files.keys();
    QStringList changed;
    for (const QString &file : files) {
        const FileSignature now = m_parts.context.files.signature(file);
        if (now == m_files.value(file))
            continue;
        m_files[file] = now;
        changed.append(file);
    }
    if (changed.isEmpty())
        return;
    watch(m_sheets); // What was replaced is watched again.
    if (changed.contains(m_parts.context.document.commonDialogFile()))
        m_pane->showNow();
    for (const QString &file : std::as_const(changed)) {
        if (m_pane->page())
            m_pane->page()->sheetSaved(file);
    }
}

} // namespace zephira
