// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

namespace zephira {

/// The one way by which the page's side of the designer reports by itself. Only the designer's own script reaches it; it
/// lives in a world that the page's scripts can't enter.
///
/// Every report names its kind, the page that it is about, by the prefix of its marks, and a number that grows within the
/// page: reports may arrive after another page has taken the place of theirs, or after newer ones.
///
/// | "kind" | further members |
/// |---|---|
/// | complete | those of DesignerState::fromPage(), of a page that had to wait for a style sheet and is there now |
/// | state | those of DesignerState::fromPage() |
/// | place | "place": where the selected element stands; see DesignerHandles |
/// | copy | those of DesignerCopy::fromPage() |
/// | command | "command": the number of one that the user wants by the keyboard |
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
