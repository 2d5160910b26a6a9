// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QtPlugin>

#include <functional>

namespace zephira {

/// The bytes of one address, and what the server says about their character set; empty where it says nothing.
struct FetchedPage {
    QByteArray bytes;
    QString charset;

    friend bool operator==(const FetchedPage &, const FetchedPage &) = default;
};

/// Fetches the bytes of one address and returns when they are there.
class PageFetcher
{
public:
    virtual ~PageFetcher() = default;
    /// Redirects are followed and compression is taken off. Fails for addresses that aren't http, https or ftp, for those
    /// that can't be reached in time or that the server has nothing at, and for pages above the size limit.
    virtual Result<FetchedPage> fetch(const QString &address) = 0;
};

/// Gives the fetcher, loading its module at the first call; fails where it can't be loaded.
using PageFetcherLoader = std::function<Result<PageFetcher *>()>;

} // namespace zephira

Q_DECLARE_INTERFACE(zephira::PageFetcher, "org.zephira.PageFetcher")
