// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colourportal.h"
#include "support/testregistry.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;
using namespace std::chrono_literals;

namespace {

/// A colour as the portal sends it.
struct Shares {
    double red = 0;
    double green = 0;
    double blue = 0;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Shares &shares)
{
    argument.beginStructure();
    argument << shares.red << shares.green << shares.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Shares &shares)
{
    argument.beginStructure();
    argument >> shares.red >> shares.green >> shares.blue;
    argument.endStructure();
    return argument;
}

} // namespace

Q_DECLARE_METATYPE(Shares)

/// A portal that answers as the test says.
class FakePortal final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")

public:
    explicit FakePortal(const QDBusConnection &bus) : m_bus(bus) {}

    bool answers = true;
    /// Makes paths of its own, as old portals do.
    bool isOld = false;
    uint response = 0;
    QVariantMap results;
    QStringList requests;

public Q_SLOTS:
    QDBusObjectPath PickColor(const QString &, const QVariantMap &options)
    {
        const QString sender = message().service().mid(1).replace(u'.', u'_');
        const QString token = isOld ? u"own"_s : options.value(u"handle_token"_s).toString();
        const QString path = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(sender, token);
        requests.append(path);
        if (answers)
            // After the reply: an old portal can't be heard before.
            QTimer::singleShot(isOld ? 100 : 0, this, [this, path] { answer(path); });
        return QDBusObjectPath(path);
    }

    void answer(const QString &path)
    {
        QDBusMessage signal = QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << response << results;
        m_bus.send(signal);
    }

private:
    QDBusConnection m_bus;
};

