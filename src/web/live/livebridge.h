// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

namespace zephira {

/// The channel through which the live page's script reports on its own. Only that script can use it. Every report has a
/// "kind", and the number of the "load" it belongs to.
///
/// | "kind" | further members |
/// |---|---|
/// | ready | none: the page has been read |
/// | clicked | "place", "usable" |
/// | scrolled | "place", "atEnd" |
class LiveBridge final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE void tell(const QVariantMap &report) { Q_EMIT told(report); }

Q_SIGNALS:
    void told(const QVariantMap &report);
};

} // namespace zephira
