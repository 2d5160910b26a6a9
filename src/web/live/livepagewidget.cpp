// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/live/livepagewidget.h"

#include "core/paths.h"
#include "web/designer/servermarks.h"
#include "web/hiddenfocus.h"
#include "web/live/livebrowserpage.h"
#include "web/live/livetext.h"
#include "widgets/scriptmessagebar.h"

#include <QFileInfo>
#include <QPointer>
#include <QVBoxLayout>
#include <QWebEngineView>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The characters for which a page gets one more millisecond to answer.
constexpr qsizetype charactersInMillisecond = 300;
/// How much longer the first page may take, in milliseconds: the engine starts a process for it.
constexpr int processStart = 7000;
/// The interval at which is asked whether a page has been read, in case its report got lost; in milliseconds.
constexpr int lookInterval = 250;

/// Relative addresses lead to the same whether they are resolved against a file or its folder; but only what exists may
/// load something.
QUrl baseOf(const QString &file)
{
    if (file.isEmpty())
        return QUrl(u"about:blank"_s);
    return QUrl::fromLocalFile(QFileInfo::exists(file) ? file : withSlash(QFileInfo(file).path()));
}

} // namespace

LivePageWidget::LivePageWidget(const FileStore &files, QWidget *parent)
    : QWidget(parent)
    , m_messages(new ScriptMessageBar(this))
    , m_view(std::make_unique<QWebEngineView>(this))
    , m_page(new LiveBrowserPage(files, m_profile, m_view.get()))
{
    m_view->setPage(m_page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messages);
    layout->addWidget(m_view.get(), 1);
    m_messages->leaveFocus();
    m_page->setMessages(*m_messages);
    setFocusProxy(m_view.get());
    keepFocusFromHidden(*this);
    m_view->setContextMenuPolicy(Qt::NoContextMenu);
    m_hanging.setSingleShot(true);
    connect(&m_hanging, &QTimer::timeout, this, &LivePageWidget::endHanging);
    m_look.setInterval(lookInterval);
    connect(&m_look, &QTimer::timeout, this, &LivePageWidget::lookForPage);
    connect(m_page, &BrowserPage::letGo, m_messages, &ScriptMessageBar::listen);
    connect(m_page, &BrowserPage::processLost, this, &LivePageWidget::takeLoss);
    connect(m_page, &QWebEnginePage::loadFinished, this, &LivePageWidget::lookForPage);
    connect(m_page, &BrowserPage::remoteRefused, this, [this](const QStringList &hosts) {
        if (m_events.remoteRefused)
            m_events.remoteRefused(hosts);
    });
    // Queued, because a handler may do anything, and the engine waits until the report was taken.
    connect(&m_page->bridge(), &LiveBridge::told, this, &LivePageWidget::takeReport, Qt::QueuedConnection);
}

LivePageWidget::~LivePageWidget()
{
    // A page that is being destroyed must not send any more signals, and it answers what it was asked with nothing.
    m_page->disconnect(this);
    ++m_load;
}

void LivePageWidget::show(const QString &html, const QString &file)
{
    m_next = {html, file};
    next();
}

void LivePageWidget::reload()
{
    m_isLoadWanted = true;
    next();
}

/// Brings the last text into the page, unless another one is on its way.
void LivePageWidget::next()
{
    if (m_state != State::Empty && m_state != State::Shown)
        return;
    if (m_state == State::Shown && !m_next && !m_isLoadWanted)
        return;
    const bool isOther = m_next && m_next->file != m_text.file;
    if (m_next)
        m_text = *std::exchange(m_next, {});
    if (m_state == State::Empty || isOther) {
        load({});
    } else if (m_isLoadWanted) {
        m_state = State::Changing;
        wait();
        m_page->call(u"state"_s, {}, [self = QPointer(this), number = m_load](const QVariant &state) {
            if (self && self->m_load == number && self->m_state == State::Changing)
                self->load(state);
        });
    } else {
        change();
    }
}

/// Loads the text, and goes on when the page reports that it has been read.
void LivePageWidget::load(const QVariant &kept)
{
    m_isLoadWanted = false;
    m_kept = kept;
    m_mark = freshMarkPrefix(m_text.html);
    LiveText text = liveText(m_text.html, m_mark);
    m_marked = text.marked;
    const bool isFirst = m_state == State::Empty;
    m_state = State::Loading;
    m_messages->silence();
    ++m_load;
    m_sheetsTold = 0;
    const QUrl base = baseOf(m_text.file);
    wait(isFirst ? processStart : 0);
    if (text.shown.toUtf8().size() <= BrowserPage::mostGivenBytes) {
        m_unwritten.clear();
        m_page->openLive(text.shown, base, m_load, m_colours);
    } else {
        m_unwritten = std::move(text.shown);
        m_page->openLive(u"<!DOCTYPE html><title></title>"_s, base, m_load, m_colours);
    }
    m_look.start();
}

void LivePageWidget::takeReport(const QVariantMap &report)
{
    if (report.value(u"load"_s).toInt() != m_load)
        return;
    const QString kind = report.value(u"kind"_s).toString();
    const auto place = static_cast<qsizetype>(report.value(u"place"_s).toLongLong());
    if (kind == u"ready")
        ready();
    else if (kind == u"clicked" && m_events.clicked)
        m_events.clicked(place, report.value(u"usable"_s).toBool());
    else if (kind == u"scrolled" && m_events.scrolled && m_state == State::Shown)
        m_events.scrolled(place, report.value(u"atEnd"_s).toBool());
    else if (kind == u"sheets")
        takeSheets(report);
}

