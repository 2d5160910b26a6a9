// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colourportal.h"

#include "colour/colournotations.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString service()
{
    return u"org.freedesktop.portal.Desktop"_s;
}

QString requestInterface()
{
    return u"org.freedesktop.portal.Request"_s;
}

constexpr std::chrono::seconds timeLimit{30};

/// The path that the portal gives to a request with that token, made from the caller's name on the bus.
QString requestPath(const QDBusConnection &bus, const QString &token)
{
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    return u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(sender, token);
}

/// Three numbers from 0 to 1; nothing if the answer has none.
std::optional<quint32> colourIn(const QVariant &value)
{
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != u"(ddd)"_s)
        return {};
    std::array<double, 3> shares{};
    argument.beginStructure();
    for (double &share : shares)
        argument >> share;
    argument.endStructure();
    Channels channels{};
    for (std::size_t i = 0; i < shares.size(); ++i) {
        if (!(shares.at(i) >= 0 && shares.at(i) <= 1))
            return {};
        channels.at(i) = static_cast<quint8>(std::lround(shares.at(i) * 255));
    }
    return colourOf(channels);
}

} // namespace

ColourPortal::ColourPortal(const QDBusConnection &bus, QObject *parent) : QObject(parent), m_bus(bus)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(timeLimit);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        cancel();
        Q_EMIT failed(tr("The desktop didn't answer."));
    });
}

void ColourPortal::pick()
{
    cancel();
    if (!m_bus.isConnected()) {
        fail();
        return;
    }
    m_limit.start();
    const QString token = u"zephira%1"_s.arg(++m_requests);
    listen(requestPath(m_bus, token));
    QDBusMessage call = QDBusMessage::createMethodCall(service(), u"/org/freedesktop/portal/desktop"_s,
                                                       u"org.freedesktop.portal.Screenshot"_s, u"PickColor"_s);
    call << QString() << QVariantMap{{u"handle_token"_s, token}};
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, m_limit.interval()), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, number = m_requests] {
        watcher->deleteLater();
        if (number != m_requests || !isWaiting())
            return;
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError())
            fail();
        else if (reply.value().path() != m_request)
            // Old portals choose the path themselves.
            listen(reply.value().path());
    });
}

void ColourPortal::cancel()
{
    m_limit.stop();
    if (m_request.isEmpty())
        return;
    QDBusMessage close = QDBusMessage::createMethodCall(service(), m_request, requestInterface(), u"Close"_s);
    m_bus.send(close);
    stopListening();
}

void ColourPortal::answered(uint response, const QVariantMap &results)
{
    if (!isWaiting())
        return;
    m_limit.stop();
    stopListening();
    constexpr uint success = 0;
    constexpr uint cancelled = 1;
    const std::optional<quint32> colour = colourIn(results.value(u"color"_s));
    if (response == success && colour)
        Q_EMIT picked(*colour);
    else if (response == cancelled)
        Q_EMIT dismissed();
    else
        fail();
}

void ColourPortal::listen(const QString &request)
{
    stopListening();
    m_request = request;
    m_bus.connect(service(), m_request, requestInterface(), u"Response"_s, this, SLOT(answered(uint, QVariantMap)));
}

void ColourPortal::stopListening()
{
    if (!m_request.isEmpty())
        m_bus.disconnect(service(), m_request, requestInterface(), u"Response"_s, this,
                         SLOT(answered(uint, QVariantMap)));
    m_request.clear();
}

void ColourPortal::fail()
{
    m_limit.stop();
    stopListening();
    Q_EMIT failed(tr("This desktop doesn't let programs read the screen."));
}

} // namespace zephira
