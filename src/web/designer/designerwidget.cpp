// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/designerwidget.h"

#include "core/errorstyles.h"
#include "core/filestore.h"
#include "files/textfile.h"
#include "web/designer/designerclipboard.h"
#include "web/designer/designerhandles.h"
#include "web/designer/designerpage.h"
#include "web/designer/nestedwait.h"
#include "web/hiddenfocus.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineView>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How long a question waits for keys that the page hasn't handled yet, and how often it checks; in milliseconds.
constexpr int keyPatience = 300;
constexpr int keyInterval = 5;
/// If a page loses its process more often than this, it isn't loaded again.
constexpr int mostLosses = 3;
/// The time limit for a load as a multiple of that for an answer, and the characters for which an answer gets one more
/// millisecond.
constexpr int loadShare = 5;
constexpr int charactersInMillisecond = 1000;
/// The interval, in milliseconds, at which to check for a page that wasn't complete at once, and the number of checks
/// before it is written again.
constexpr int pageLookInterval = 100;
constexpr int pageLooks = 50;

void pass(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    waitIn(loop);
}

/// The file's text as the editor would show it, decoded.
QString readPage(const FileStore &files, const QString &path)
{
    const DecodedText text = decodeText(orRaise(files.read(path)));
    const bool isMixed = text.format.lineEnds == LineEnds::Mixed;
    return QString::fromUtf8(isMixed ? text.utf8 : toLineEnds(text.utf8, LineEnds::CrLf));
}

} // namespace

DesignerWidget::DesignerWidget(const FileStore &files, Prompts &prompts, QWidget *parent)
    : QWidget(parent)
    , m_files(files)
    , m_questions(prompts)
    , m_view(std::make_unique<QWebEngineView>(this))
    , m_page(new DesignerPage(m_profile, m_view.get()))
    , m_handles(new DesignerHandles(m_view.get()))
{
    m_view->setPage(m_page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view.get());
    setFocusProxy(m_view.get());
    keepFocusFromHidden(*this);
    hide();
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connectPage();
}

DesignerWidget::~DesignerWidget()
{
    // The end of the page during destruction is no loss.
    m_page->disconnect(this);
}

/// Handlers that may wait for an answer are queued, because the engine delivers no other message while one is being
/// handled.
void DesignerWidget::connectPage()
{
    connect(m_page, &DesignerPage::ready, this, &DesignerWidget::write, Qt::QueuedConnection);
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this, &DesignerWidget::takeLoss);
    connect(m_view.get(), &QWidget::customContextMenuRequested, this, &DesignerWidget::requestContextMenu,
            Qt::QueuedConnection);
    connect(&m_page->bridge(), &DesignerBridge::told, this, &DesignerWidget::hear);
}

/// Handles all reports that the page sends on its own.
void DesignerWidget::hear(const QVariantMap &report)
{
    struct Kind {
        QStringView name;
        void (DesignerWidget::*take)(const QVariantMap &report);
    };
    static constexpr Kind kinds[] = {
        {u"complete", &DesignerWidget::takeComplete}, {u"state", &DesignerWidget::takeState},
        {u"place", &DesignerWidget::takePlace},       {u"copy", &DesignerWidget::takeCopyReport},
        {u"command", &DesignerWidget::takeCommand},
    };
    const QString name = report.value(u"kind"_s).toString();
    const auto kind = std::ranges::find(kinds, name, [](const Kind &each) { return each.name; });
    if (kind != std::end(kinds) && DesignerStamp::fromPage(report).isOf(m_text.markPrefix()))
        (this->*kind->take)(report);
}

void DesignerWidget::takeState(const QVariantMap &report)
{
    if (takeReport(report))
        QMetaObject::invokeMethod(this, &DesignerWidget::announceDisplay, Qt::QueuedConnection);
}

void DesignerWidget::takePlace(const QVariantMap &report)
{
    m_handles->show(report.value(u"place"_s).toMap(), m_view->zoomFactor());
}

void DesignerWidget::takeCopyReport(const QVariantMap &report)
{
    takeCopy(DesignerCopy::fromPage(report));
}

