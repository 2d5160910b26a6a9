// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/remotebar.h"

#include <QCoreApplication>

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
        named.append(QCoreApplication::translate("RemoteBar", "%1 others").arg(others));
    const QString last = named.takeLast();
    return QCoreApplication::translate("RemoteBar", "This page wants to load from %1.")
        .arg(named.isEmpty() ? last
                             : QCoreApplication::translate("RemoteBar", "%1 and %2").arg(named.join(u", "_s), last));
}

RemoteBar::RemoteBar(QWidget *parent) : NoticeBar(u"remoteBar"_s, tr("What the page wants from other machines"), parent)
{}

void RemoteBar::setHosts(const QStringList &hosts)
{
    if (hosts.isEmpty()) {
        setLines({});
        return;
    }
    const QString notice = remoteNotice(hosts);
    const NoticeLine::Button allow{
        u"remoteAllow"_s, tr("Allow"),
        tr("Load what the page wants. This is kept for the project that the document lies in, else for the document until "
           "the program ends."),
        tr("Allow: %1").arg(notice), [this] {
            setLines({});
            Q_EMIT allowed();
        }};
    const NoticeLine::Button notNow{u"remoteNotNow"_s, tr("Not Now"), tr("Show the page without it"),
                                    tr("Not now: %1").arg(notice), [this] { setLines({}); }};
    setLines(
        {{u"remoteText"_s, notice, tr("This page wants to load from:") + u'\n' + hosts.join(u'\n'), {allow, notNow}}});
}

} // namespace zephira
