// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

namespace zephira {

/// What the page's side of the designer reports by itself. Only the designer's own script reaches it; it lives in a
/// world that the page's scripts can't enter.
///
/// Every report names the page that it is about, by the prefix of its marks, and bears a number that grows within the
/// page: reports may arrive after another page has taken the place of theirs, or after newer ones.
class DesignerBridge final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE void stateChanged(const QVariantMap &state) { Q_EMIT stateArrived(state); }
    Q_INVOKABLE void placeChanged(const QVariantMap &place) { Q_EMIT placeArrived(place); }
    Q_INVOKABLE void pageKept(const QVariantMap &copy) { Q_EMIT copyArrived(copy); }
    Q_INVOKABLE void clipboardWanted(const QVariantMap &request) { Q_EMIT clipboardRequested(request); }

Q_SIGNALS:
    /// The members are those of DesignerState::fromPage().
    void stateArrived(const QVariantMap &state);
    /// The member "place" says where the selected element stands; see DesignerHandles.
    void placeArrived(const QVariantMap &report);
    /// The members are those of DesignerCopy::fromPage().
    void copyArrived(const QVariantMap &copy);
    /// The user wants to "copy", "cut" or "paste" by the keyboard, which the member "kind" tells.
    void clipboardRequested(const QVariantMap &request);
};

} // namespace zephira