void LivePageWidget::lookForPage()
{
    if (m_state != State::Loading) {
        m_look.stop();
        return;
    }
    m_page->call(u"isReady"_s, {m_load}, [self = QPointer(this), number = m_load](const QVariant &isReady) {
        if (self && self->m_load == number && isReady.toBool())
            self->ready();
    });
}

/// The page has been read: now its elements are compared with the source.
void LivePageWidget::ready()
{
    if (m_state != State::Loading)
        return;
    if (!m_unwritten.isEmpty()) {
        m_page->call(u"write"_s, {std::exchange(m_unwritten, {})});
        return;
    }
    m_state = State::Starting;
    m_page->call(u"start"_s, {m_marked, m_mark, m_text.html.size(), m_scheme, m_kept},
                 [self = QPointer(this), number = m_load](const QVariant &answer) {
                     if (self && self->m_load == number && self->m_state == State::Starting)
                         self->settle(answer.toMap());
                 });
    m_marked.clear();
}

void LivePageWidget::change()
{
    m_state = State::Changing;
    m_mark = freshMarkPrefix(m_text.html);
    wait();
    m_page->call(u"update"_s, {liveText(m_text.html, m_mark).marked, m_mark, m_text.html.size()},
                 [self = QPointer(this), number = m_load](const QVariant &answer) {
                     if (self && self->m_load == number && self->m_state == State::Changing)
                         self->changed(answer.toMap());
                 });
}

void LivePageWidget::changed(const QVariantMap &answer)
{
    // A script of the page may have damaged what the page's own tools stand on; a new load cures that.
    if (answer.isEmpty())
        load({});
    else if (answer.value(u"load"_s).toBool())
        load(answer.value(u"state"_s));
    else
        settle(answer);
}

/// The page shows the text.
void LivePageWidget::settle(const QVariantMap &answer)
{
    m_hanging.stop();
    m_look.stop();
    m_state = State::Shown;
    takeSheets(answer);
    if (!m_next && !m_isLoadWanted && m_events.shown)
        m_events.shown();
    next();
}

void LivePageWidget::takeSheets(const QVariantMap &told)
{
    const int number = told.value(u"number"_s).toInt();
    if (number <= m_sheetsTold)
        return;
    m_sheetsTold = number;
    QStringList sheets;
    for (const QString &address : told.value(u"sheets"_s).toStringList()) {
        if (const QUrl url(address); url.isLocalFile())
            sheets.append(url.toLocalFile());
    }
    if (sheets == m_sheets)
        return;
    m_sheets = sheets;
    if (m_events.sheetsChanged)
        m_events.sheetsChanged(m_sheets);
}

void LivePageWidget::wait(int more)
{
    m_hanging.start(m_patience + more + static_cast<int>(m_text.html.size() / charactersInMillisecond));
}

void LivePageWidget::endHanging()
{
    // While a script waits for the user's answer, the page can't answer us.
    if (m_messages->isAsking())
        wait();
    else if (m_page->renderProcessPid() > 0)
        m_page->endProcess();
    else
        takeLoss();
}

void LivePageWidget::takeLoss()
{
    m_hanging.stop();
    m_look.stop();
    m_messages->silence();
    m_state = State::Empty;
    m_isLoadWanted = false;
    ++m_load;
    if (m_events.lost)
        m_events.lost();
    if (m_next)
        next();
}

void LivePageWidget::showCaret(const std::vector<qsizetype> &places, bool bringsIntoSight)
{
    if (!isShown())
        return;
    QVariantList list;
    for (const qsizetype place : places)
        list.append(place);
    m_page->call(u"showCaret"_s, {QVariant(list), bringsIntoSight});
}

void LivePageWidget::follow(qsizetype place, bool toEnd)
{
    if (isShown())
        m_page->call(u"follow"_s, {place, toEnd});
}

void LivePageWidget::sheetSaved(const QString &file)
{
    if (!isShown() || !m_sheets.contains(file))
        return;
    m_page->call(u"reloadSheet"_s, {QString::fromUtf8(QUrl::fromLocalFile(file).toEncoded()), ++m_sheet},
                 [self = QPointer(this), number = m_load](const QVariant &isDone) {
                     if (self && self->m_load == number && !isDone.toBool())
                         self->reload();
                 });
}

void LivePageWidget::setColourScheme(ColourScheme scheme)
{
    if (scheme == m_colours)
        return;
    m_colours = scheme;
    m_scheme = scheme == ColourScheme::Desktop ? QString() : scheme == ColourScheme::Dark ? u"dark"_s : u"light"_s;
    // The page's scripts are told by a script that runs before them.
    if (m_state != State::Empty)
        reload();
}

void LivePageWidget::setZoom(qreal factor)
{
    m_view->setZoomFactor(factor);
}

void LivePageWidget::setProjectFolder(const QString &folder)
{
    m_page->setProjectFolder(folder);
}

void LivePageWidget::setRemoteAllowed(bool allowed)
{
    m_page->setRemoteAllowed(allowed);
}

} // namespace zephira
