// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/pagefetcher.h"

#include <chrono>

namespace zephira {

/// Fetches through libcurl.
class CurlPageFetcher final : public PageFetcher
{
public:
    struct Limits {
        std::chrono::milliseconds connecting{15'000};
        std::chrono::milliseconds whole{60'000};
        qint64 bytes = 256LL * 1024 * 1024;
    };

    CurlPageFetcher() : CurlPageFetcher(Limits()) {}
    explicit CurlPageFetcher(const Limits &limits) : m_limits(limits) {}

    Result<FetchedPage> fetch(const QString &address) override;

private:
    const Limits m_limits;
};

} // namespace zephira