/// Picking a colour through a portal on a bus of the test's own.
class TstColourPortal final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qDBusRegisterMetaType<Shares>();
        m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY(m_daemon.waitForStarted());
        QVERIFY(m_daemon.waitForReadyRead());
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        QVERIFY(!m_address.isEmpty());
    }

    void cleanupTestCase()
    {
        m_daemon.kill();
        QVERIFY(m_daemon.waitForFinished());
    }

    void init()
    {
        m_server = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(m_address, u"server"_s));
        m_client = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(m_address, u"client"_s));
        QVERIFY(m_server->isConnected() && m_client->isConnected());
        m_portal = std::make_unique<FakePortal>(*m_server);
        QVERIFY(m_server->registerObject(u"/org/freedesktop/portal/desktop"_s, m_portal.get(),
                                         QDBusConnection::ExportAllSlots));
        QVERIFY(m_server->registerService(u"org.freedesktop.portal.Desktop"_s));
        m_colour = std::make_unique<ColourPortal>(*m_client);
        m_picked = std::make_unique<QSignalSpy>(m_colour.get(), &ColourPortal::picked);
        m_dismissed = std::make_unique<QSignalSpy>(m_colour.get(), &ColourPortal::dismissed);
        m_failed = std::make_unique<QSignalSpy>(m_colour.get(), &ColourPortal::failed);
    }

    void cleanup()
    {
        m_colour.reset();
        m_portal.reset();
        m_server.reset();
        m_client.reset();
        QDBusConnection::disconnectFromBus(u"server"_s);
        QDBusConnection::disconnectFromBus(u"client"_s);
    }

    void aColour_data()
    {
        QTest::addColumn<double>("red");
        QTest::addColumn<double>("green");
        QTest::addColumn<double>("blue");
        QTest::addColumn<uint>("colour");
        QTest::newRow("black") << 0.0 << 0.0 << 0.0 << 0U;
        QTest::newRow("red is low") << 1.0 << 0.0 << 0.0 << 255U;
        QTest::newRow("blue is high") << 0.0 << 0.0 << 1.0 << 0xff0000U;
        QTest::newRow("rounded") << 0.5 << 16 / 255.0 << 0.999 << 0xff1080U;
    }

    void aColour()
    {
        QFETCH(double, red);
        QFETCH(double, green);
        QFETCH(double, blue);
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{red, green, blue})}};
        m_colour->pick();
        QVERIFY(m_colour->isWaiting());
        QTRY_COMPARE(m_picked->size(), 1);
        QTEST(m_picked->at(0).at(0).toUInt(), "colour");
        QVERIFY(!m_colour->isWaiting());
        QVERIFY(m_dismissed->isEmpty() && m_failed->isEmpty());
    }

    void anOldPortal()
    {
        m_portal->isOld = true;
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{0, 1, 0})}};
        m_colour->pick();
        QTRY_COMPARE(m_picked->size(), 1);
        QCOMPARE(m_picked->at(0).at(0).toUInt(), 0xff00U);
    }

    void theUserPicksNothing()
    {
        m_portal->response = 1;
        m_colour->pick();
        QTRY_COMPARE(m_dismissed->size(), 1);
        QVERIFY(m_picked->isEmpty() && m_failed->isEmpty());
    }

    void anAnswerThatIsNone_data()
    {
        QTest::addColumn<uint>("response");
        QTest::addColumn<QVariantMap>("results");
        QTest::newRow("failed") << 2U << QVariantMap();
        QTest::newRow("no colour") << 0U << QVariantMap();
        QTest::newRow("a text") << 0U << QVariantMap{{u"color"_s, u"red"_s}};
        QTest::newRow("too large") << 0U << QVariantMap{{u"color"_s, QVariant::fromValue(Shares{2, 0, 0})}};
        QTest::newRow("not a number") << 0U << QVariantMap{{u"color"_s, QVariant::fromValue(Shares{qQNaN(), 0, 0})}};
    }

    void anAnswerThatIsNone()
    {
        QFETCH(uint, response);
        QFETCH(QVariantMap, results);
        m_portal->response = response;
        m_portal->results = results;
        m_colour->pick();
        QTRY_COMPARE(m_failed->size(), 1);
        QCOMPARE(m_failed->at(0).at(0).toString(), u"This desktop doesn't let programs read the screen."_s);
        QVERIFY(m_picked->isEmpty() && !m_colour->isWaiting());
    }

    void noPortal()
    {
        QVERIFY(m_server->unregisterService(u"org.freedesktop.portal.Desktop"_s));
        m_colour->pick();
        QTRY_COMPARE(m_failed->size(), 1);
        QVERIFY(!m_colour->isWaiting());
    }

    void aPortalThatNeverAnswers()
    {
        m_portal->answers = false;
        m_colour->setTimeLimit(200ms);
        m_colour->pick();
        QTRY_COMPARE(m_failed->size(), 1);
        QCOMPARE(m_failed->at(0).at(0).toString(), u"The desktop didn't answer."_s);
        QVERIFY(!m_colour->isWaiting());
        // A late answer changes nothing.
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{0, 1, 0})}};
        m_portal->answer(m_portal->requests.constLast());
        QTest::qWait(100);
        QVERIFY(m_picked->isEmpty());
        QCOMPARE(m_failed->size(), 1);
    }

    void theLimitIsThirtySeconds() { QCOMPARE(m_colour->findChild<QTimer *>()->interval(), 30'000); }

    void cancelled()
    {
        m_portal->answers = false;
        m_colour->pick();
        QTRY_COMPARE(m_portal->requests.size(), 1);
        m_colour->cancel();
        QVERIFY(!m_colour->isWaiting());
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{0, 1, 0})}};
        m_portal->answer(m_portal->requests.constLast());
        QTest::qWait(100);
        QVERIFY(m_picked->isEmpty() && m_dismissed->isEmpty() && m_failed->isEmpty());
        // The next one isn't disturbed.
        m_portal->answers = true;
        m_colour->pick();
        QTRY_COMPARE(m_picked->size(), 1);
    }

private:
    QProcess m_daemon;
    QString m_address;
    std::unique_ptr<QDBusConnection> m_server;
    std::unique_ptr<QDBusConnection> m_client;
    std::unique_ptr<FakePortal> m_portal;
    std::unique_ptr<ColourPortal> m_colour;
    std::unique_ptr<QSignalSpy> m_picked;
    std::unique_ptr<QSignalSpy> m_dismissed;
    std::unique_ptr<QSignalSpy> m_failed;
};

ZEPHIRA_TEST(TstColourPortal)
#include "tst_colourportal.moc"
