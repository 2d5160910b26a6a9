// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/balance.h"

#include "completion/markupplace.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Their end tags may be left out.
constexpr std::array<QByteArrayView, 19> mayStayOpen{
    "html", "head", "body",   "p",        "li",    "dt",    "dd",    "tr",       "td",       "th",
    "rt",   "rp",   "option", "optgroup", "thead", "tbody", "tfoot", "colgroup", "plaintext"};

/// More elements within one another than these aren't followed.
constexpr std::size_t deepest = 2000;

} // namespace

void Balance::take(const MarkupTag &tag)
{
    if (isVoidElement(tag.key) || tag.endsItself || tag.isDynamic || tag.isOpen)
        return;
    if (!tag.isEnd) {
        if (m_open.size() >= deepest)
            interrupt();
        m_open.push_back({tag.start, tag.start + 1 + tag.name.size(), tag.key});
        return;
    }
    const auto found = std::ranges::find(m_open.rbegin(), m_open.rend(), tag.key, &Open::key);
    if (found == m_open.rend()) {
        if (m_isWhole && std::ranges::find(mayStayOpen, QByteArrayView(tag.key)) == mayStayOpen.end())
            m_sink.error(
                tag.start, tag.start + 2 + tag.name.size(),
                QCoreApplication::translate("Problems", "</%1> closes nothing.").arg(QString::fromUtf8(tag.name)));
        return;
    }
    for (auto inner = m_open.rbegin(); inner != found; ++inner)
        tellUnclosed(*inner, u"</%1>"_s.arg(QString::fromUtf8(tag.name)));
    m_open.erase(found.base() - 1, m_open.end());
}

void Balance::tellUnclosed(const Open &open, const QString &before)
{
    if (std::ranges::find(mayStayOpen, QByteArrayView(open.key)) != mayStayOpen.end())
        return;
    const QString name = QString::fromUtf8(open.key);
    m_sink.error(open.start, open.end,
                 before.isEmpty()
                     ? QCoreApplication::translate("Problems", "<%1> isn't closed.").arg(name)
                     : QCoreApplication::translate("Problems", "<%1> isn't closed before %2.").arg(name, before));
}

void Balance::interrupt()
{
    m_open.clear();
    m_isWhole = false;
}

void Balance::finish()
{
    if (m_isWhole)
        std::ranges::for_each(std::as_const(m_open), [this](const Open &open) { tellUnclosed(open, {}); });
}

} // namespace zephira
