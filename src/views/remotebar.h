// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/noticebar.h"

#include <QStringList>

namespace zephira {

/// Tells which machines the page in the preview would load from, and asks whether it may.
class RemoteBar final : public NoticeBar
{
    Q_OBJECT

public:
    explicit RemoteBar(QWidget *parent);

    /// The hosts that were refused; without one there is nothing to ask.
    void setHosts(const QStringList &hosts);

Q_SIGNALS:
    void allowed();
};

/// What the bar says, which names the first hosts only.
///
///     remoteNotice({"a.org", "b.org"}) == "This page wants to load from a.org and b.org."
QString remoteNotice(const QStringList &hosts);

} // namespace zephira
