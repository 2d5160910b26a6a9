// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QtPlugin>

#include <functional>

class QWidget;

namespace zephira {

class Browser;
class Designer;
class FileStore;
class LivePage;
class Prompts;

/// A browser, a designer or a live page and its widget: two interfaces of one object, which the widget's parent owns.
struct BrowserView {
    QWidget *widget = nullptr;
    Browser *control = nullptr;
};

struct DesignerView {
    QWidget *widget = nullptr;
    Designer *control = nullptr;
};

struct LivePageView {
    QWidget *widget = nullptr;
    LivePage *control = nullptr;
};

/// Creates the views that are based on the web engine. The engine is in a module that is loaded when the first view
/// is needed, so that a start without them isn't slowed down.
class WebViews
{
public:
    virtual ~WebViews() = default;

    /// The views read the pages they open from `files`, which must outlive them.
    virtual BrowserView makeBrowser(const FileStore &files, QWidget *parent) = 0;
    /// The designer asks the user through `prompts`, which must outlive it.
    virtual DesignerView makeDesigner(const FileStore &files, Prompts &prompts, QWidget *parent) = 0;
    virtual LivePageView makeLivePage(const FileStore &files, QWidget *parent) = 0;
};

/// Returns the view factory, loading its module at the first call; fails if the module can't be loaded.
using WebViewsLoader = std::function<Result<WebViews *>()>;

} // namespace zephira

Q_DECLARE_INTERFACE(zephira::WebViews, "org.zephira.WebViews")