void DesignerWidget::takeCommand(const QVariantMap &report)
{
    const auto run = [this, report] { runFromPage(report); };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

void DesignerWidget::takeText(const QString &source)
{
    m_text = PageRoundTrip(source, freshMarkPrefix(source), documentKind(m_baseFile));
    m_written = {};
    m_placeToShow.reset();
    m_alignment.reset();
    m_page->setAllowance(static_cast<int>(source.size() / charactersInMillisecond));
}

void DesignerWidget::setDocumentHtml(const QString &html)
{
    takeText(html);
    m_hasLostChanges = false;
    m_losses = 0;
    open();
}

void DesignerWidget::loadDocument(const QString &path)
{
    const QString html = readPage(m_files, path);
    m_baseFile = path;
    setDocumentHtml(html);
}

/// Starts with an empty page, because the policies of the last document would apply to the next one.
void DesignerWidget::open()
{
    m_isComplete = false;
    m_isLate = false;
    m_state = {};
    m_keysSent = 0;
    m_copy = {};
    m_handles->show({}, 1);
    ++m_load;
    // The killed process is handled like any other loss: the new text is loaded afterwards.
    m_page->endIfHanging();
    m_page->open(m_baseFile.isEmpty() ? QUrl(u"about:blank"_s) : QUrl::fromLocalFile(m_baseFile));
}

/// If the next page was set meanwhile, the empty page that was ready is about to go, and the one that replaces it will be
/// ready later. Written into both, the page would lose what is done in between, or stay empty.
void DesignerWidget::write(bool ready)
{
    if (!ready || m_page->isOpening())
        return;
    const QPointer<DesignerWidget> self(this);
    m_page->call(u"load"_s, {m_text.forEngine(), m_text.markPrefix(), m_looks, m_text.isPlain()},
                 [self, load = m_load](const QVariant &answer) {
                     if (!self || self->m_load != load)
                         return;
                     if (!answer.toMap().isEmpty())
                         self->takeComplete(answer.toMap().value(u"state"_s).toMap());
                     else
                         self->lookForPage(load, 1);
                 });
    // The engine reads the page meanwhile.
    sendPlace();
}

/// A page that isn't complete yet reports when it is. A report from a new process may be lost, so the page is also
/// asked repeatedly, and its text is written again after a while.
void DesignerWidget::lookForPage(int load, int look)
{
    QTimer::singleShot(pageLookInterval, this, [this, load, look] {
        if (m_load != load || m_isComplete)
            return;
        if (look == pageLooks) {
            write(true);
            return;
        }
        m_page->call(u"completed"_s, {}, [self = QPointer<DesignerWidget>(this), load, look](const QVariant &answer) {
            if (!self || self->m_load != load || self->m_isComplete)
                return;
            if (!answer.toMap().isEmpty())
                self->takeComplete(answer.toMap().value(u"state"_s).toMap());
            else
                self->lookForPage(load, look + 1);
        });
    });
}

/// Queued, because the host will ask for more.
void DesignerWidget::takeComplete(const QVariantMap &state)
{
    const auto finish = [this, load = m_load, state] {
        if (m_load == load && !m_isComplete)
            complete(state);
    };
    QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
}

void DesignerWidget::complete(const QVariantMap &state)
{
    m_isComplete = true;
    sendPlace();
    m_view->focusProxy()->installEventFilter(this);
    takeReport(state);
    Q_EMIT DocumentComplete();
    announceDisplay();
}

/// From now on the last known text is used, and the page isn't asked until it has been loaded again.
void DesignerWidget::takeLoss()
{
    const bool hasChanges = m_state.isDirty && m_copy.isThere();
    m_hasLostChanges = m_hasLostChanges || hasChanges;
    takeText(hasChanges ? m_text.fromEngine(m_copy.text) : m_text.source());
    m_state = {};
    m_copy = {};
    m_isComplete = false;
    m_handles->show({}, 1);
    ++m_losses;
    const auto reopen = [this, load = m_load] {
        if (m_load == load && !isGivenUp())
            open();
        announceDisplay();
        Q_EMIT ProcessLost();
    };
    QMetaObject::invokeMethod(this, reopen, Qt::QueuedConnection);
}

bool DesignerWidget::isGivenUp() const
{
    return m_losses > mostLosses;
}

/// Waits only once for each load, so that a page that can't be loaded doesn't delay every command.
bool DesignerWidget::waitUntilComplete()
{
    QElapsedTimer time;
    time.start();
    while (!m_isComplete && !m_isLate && m_load > 0 && !isGivenUp()) {
        pass(keyInterval);
        m_isLate = time.elapsed() >= loadShare * m_page->patience();
    }
    return m_isComplete;
}

QVariant DesignerWidget::ask(const QString &function, const QVariantList &arguments) const
{
    if (!m_isComplete)
        return {};
    const std::optional<QVariant> answer = m_page->callAndWait(function, arguments);
    return answer ? takeAnswer(*answer) : QVariant();
}

/// Every answer includes the page's state after the call.
QVariant DesignerWidget::takeAnswer(const QVariant &answer) const
{
    const QVariantMap map = answer.toMap();
    if (!map.isEmpty())
        takeReport(map.value(u"state"_s).toMap());
    return map.value(u"value"_s);
}

/// Returns whether the report is about this page and newer than the last one.
bool DesignerWidget::takeReport(const QVariantMap &report) const
{
    const DesignerStamp stamp = DesignerStamp::fromPage(report);
    if (!stamp.isOf(m_text.markPrefix()) || stamp.number <= m_state.stamp.number)
        return false;
    m_state = DesignerState::fromPage(report);
    m_handles->show(m_state.place, m_view->zoomFactor());
    return true;
}

void DesignerWidget::takeCopy(const DesignerCopy &copy)
{
    if (copy.stamp.isOf(m_text.markPrefix()) && copy.stamp.number > m_copy.stamp.number)
        m_copy = copy;
}

void DesignerWidget::announceDisplay()
{
    Q_EMIT DisplayChanged();
}

/// The page handles a key shortly after the window has sent it.
void DesignerWidget::awaitKeys() const
{
    QElapsedTimer time;
    time.start();
    while (m_keysSent > m_state.keys && m_page->isResponding() && time.elapsed() < keyPatience) {
        pass(keyInterval);
        ask(u"state"_s);
    }
    m_keysSent = m_state.keys;
}

bool DesignerWidget::isDirty() const
{
    if (!m_isComplete)
        return m_hasLostChanges;
    if (!m_state.isDirty)
        awaitKeys();
    return m_hasLostChanges || m_state.isDirty;
}

void DesignerWidget::pasteHtml(const QString &html)
{
    if (!waitUntilComplete())
        return;
    ask(u"insert"_s, {m_text.fragmentForEngine(html), false});
    announceDisplay();
}

int DesignerWidget::queryStatus(DesignerCommand command) const
{
    if (!m_isComplete)
        return DesignerStatus::Disabled;
    if (command == DesignerCommand::Paste)
        return !browseMode() && clipboardHasMarkup() ? DesignerStatus::Enabled : DesignerStatus::Disabled;
    return m_state.statuses.value(command, DesignerStatus::NotSupported);
}

void DesignerWidget::setLook(const QString &name, bool on)
{
    m_looks[name] = on;
    if (m_isComplete)
        ask(u"setLook"_s, {name, on});
}

void DesignerWidget::setContextMenu(const QStringList &entries, const QList<DesignerMenuState> &states)
{
    delete m_menu;
    m_menu = new QMenu(this);
    m_menu->setObjectName(u"DesignerContextMenu"_s);
    for (int index = 0; index < entries.size(); ++index) {
        if (entries[index].isEmpty()) {
            m_menu->addSeparator();
            continue;
        }
        const DesignerMenuState state = states.value(index, DesignerMenuState::Unchecked);
        QAction *action = m_menu->addAction(entries[index]);
        action->setEnabled(state != DesignerMenuState::Greyed);
        action->setCheckable(state == DesignerMenuState::Checked);
        action->setChecked(state == DesignerMenuState::Checked);
        connect(action, &QAction::triggered, this, [this, index] { Q_EMIT ContextMenuAction(index); });
    }
}

/// The entries depend on the position of the caret, which the click has just changed.
void DesignerWidget::requestContextMenu(const QPoint &place)
{
    ask(u"state"_s);
    const QPoint onScreen = m_view->mapToGlobal(place);
    setContextMenu({}, {});
    Q_EMIT ShowContextMenu(onScreen.x(), onScreen.y());
    if (!m_menu->isEmpty())
        m_menu->popup(onScreen);
}

void DesignerWidget::setEvents(DesignerEvents events)
{
    m_host = std::make_unique<QObject>();
    if (events.documentComplete)
        connect(this, &DesignerWidget::DocumentComplete, m_host.get(), events.documentComplete);
    if (events.displayChanged)
        connect(this, &DesignerWidget::DisplayChanged, m_host.get(), events.displayChanged);
    if (events.contextMenuAction)
        connect(this, &DesignerWidget::ContextMenuAction, m_host.get(), events.contextMenuAction);
    if (events.processLost)
        connect(this, &DesignerWidget::ProcessLost, m_host.get(), events.processLost);
    if (events.showContextMenu)
        connect(this, &DesignerWidget::ShowContextMenu, m_host.get(), [show = events.showContextMenu](int x, int y) {
            show({x, y});
        });
}

void DesignerWidget::setProjectFolder(const QString &folder)
{
    m_page->setProjectFolder(folder);
}

void DesignerWidget::setRemoteAllowed(bool allowed)
{
    m_page->setRemoteAllowed(allowed);
}

bool DesignerWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_isComplete)
        ++m_keysSent;
    return QWidget::eventFilter(watched, event);
}

} // namespace zephira
