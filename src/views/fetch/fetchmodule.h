// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/fetch/curlpagefetcher.h"

#include <QObject>

namespace zephira {

/// The object that the module provides to the program.
class FetchModule final : public QObject, public PageFetcher
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.PageFetcher")
    Q_INTERFACES(zephira::PageFetcher)

public:
    Result<FetchedPage> fetch(const QString &address) override { return m_fetcher.fetch(address); }

private:
    CurlPageFetcher m_fetcher;
};

} // namespace zephira
