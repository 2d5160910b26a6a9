// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace zephira {

/// Lets the user pick a colour of the screen through the desktop's portal, for desktops that don't let programs read
/// the screen.
class ColourPortal final : public QObject
{
    Q_OBJECT

public:
    explicit ColourPortal(const QDBusConnection &bus, QObject *parent = nullptr);

    /// How long the user and the desktop may take.
    void setTimeLimit(std::chrono::milliseconds limit) { m_limit.setInterval(limit); }
    bool isWaiting() const { return m_limit.isActive(); }
    /// Asks the desktop. Ends in exactly one of the signals, unless cancel() comes first.
    void pick();
    /// Gives up waiting.
    void cancel();

Q_SIGNALS:
    /// Red in the lowest byte.
    void picked(quint32 colour);
    /// The user cancelled.
    void dismissed();
    /// There was no usable answer; the sentence is for the user.
    void failed(const QString &sentence);

private Q_SLOTS:
    void answered(uint response, const QVariantMap &results);

private:
    void listen(const QString &request);
    void stopListening();
    void fail();

    QDBusConnection m_bus;
    QTimer m_limit{this};
    /// Path of the request that is waiting for its answer.
    QString m_request;
    int m_requests = 0;
};

} // namespace zephira
