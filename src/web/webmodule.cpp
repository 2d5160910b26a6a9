// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/webmodule.h"

#include "core/quietmessages.h"
#include "web/browserwidget.h"
#include "web/designer/designerwidget.h"
#include "web/enginefeatures.h"
#include "web/live/livepagewidget.h"

#include <QLoggingCategory>
#include <QWebEngineProfile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

WebModule::WebModule()
{
    // As root, the engine refuses to start with its sandbox, which needs an unprivileged user.
    if (geteuid() == 0) {
        qWarning("Zephira is running as root: web pages are shown without the engine's sandbox.");
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
    closeUnfencedFeatures();
    const QuietMessages quiet;
    QLoggingCategory::setFilterRules(u"qt.webenginecontext=false"_s);
    const QWebEngineProfile first; // Starts the engine.
}

BrowserView WebModule::makeBrowser(const FileStore &files, QWidget *parent)
{
    auto *browser = new BrowserWidget(files, parent);
    browser->setObjectName(u"ww1"_s);
    browser->setAccessibleName(u"Preview of the document"_s);
    return {browser, browser};
}

DesignerView WebModule::makeDesigner(const FileStore &files, Prompts &prompts, QWidget *parent)
{
    auto *designer = new DesignerWidget(files, prompts, parent);
    designer->setObjectName(u"DHTMLEdit1"_s);
    designer->setAccessibleName(u"Visual editor of the document"_s);
    return {designer, designer};
}

LivePageView WebModule::makeLivePage(const FileStore &files, QWidget *parent)
{
    auto *live = new LivePageWidget(files, parent);
    live->setObjectName(u"livePageView"_s);
    live->setAccessibleName(u"Live page"_s);
    return {live, live};
}

} // namespace zephira
