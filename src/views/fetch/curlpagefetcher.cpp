// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/fetch/curlpagefetcher.h"

#include "views/fetchedtext.h"

#include <memory>

#include <curl/curl.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr const char *protocols = "http,https,ftp";
constexpr long maximumRedirects = 20;

/// The received bytes, up to the size limit.
struct Body {
    QByteArray bytes;
    qint64 limit = 0;
    bool isTooLarge = false;
};

std::size_t receive(char *data, std::size_t size, std::size_t count, void *target)
{
    auto &body = *static_cast<Body *>(target);
    const auto length = static_cast<qsizetype>(size * count);
    body.isTooLarge = body.bytes.size() + length > body.limit;
    if (body.isTooLarge)
        return 0; // Which ends the transfer.
    body.bytes.append(data, length);
    return size * count;
}

Error::Code errorCodeOf(CURLcode code)
{
    switch (code) {
    case CURLE_OPERATION_TIMEDOUT:
        return Error::Code::TimedOut;
    case CURLE_HTTP_RETURNED_ERROR:
    case CURLE_REMOTE_FILE_NOT_FOUND:
        return Error::Code::NotFound;
    case CURLE_UNSUPPORTED_PROTOCOL:
        return Error::Code::Refused;
    default:
        return Error::Code::Failed;
    }
}

} // namespace

Result<FetchedPage> CurlPageFetcher::fetch(const QString &address)
{
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> transfer(curl_easy_init(), curl_easy_cleanup);
    if (!transfer)
        return Error{Error::Code::Failed, u"The transfer library can't be used."_s};
    CURL *const handle = transfer.get();
    const QByteArray url = address.trimmed().toUtf8();
    Body body{.bytes = {}, .limit = m_limits.bytes};

    curl_easy_setopt(handle, CURLOPT_URL, url.constData());
    curl_easy_setopt(handle, CURLOPT_DEFAULT_PROTOCOL, "http");
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, protocols);
    curl_easy_setopt(handle, CURLOPT_REDIR_PROTOCOLS_STR, protocols);
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(handle, CURLOPT_MAXREDIRS, maximumRedirects);
    curl_easy_setopt(handle, CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(handle, CURLOPT_ACCEPT_ENCODING, "");
    curl_easy_setopt(handle, CURLOPT_USERAGENT, "Zephira/" ZEPHIRA_VERSION);
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(m_limits.connecting.count()));
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(m_limits.whole.count()));
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &receive);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &body);

    const CURLcode outcome = curl_easy_perform(handle);
    if (body.isTooLarge)
        return Error{Error::Code::TooLarge, u"The document %1 is too large."_s.arg(address)};
    if (outcome != CURLE_OK) {
        return Error{
            errorCodeOf(outcome),
            u"The document %1 can't be fetched: %2."_s.arg(address, QString::fromUtf8(curl_easy_strerror(outcome)))};
    }
    if (body.bytes.isEmpty())
        return Error{Error::Code::NotFound, u"There is nothing at %1."_s.arg(address)};
    const char *contentType = nullptr;
    curl_easy_getinfo(handle, CURLINFO_CONTENT_TYPE, &contentType);
    return FetchedPage{std::move(body.bytes), charsetOfContentType(QString::fromLatin1(contentType))};
}

} // namespace zephira
