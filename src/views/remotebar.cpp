// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/remotebar.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype mostNamed = 3;

} // namespace

QString remoteNotice(const QStringList &hosts)
{
    QStringList named = hosts.first(qMin(mostNamed, hosts.size()));
    const qsizetype others = hosts.size() - named.size();
    if (others == 1)
        named = hosts;
    else if (others > 0)
        named.append(u"%1 others"_s.arg(others));
    const QString last = named.takeLast();
    return u"This page wants to load from %1."_s.arg(named.isEmpty() ? last : named.join(u", "_s) + u" and "_s + last);
}

RemoteBar::RemoteBar(QWidget *parent) : NoticeBar(u"remoteBar"_s, u"What the page wants from other machines"_s, parent)
{}

void RemoteBar::setHosts(const QStringList &hosts)
{
    if (hosts.isEmpty()) {
        setLines({});
        return;
    }
    const QString notice = remoteNotice(hosts);
    const NoticeLine::Button allow{
        u"remoteAllow"_s, u"Allow"_s,
        u"Load what the page wants. This is kept for the project that the document lies in, else for the document until the "
        "program ends."_s,
        u"Allow: "_s + notice, [this] {
            setLines({});
            Q_EMIT allowed();
        }};
    const NoticeLine::Button notNow{u"remoteNotNow"_s, u"Not Now"_s, u"Show the page without it"_s,
                                    u"Not now: "_s + notice, [this] { setLines({}); }};
    setLines({{u"remoteText"_s, notice, u"This page wants to load from:\n"_s + hosts.join(u'\n'), {allow, notNow}}});
}

} // namespace zephira
