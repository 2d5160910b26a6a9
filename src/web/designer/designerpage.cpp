// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/designerpage.h"

#include "web/designer/nestedwait.h"

#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The world in which the script runs: it shares the page's elements, but no script objects, with other scripts.
constexpr quint32 world = QWebEngineScript::ApplicationWorld;
/// The interval at which to check for an empty page that was loaded, in milliseconds.
constexpr int secondLookInterval = 250;

/// The policy outlives the document that sets it: a document written in its place inherits it. Scripts can't simply be
/// disabled, because then the designer's own script would receive no events.
constexpr QStringView emptyPage = u"<!DOCTYPE html><meta http-equiv=\"Content-Security-Policy\" content=\""
                                  u"script-src 'none'; object-src 'none'; worker-src 'none'; connect-src 'none'; "
                                  u"frame-src 'none'; form-action 'none'\"><meta name=opening content=%1>";

struct PageSetting {
    QWebEngineSettings::WebAttribute attribute;
    bool on;
};

constexpr PageSetting pageSettings[] = {
    {QWebEngineSettings::AutoLoadIconsForPage, false},
    {QWebEngineSettings::ErrorPageEnabled, false},
    {QWebEngineSettings::FocusOnNavigationEnabled, false},
    {QWebEngineSettings::FullScreenSupportEnabled, false},
    {QWebEngineSettings::HyperlinkAuditingEnabled, false},
    {QWebEngineSettings::JavascriptCanOpenWindows, false},
    // The LocalFileFence decides what is loaded; a setting of the engine would refuse even what the user has allowed.
    {QWebEngineSettings::LocalContentCanAccessRemoteUrls, true},
    {QWebEngineSettings::PdfViewerEnabled, false},
    {QWebEngineSettings::PlaybackRequiresUserGesture, true},
    {QWebEngineSettings::PluginsEnabled, false},
    {QWebEngineSettings::ScreenCaptureEnabled, false},
};

QString resource(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the designer's script %s is missing", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

/// The script for the page, preceded by what it needs.
QString designerScript()
{
    return resource(u":/qtwebchannel/qwebchannel.js"_s) + resource(u":/designer/designer.js"_s);
}

} // namespace

DesignerPage::DesignerPage(QWebEngineProfile &profile, QObject *parent) : QWebEnginePage(&profile, parent)
{
    setUrlRequestInterceptor(&m_fence);
    for (const PageSetting &setting : pageSettings)
        settings()->setAttribute(setting.attribute, setting.on);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    m_channel.registerObject(u"bridge"_s, &m_bridge);
    setWebChannel(&m_channel, world);
    installScript();

    connect(this, &QWebEnginePage::loadFinished, this, [this](bool ok) {
        if (m_isOpening && ok)
            lookForEmptyPage();
    });
    connect(this, &QWebEnginePage::renderProcessTerminated, this, [this] {
        m_late = 0;
        ++m_losses;
    });
    m_secondLook.setInterval(secondLookInterval);
    connect(&m_secondLook, &QTimer::timeout, this, &DesignerPage::lookAgain);
    connect(this, &DesignerPage::ready, this, [this] { m_late = 0; });
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl &origin, Feature feature) {
        setFeaturePermission(origin, feature, PermissionDeniedByUser);
    });
    connect(&profile, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *download) { download->cancel(); });
}

void DesignerPage::installScript()
{
    QWebEngineScript script;
    script.setName(u"designer"_s);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(world);
    script.setRunsOnSubFrames(false);
    script.setSourceCode(designerScript());
    scripts().insert(script);
}

void DesignerPage::open(const QUrl &base)
{
    m_fence.files().open(base);
    m_fence.files().shown(base);
    m_base = base;
    m_isOpening = true;
    m_looks = 0;
    m_looksBeforeRetry = 4;
    m_secondLook.start();
    showEmptyPage();
}

void DesignerPage::showEmptyPage()
{
    ++m_opening;
    setHtml(emptyPage.toString().arg(m_opening), m_base);
}

/// A load that was started while the previous page or its process was ending may never report its end. So we check for
/// the empty page at intervals, and load it again if it doesn't appear, waiting longer each time.
void DesignerPage::lookAgain()
{
    if (!m_isOpening) {
        m_secondLook.stop();
    } else if (++m_looks < m_looksBeforeRetry) {
        lookForEmptyPage();
    } else {
        m_looks = 0;
        m_looksBeforeRetry *= 2;
        // For a process that never received the script.
        scripts().clear();
        installScript();
        showEmptyPage();
    }
}

/// The previous document may only now finish its own loading, as one with frames does, and what is written then would
/// be lost with it. So the empty page has a number. In a new process it may appear without our script.
void DesignerPage::lookForEmptyPage()
{
    const QString question =
        u"typeof zephiraDesigner === 'object' && document.querySelector('meta[name=opening]')?.content === '%1'"_s.arg(
            m_opening);
    runJavaScript(question, world, [self = QPointer<DesignerPage>(this), opening = m_opening](const QVariant &isThere) {
        if (self && self->m_opening == opening && isThere.toBool() && std::exchange(self->m_isOpening, false))
            Q_EMIT self->ready(true);
    });
}

bool DesignerPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame)
{
    // The engine loads a page given as text from a data address that contains it.
    return m_isOpening && isMainFrame && url.scheme() == u"data";
}

void DesignerPage::call(const QString &function, const QVariantList &arguments,
                        const std::function<void(const QVariant &)> &answered)
{
    const QByteArray list = QJsonDocument(QJsonArray::fromVariantList(arguments)).toJson(QJsonDocument::Compact);
    runJavaScript(u"zephiraDesigner.%1(...%2)"_s.arg(function, QString::fromUtf8(list)), world, answered);
}

void DesignerPage::endIfHanging()
{
    if (const qint64 process = renderProcessPid(); !isResponding() && process > 0)
        ::kill(static_cast<pid_t>(process), SIGKILL);
}

/// Questions to a previous page no longer count.
void DesignerPage::answeredLate(int opening)
{
    if (opening == m_opening && m_late > 0)
        --m_late;
}

std::optional<QVariant> DesignerPage::callAndWait(const QString &function, const QVariantList &arguments)
{
    if (!isResponding())
        return {};
    struct Wait {
        QEventLoop loop;
        std::optional<QVariant> answer;
    };
    // A late answer finds that nobody is waiting.
    const auto wait = std::make_shared<Wait>();
    const std::weak_ptr<Wait> waiting = wait;
    const QPointer<DesignerPage> self(this);
    const int opening = m_opening;
    const int losses = m_losses;
    call(function, arguments, [self, waiting, opening](const QVariant &answer) {
        if (const auto still = waiting.lock()) {
            still->answer = answer;
            still->loop.quit();
        } else if (self) {
            self->answeredLate(opening);
        }
    });
    QTimer::singleShot(patience(), &wait->loop, &QEventLoop::quit);
    connect(this, &DesignerPage::late, &wait->loop, &QEventLoop::quit);
    connect(this, &QWebEnginePage::renderProcessTerminated, &wait->loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &wait->loop, &QEventLoop::quit);
    if (!wait->answer)
        waitIn(wait->loop);
    // Others who asked meanwhile needn't wait as long again. If the process ended, the answer isn't late but lost: the
    // new process will answer.
    if (self && !wait->answer && opening == m_opening && losses == m_losses) {
        ++m_late;
        Q_EMIT late();
    }
    return wait->answer;
}

} // namespace zephira
