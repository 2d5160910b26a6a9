// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QtPlugin>

#include <functional>

namespace zephira {

/// The bytes at an address, and the character set declared by the server, or empty.
struct FetchedPage {
    QByteArray bytes;
    QString charset;

    friend bool operator==(const FetchedPage &, const FetchedPage &) = default;
};

/// Fetches the bytes at an address and returns when they have arrived.
class PageFetcher
{
public:
    virtual ~PageFetcher() = default;
    /// Follows redirects and decompresses the content. Fails for addresses that aren't http, https or ftp, that can't
    /// be reached in time or don't exist on the server, and for pages above the size limit.
    virtual Result<FetchedPage> fetch(const QString &address) = 0;
};

/// Returns the fetcher, loading its module at the first call; fails if it can't be loaded.
using PageFetcherLoader = std::function<Result<PageFetcher *>()>;

} // namespace zephira

Q_DECLARE_INTERFACE(zephira::PageFetcher, "org.zephira.PageFetcher")
