// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/browserpage.h"

#include "core/filestore.h"
#include "core/languages.h"
#include "files/textfile.h"
#include "web/enginefeatures.h"
#include "widgets/inputwatch.h"
#include "widgets/scriptmessagebar.h"

#include <QPointer>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QWebEngineSettings::WebAttribute closedToPages[] = {
    QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::AutoLoadIconsForPage,
    QWebEngineSettings::PluginsEnabled,           QWebEngineSettings::FullScreenSupportEnabled,
    QWebEngineSettings::ScreenCaptureEnabled,
};

} // namespace

BrowserPage::BrowserPage(const FileStore &files, QWebEngineProfile &profile, QObject *parent)
    : QWebEnginePage(&profile, parent), m_files(files)
{
    setUrlRequestInterceptor(&m_fence);
    for (const QWebEngineSettings::WebAttribute attribute : closedToPages)
        settings()->setAttribute(attribute, false);
    // Closed, this setting would refuse even what the user has allowed, so the fence alone decides what a local page
    // loads from other machines. Either way, the page's scripts can't read what such a machine answers.
    settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);

    hideClosedFeatures();

    // Queued, because the engine waits for the answer.
    connect(&m_fence, &LocalFileFence::remoteRefused, this, &BrowserPage::refuse, Qt::QueuedConnection);
    connect(this, &QWebEnginePage::urlChanged, this, [this](const QUrl &address) { m_fence.files().shown(address); });
    connect(this, &QWebEnginePage::loadFinished, this, [this] { m_isLeaving = false; });
    const auto takeEnd = [this] {
        m_isAlive = true;
        Q_EMIT letGo();
        if (const auto again = std::exchange(m_again, {}))
            again();
        else
            Q_EMIT processLost();
    };
    connect(this, &QWebEnginePage::renderProcessTerminated, this, takeEnd, Qt::QueuedConnection);
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest &request) { openInPlace(request); });
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl &origin, Feature feature) {
        setFeaturePermission(origin, feature, PermissionDeniedByUser);
    });
    connect(&profile, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *download) { download->cancel(); });
}

void BrowserPage::hideClosedFeatures()
{
    QWebEngineScript script;
    script.setName(u"closed features"_s);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(closedFeaturesScript());
    scripts().insert(script);
}

void BrowserPage::open(const QUrl &address)
{
    endIfHanging([this, address] { setUrl(address); });
    m_fence.files().open(address);
    setUrl(address);
}

void BrowserPage::openAsPage(const QUrl &file)
{
    Result<QByteArray> content = m_files.read(file.toLocalFile());
    if (isPage(file.path()) || !content || content.value().size() > mostGivenBytes) {
        open(file);
        return;
    }
    openText(QString::fromUtf8(decodeText(std::move(content).value()).utf8), file);
}

void BrowserPage::openText(const QString &html, const QUrl &base)
{
    endIfHanging([this, html, base] { setHtml(html, base); });
    m_fence.files().open(base);
    setHtml(html, base);
}

void BrowserPage::endProcess()
{
    if (const qint64 process = renderProcessPid(); process > 0)
        ::kill(static_cast<pid_t>(process), SIGKILL);
}

void BrowserPage::reload()
{
    endIfHanging([this] { triggerAction(Reload); });
    triggerAction(Reload);
}

void BrowserPage::triggerAction(WebAction action, bool checked)
{
    m_isInHistory = (action == Back && history()->canGoBack()) || (action == Forward && history()->canGoForward());
    QWebEnginePage::triggerAction(action, checked);
}

/// Replacing a page needs its cooperation, which a page in an endless script can't give; its process is killed.
void BrowserPage::endIfHanging(std::function<void()> again)
{
    const int navigation = ++m_navigation;
    m_again = {};
    m_isAlive = renderProcessPid() <= 0;
    if (m_isAlive) {
        Q_EMIT letGo();
        return;
    }
    runJavaScript(u"0"_s, [self = QPointer<BrowserPage>(this), navigation](const QVariant &) {
        if (!self || self->m_navigation != navigation)
            return;
        self->m_isAlive = true;
        Q_EMIT self->letGo();
    });
    QTimer::singleShot(patience, this, [this, navigation, again] {
        const qint64 process = renderProcessPid();
        if (m_navigation != navigation || m_isAlive || process <= 0)
            return;
        m_again = again;
        ::kill(static_cast<pid_t>(process), SIGKILL);
    });
}

/// The refused hosts were those of the previous page, so they are forgotten whenever another one comes: by a link, the
/// history or our own doing.
bool BrowserPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    if (isMainFrame && !mayLeaveFor(url, type)) {
        QMetaObject::invokeMethod(
            this, [this, host = remoteHost(url)] { refuse(host); }, Qt::QueuedConnection);
        return false;
    }
    if (isMainFrame && !m_refusedHosts.isEmpty()) {
        m_refusedHosts.clear();
        Q_EMIT remoteRefused({});
    }
    return QWebEnginePage::acceptNavigationRequest(url, type, isMainFrame);
}

/// An address can carry whatever the page has read, so the way to one is barred like the loading of a picture from there.
bool BrowserPage::mayLeaveFor(const QUrl &address, NavigationType type)
{
    const bool isInHistory = std::exchange(m_isInHistory, false);
    if (!m_fence.files().isLocal() || !isRemote(address)) {
        m_isLeaving = false;
        return true;
    }
    const auto hasInput = [this] { return m_input && m_input->take(); };
    switch (type) {
    case NavigationTypeTyped: // By setUrl(); pages have no such way.
        m_isLeaving = true;
        break;
    case NavigationTypeBackForward:
        m_isLeaving = isInHistory || hasInput();
        break;
    case NavigationTypeLinkClicked:
    case NavigationTypeFormSubmitted:
        m_isLeaving = hasInput();
        break;
    case NavigationTypeRedirect:
        break;
    default:
        m_isLeaving = false;
    }
    return m_isLeaving || m_fence.isRemoteAllowed();
}

void BrowserPage::refuse(const QString &host)
{
    if (m_refusedHosts.contains(host))
        return;
    m_refusedHosts.append(host);
    Q_EMIT remoteRefused(m_refusedHosts);
}

void BrowserPage::javaScriptAlert(const QUrl &, const QString &message)
{
    if (m_messages)
        m_messages->ask(ScriptMessageBar::Kind::Alert, message);
}

bool BrowserPage::javaScriptConfirm(const QUrl &, const QString &message)
{
    return m_messages && m_messages->ask(ScriptMessageBar::Kind::Confirm, message).has_value();
}

bool BrowserPage::javaScriptPrompt(const QUrl &, const QString &message, const QString &preset, QString *result)
{
    const auto answer = m_messages ? m_messages->ask(ScriptMessageBar::Kind::Prompt, message, preset) : std::nullopt;
    *result = answer.value_or(QString());
    return answer.has_value();
}

/// Only a click may open a page, and only with the page's own rights: the fence doesn't treat it as opened by the user.
void BrowserPage::openInPlace(const QWebEngineNewWindowRequest &request)
{
    if (request.isUserInitiated() && m_fence.files().mayShow(request.requestedUrl()))
        setUrl(request.requestedUrl());
}

} // namespace zephira
