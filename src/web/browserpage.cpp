// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/browserpage.h"

#include "core/filestore.h"
#include "files/textfile.h"
#include "web/pageaddress.h"

#include <QWebEngineDownloadRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace zephira {

namespace {

/// What the engine is given as text becomes an address of at most two million characters, in which one may take three.
constexpr qsizetype mostGivenBytes = 600'000;

constexpr QWebEngineSettings::WebAttribute closedToPages[] = {
    QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::LocalContentCanAccessRemoteUrls,
    QWebEngineSettings::AutoLoadIconsForPage,     QWebEngineSettings::PluginsEnabled,
    QWebEngineSettings::FullScreenSupportEnabled, QWebEngineSettings::ScreenCaptureEnabled,
};

} // namespace

BrowserPage::BrowserPage(const FileStore &files, QWebEngineProfile &profile, QObject *parent)
    : QWebEnginePage(&profile, parent), m_files(files)
{
    setUrlRequestInterceptor(&m_fence);
    for (const QWebEngineSettings::WebAttribute attribute : closedToPages)
        settings()->setAttribute(attribute, false);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);

    connect(this, &QWebEnginePage::urlChanged, this, [this](const QUrl &address) { m_fence.files().shown(address); });
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest &request) { openInPlace(request); });
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl &origin, Feature feature) {
        setFeaturePermission(origin, feature, PermissionDeniedByUser);
    });
    connect(&profile, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *download) { download->cancel(); });
}

void BrowserPage::open(const QUrl &address)
{
    m_fence.files().open(address);
    setUrl(address);
}

void BrowserPage::openAsPage(const QUrl &file)
{
    Result<QByteArray> content = m_files.read(file.toLocalFile());
    if (isNamedAsPage(file) || !content || content.value().size() > mostGivenBytes) {
        open(file);
        return;
    }
    m_fence.files().open(file);
    setHtml(QString::fromUtf8(decodeText(std::move(content).value()).utf8), file);
}

/// Only a click opens anything, and the page's own rights go with it: to the fence the user went nowhere.
void BrowserPage::openInPlace(const QWebEngineNewWindowRequest &request)
{
    if (request.isUserInitiated() && m_fence.files().mayShow(request.requestedUrl()))
        setUrl(request.requestedUrl());
}

} // namespace zephira
