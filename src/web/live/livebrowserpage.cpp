// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/live/livebrowserpage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QResource>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The world in which the script runs: it shares the page's elements, but no script objects, with other scripts.
constexpr quint32 world = QWebEngineScript::ApplicationWorld;

QString resource(const QString &path)
{
    const QResource file(path);
    if (!file.isValid())
        qFatal("the live page's script %s is missing", qPrintable(path));
    return QString::fromUtf8(file.uncompressedData());
}

/// What the page's own scripts are told about the scheme.
QString schemeScript(ColourScheme scheme)
{
    const QString wanted = scheme == ColourScheme::Dark ? u"dark"_s : u"light"_s;
    return u"(() => { const real = window.matchMedia.bind(window); window.matchMedia = query => real(String(query).replace("
           "/\\(\\s*prefers-color-scheme\\s*:\\s*(light|dark)\\s*\\)/gi, (_, asked) => asked.toLowerCase() === '%1' "
           "? '(min-width: 0)' : '(max-width: 0)')); })();"_s.arg(wanted);
}

QWebEngineScript script(const QString &name, quint32 where, const QString &source)
{
    QWebEngineScript made;
    made.setName(name);
    made.setInjectionPoint(QWebEngineScript::DocumentCreation);
    made.setWorldId(where);
    made.setRunsOnSubFrames(false);
    made.setSourceCode(source);
    return made;
}

} // namespace

LiveBrowserPage::LiveBrowserPage(const FileStore &files, QWebEngineProfile &profile, QObject *parent)
    : BrowserPage(files, profile, parent)
{
    settings()->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
    settings()->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    m_channel.registerObject(u"bridge"_s, &m_bridge);
    setWebChannel(&m_channel, world);
}

void LiveBrowserPage::installScripts(int load, ColourScheme scheme)
{
    scripts().clear();
    hideClosedFeatures();
    scripts().insert(script(u"live"_s, world,
                            u"globalThis.zephiraLoad = %1;\n"_s.arg(load) + resource(u":/qtwebchannel/qwebchannel.js"_s)
                                + resource(u":/live/live.js"_s)));
    if (scheme != ColourScheme::Desktop)
        scripts().insert(script(u"scheme"_s, QWebEngineScript::MainWorld, schemeScript(scheme)));
}

void LiveBrowserPage::openLive(const QString &html, const QUrl &base, int load, ColourScheme scheme)
{
    installScripts(load, scheme);
    openText(html, base);
}

void LiveBrowserPage::call(const QString &function, const QVariantList &arguments,
                           const std::function<void(const QVariant &)> &answered)
{
    const QByteArray list = QJsonDocument(QJsonArray::fromVariantList(arguments)).toJson(QJsonDocument::Compact);
    const QString code = u"zephiraLive.%1(...%2)"_s.arg(function, QString::fromUtf8(list));
    if (answered)
        runJavaScript(code, world, answered);
    else
        runJavaScript(code, world);
}

/// Only the program says which page is shown: given text comes as a data address, which no page may go to by itself. What
/// is in frames is the page's own affair.
bool LiveBrowserPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    if (!isMainFrame)
        return true;
    return url.scheme() == u"data" && BrowserPage::acceptNavigationRequest(url, type, isMainFrame);
}

} // namespace zephira
