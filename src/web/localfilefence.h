// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/localfiles.h"

#include <QWebEngineUrlRequestInterceptor>

namespace zephira {

/// Holds every request of a page to the rule of LocalFiles; what it refuses never leaves the engine. Give it to a page by
/// setUrlRequestInterceptor(), and tell files() where the page goes.
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
