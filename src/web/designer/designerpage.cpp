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

/// The script's world: it shares the page's elements with nobody's scripts.
constexpr quint32 world = QWebEngineScript::ApplicationWorld;
/// How long to wait between two looks for an empty page that was loaded, in milliseconds.
constexpr int secondLookInterval = 250;

/// The policy outlives the document that brings it: whatever is written in its place inherits it. Scripts can't simply be
/// switched off, because the designer's own would hear no events then.
constexpr QStringView emptyPage = u"<!DOCTYPE html><meta http-equiv=\"Content-Security-Policy\" content=\""
                                  u"script-src 'none'; object-src 'none'; worker-src 'none'; connect-src 'none'; "
                                  u"frame-src 'none'; form-action 'none'\"><meta name=opening content=%1>";

struct Setting {
    QWebEngineSettings::WebAttribute attribute;
    bool on;
};

constexpr Setting pageSettings[] = {
    {QWebEngineSettings::AutoLoadIconsForPage, false},
    {QWebEngineSettings::ErrorPageEnabled, false},
    {QWebEngineSettings::FocusOnNavigationEnabled, false},
    {QWebEngineSettings::FullScreenSupportEnabled, false},
    {QWebEngineSettings::HyperlinkAuditingEnabled, false},
    {QWebEngineSettings::JavascriptCanOpenWindows, false},
    {QWebEngineSettings::LocalContentCanAccessRemoteUrls, false},
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

/// What the page's side needs, and that side itself.
QString designerScript()
{
    return resource(u":/qtwebchannel/qwebchannel.js"_s) + resource(u":/designer/designer.js"_s);
}

} // namespace

DesignerPage::DesignerPage(QWebEngineProfile &profile, QObject *parent) : QWebEnginePage(&profile, parent)
{
    setUrlRequestInterceptor(&m_fence);
    for (const Setting &setting : pageSettings)
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

/// A load that was begun while the page before, or its process, came to its end may never tell that it has ended. So the
/// empty page is looked for now and then, and loaded once more where it doesn't come, after a longer while each time.
void DesignerPage::lookAgain()
{
    if (!m_isOpening) {
        m_secondLook.stop();
    } else if (++m_looks < m_looksBeforeRetry) {
        lookForEmptyPage();
    } else {
        m_looks = 0;
        m_looksBeforeRetry *= 2;
        // A process that never got the script gets it now.
        scripts().clear();
        installScript();
        showEmptyPage();
    }
}

/// The document before may have ended its own loading only now, as one with frames does; what is written then would be
/// lost with it. So the empty page bears a number. In a process that has just begun it may come without our script.
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
    // The engine loads a page that is given as text from an address that holds it.
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

/// What a page before was asked is of no account any more.
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
    // An answer that comes late finds nobody waiting.
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
    // Who asked while this waited needn't wait for as long again. An answer that was lost with its process isn't late: a
    // new process answers.
    if (self && !wait->answer && opening == m_opening && losses == m_losses) {
        ++m_late;
        Q_EMIT late();
    }
    return wait->answer;
}

} // namespace zephira
