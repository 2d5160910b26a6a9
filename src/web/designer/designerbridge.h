// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

namespace zephira {

/// The only channel through which the designer's script reports on its own. Only that script can use it, because it
/// runs in a world that the page's scripts can't access.
///
/// Every report has a kind, the page it is about, identified by the prefix of its marks, and a number that increases
/// within the page: reports may arrive after their page was replaced, or after newer ones.
///
/// | "kind" | further members |
/// |---|---|
/// | complete | those of DesignerState::fromPage(), for a page that had to wait for a style sheet and is complete now |
/// | state | those of DesignerState::fromPage() |
/// | place | "place": the position of the selected element; see DesignerHandles |
/// | copy | those of DesignerCopy::fromPage() |
/// | command | "command": the number of a command that the user requested with a key |
class DesignerBridge final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE void tell(const QVariantMap &report) { Q_EMIT told(report); }

Q_SIGNALS:
    void told(const QVariantMap &report);
};

} // namespace zephira
