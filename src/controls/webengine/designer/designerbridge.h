// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

namespace zephira {

/// What the page's side of the designer reports by itself. Only the designer's own script reaches it; it lives in a
/// world that the page's scripts can't enter.
class DesignerBridge final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE void stateChanged(const QVariantMap &state) { emit stateArrived(state); }
    Q_INVOKABLE void placeChanged(const QVariantMap &place) { emit placeArrived(place); }
    Q_INVOKABLE void pageKept(const QString &page) { emit pageArrived(page); }
    Q_INVOKABLE void clipboardWanted(const QString &kind) { emit clipboardRequested(kind); }

signals:
    /// The members are those of DesignerState::fromPage().
    void stateArrived(const QVariantMap &state);
    /// Where the selected element stands; see DesignerHandles.
    void placeArrived(const QVariantMap &place);
    /// The page's text as it is now, for the case that the page is lost.
    void pageArrived(const QString &page);
    /// The user wants to "copy", "cut" or "paste" by the keyboard.
    void clipboardRequested(const QString &kind);
};

} // namespace zephira
