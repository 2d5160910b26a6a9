// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/localfiles.h"

#include <QWebEngineUrlRequestInterceptor>

namespace zephira {

/// Applies the rules of LocalFiles to every request of a page; refused requests never leave the engine. Install it with
/// the page's setUrlRequestInterceptor(), and tell files() where the page goes.
class LocalFileFence final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    LocalFiles &files() { return m_files; }
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    LocalFiles m_files;
};

} // namespace zephira
