// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/spokentree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int patience = 20000;
constexpr int step = 100;
constexpr qsizetype mostChildren = 150;

const QString accessible = u"org.a11y.atspi.Accessible"_s;
const QString text = u"org.a11y.atspi.Text"_s;

/// The numbers of two states in the set of bits that a control reports, and of a line among the boundaries of a text.
constexpr unsigned focusableState = 11;
constexpr unsigned showingState = 25;
constexpr unsigned lineBoundary = 5;

QDBusConnection accessibilityBus()
{
    QDBusConnection session = QDBusConnection::sessionBus();
    QDBusMessage address = session.call(
        QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s));
    if (address.type() != QDBusMessage::ReplyMessage)
        qFatal("the session has no bus for assistive technology: %s", qPrintable(address.errorMessage()));
    for (const QString &property : {u"IsEnabled"_s, u"ScreenReaderEnabled"_s}) {
        QDBusMessage set = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                          u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
        set << u"org.a11y.Status"_s << property << QVariant::fromValue(QDBusVariant(true));
        session.call(set);
    }
    return QDBusConnection::connectToBus(address.arguments().value(0).toString(), u"accessibility"_s);
}

} // namespace

SpokenTree::SpokenTree() : m_bus(accessibilityBus())
{
    if (!m_bus.isConnected())
        qFatal("no connection to the bus for assistive technology");
}

QDBusMessage SpokenTree::call(const SpokenControl &control, const QString &interface, const QString &method,
                              const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(control.service, control.path, interface, method);
    message.setArguments(arguments);
    return m_bus.call(message);
}

QVariant SpokenTree::property(const SpokenControl &control, const QString &interface, const QString &name) const
{
    const QDBusMessage reply = call(control, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, name});
    return reply.arguments().value(0).value<QDBusVariant>().variant();
}

SpokenControl SpokenTree::at(const QString &service, const QString &path) const
{
    SpokenControl control{.service = service, .path = path, .name = {}, .role = {}};
    control.name = property(control, accessible, u"Name"_s).toString();
    control.role = call(control, accessible, u"GetRoleName"_s).arguments().value(0).toString();
    const auto states = qdbus_cast<QList<uint>>(call(control, accessible, u"GetState"_s).arguments().value(0));
    const unsigned low = states.value(0);
    control.focusable = (low >> focusableState & 1) != 0;
    control.showing = (low >> showingState & 1) != 0;
    return control;
}

std::vector<SpokenControl> SpokenTree::children(const SpokenControl &parent) const
{
    std::vector<SpokenControl> found;
    const int count = property(parent, accessible, u"ChildCount"_s).toInt();
    for (int i = 0; i < std::min<qsizetype>(count, mostChildren); ++i) {
        const QDBusMessage reply = call(parent, accessible, u"GetChildAtIndex"_s, {i});
        if (reply.type() != QDBusMessage::ReplyMessage)
            continue;
        const auto reference = reply.arguments().value(0).value<QDBusArgument>();
        QString service;
        QDBusObjectPath path;
        reference.beginStructure();
        reference >> service >> path;
        reference.endStructure();
        if (!path.path().endsWith(u"/null"_s))
            found.push_back(at(service, path.path()));
    }
    return found;
}

std::optional<SpokenControl> SpokenTree::program() const
{
    const SpokenControl desktop = at(u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s);
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < patience) {
        const std::vector<SpokenControl> programs = children(desktop);
        if (!programs.empty())
            return programs.front();
        QTest::qWait(step);
    }
    return std::nullopt;
}

std::vector<SpokenControl> SpokenTree::showing(const SpokenControl &top) const
{
    std::vector<SpokenControl> found;
    const std::vector<SpokenControl> below = children(top);
    for (const SpokenControl &child : below) {
        if (!child.showing)
            continue;
        found.push_back(child);
        const std::vector<SpokenControl> deeper = showing(child);
        found.insert(found.end(), deeper.begin(), deeper.end());
    }
    return found;
}

std::optional<SpokenControl> SpokenTree::find(const SpokenControl &top,
                                              const std::function<bool(const SpokenControl &)> &fits) const
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < patience) {
        const std::vector<SpokenControl> all = showing(top);
        const auto found = std::ranges::find_if(all, fits);
        if (found != all.end())
            return *found;
        QTest::qWait(step);
    }
    return std::nullopt;
}

void SpokenTree::press(const SpokenControl &control) const
{
    call(control, u"org.a11y.atspi.Action"_s, u"DoAction"_s, {0});
}

QString SpokenTree::lineAtCaret(const SpokenControl &control) const
{
    const int caret = property(control, text, u"CaretOffset"_s).toInt();
    return call(control, text, u"GetTextAtOffset"_s, {caret, lineBoundary}).arguments().value(0).toString();
}

} // namespace zephira
