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
class Prompts;

/// A browser, or a designer, and the widget that it is: two views of one object that belongs to the widget's parent.
struct BrowserView {
    QWidget *widget = nullptr;
    Browser *control = nullptr;
};

struct DesignerView {
    QWidget *widget = nullptr;
    Designer *control = nullptr;
};

/// Makes the two views that stand on a web engine. The engine lives in a module that is loaded when the first of them is
/// wanted, so that a start which shows none pays nothing for it.
class WebViews
{
public:
    virtual ~WebViews() = default;

    /// Both read the pages that they are told to open from `files`, which outlive them.
    virtual BrowserView makeBrowser(const FileStore &files, QWidget *parent) = 0;
    /// The designer asks the user through `prompts`, which outlive it.
    virtual DesignerView makeDesigner(const FileStore &files, Prompts &prompts, QWidget *parent) = 0;
};

/// Gives the views, loading their module at the first call; fails where it can't be loaded.
using WebViewsLoader = std::function<Result<WebViews *>()>;

} // namespace zephira

Q_DECLARE_INTERFACE(zephira::WebViews, "org.zephira.WebViews")
