// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/webviews.h"

#include <QObject>

namespace zephira {

/// The object that the module provides to the program.
class WebModule final : public QObject, public WebViews
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.WebViews")
    Q_INTERFACES(zephira::WebViews)

public:
    /// Starts the engine.
    WebModule();

    BrowserView makeBrowser(const FileStore &files, QWidget *parent) override;
    DesignerView makeDesigner(const FileStore &files, Prompts &prompts, QWidget *parent) override;
    LivePageView makeLivePage(const FileStore &files, QWidget *parent) override;
};

} // namespace zephira
