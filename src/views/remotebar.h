// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/noticebar.h"

#include <QStringList>

namespace zephira {

/// Shows from which hosts the page in the preview wants to load, and asks whether it may.
class RemoteBar final : public NoticeBar
{
    Q_OBJECT

public:
    explicit RemoteBar(QWidget *parent);

    /// Sets the hosts that were refused; without any, nothing is asked.
    void setHosts(const QStringList &hosts);

Q_SIGNALS:
    void allowed();
};

/// The bar's message, which names only the first hosts.
///
///     remoteNotice({"a.org", "b.org"}) == "This page wants to load from a.org and b.org."
QString remoteNotice(const QStringList &hosts);

} // namespace zephira
