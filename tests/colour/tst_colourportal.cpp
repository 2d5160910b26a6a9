// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colourportal.h"
#include "colour/colourshape.h"
#include "colour/fakescreen.h"
#include "colour/frmcolorspy.h"
#include "colour/frmzoom.h"
#include "colour/registerforms.h"
#include "support/fakes.h"
#include "support/formkit.h"
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

/// A request that the portal works on, which can be told to end.
class FakeRequest final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    int closed = 0;

public Q_SLOTS:
    void Close() { ++closed; }
};

namespace {

/// The spy on a desktop that doesn't let programs read the screen, with a portal on a private bus.
struct PortalSpy {
    TestContext world;
    std::unique_ptr<LivingForm> form;

    PortalSpy(const QDBusConnection &bus, std::chrono::milliseconds limit)
    {
        auto screen = std::make_shared<FakeScreen>();
        screen->readable = false;
        FormCatalogue forms;
        colour::registerForms(forms, {screen, [bus, limit] {
                                          auto portal = std::make_unique<ColourPortal>(bus);
                                          portal->setTimeLimit(limit);
                                          return portal;
                                      }});
        form = std::make_unique<LivingForm>(forms, u"frmColorSpy"_s, world);
    }

    void press() const { QTest::mouseClick(&form->get(u"picCursor"_s), Qt::LeftButton); }
    QString status() const { return form->value(u"lblStatus"_s); }
    bool canCancel() const { return form->get(u"cmdCancel"_s).isEnabled(); }
    QStringList shown() const
    {
        QStringList values;
        for (const QString &name : {u"txtColor"_s, u"txtHTML"_s, u"txtRed"_s, u"txtGreen"_s, u"txtBlue"_s})
            values.append(form->value(name));
        return values;
    }
};

const QStringList noColour{{}, {}, {}, {}, {}};
const QString waiting = u"Click a pixel on the screen."_s;

} // namespace

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

    void theFormShowsThePickedColour()
    {
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{1, 0.5, 0})}};
        const PortalSpy spy(*m_client, 30s);
        QVERIFY(!spy.canCancel());
        spy.press();
        QCOMPARE(spy.status(), waiting);
        QVERIFY(spy.canCancel());
        QTRY_COMPARE(spy.shown(), (QStringList{u"33023"_s, u"#FF8000"_s, u"255"_s, u"128"_s, u"0"_s}));
        QCOMPARE(spy.form->get<ColourShape>(u"picColor"_s).fillColour(), QColor(255, 128, 0));
        QCOMPARE(spy.status(), QString());
        QVERIFY(!spy.canCancel());
        // There is nothing to magnify, and nothing to read again and again.
        QVERIFY(!spy.form->widget().findChild<frmZoom *>());
        QVERIFY(!spy.form->widget().findChild<QTimer *>(u"timSpy"_s)->isActive());
    }

    void theFormByKeyboard()
    {
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{0, 0, 1})}};
        const PortalSpy spy(*m_client, 30s);
        spy.form->key(Qt::Key_Space);
        QTRY_COMPARE(spy.form->value(u"txtHTML"_s), u"#0000FF"_s);
    }

    void theFormAfterNoPick()
    {
        m_portal->response = 1;
        const PortalSpy spy(*m_client, 30s);
        spy.press();
        QTRY_VERIFY(!spy.canCancel());
        QCOMPARE(spy.status(), QString());
        QCOMPARE(spy.shown(), noColour);
    }

    void theFormWithoutAPortal()
    {
        QVERIFY(m_server->unregisterService(u"org.freedesktop.portal.Desktop"_s));
        const PortalSpy spy(*m_client, 30s);
        spy.press();
        QTRY_COMPARE(spy.status(), u"This desktop doesn't let programs read the screen."_s);
        QVERIFY(!spy.canCancel());
        QCOMPARE(spy.shown(), noColour);
    }

    void theFormEndsTheRequest_data()
    {
        QTest::addColumn<QString>("by");
        for (const QString &by : {u"Cancel"_s, u"Escape"_s, u"closing"_s})
            QTest::newRow(qPrintable(by)) << by;
    }

    void theFormEndsTheRequest()
    {
        QFETCH(QString, by);
        m_portal->answers = false;
        const PortalSpy spy(*m_client, 30s);
        spy.press();
        QTRY_COMPARE(m_portal->requests.size(), 1);
        FakeRequest request;
        QVERIFY(m_server->registerObject(m_portal->requests.constFirst(), &request, QDBusConnection::ExportAllSlots));
        // A second press doesn't ask again.
        spy.press();
        if (by == u"Cancel"_s)
            spy.form->press(u"cmdCancel"_s);
        else if (by == u"Escape"_s)
            spy.form->key(Qt::Key_Escape);
        else
            spy.form->widget().close();
        QVERIFY(!spy.canCancel());
        QCOMPARE(spy.status(), QString());
        QCOMPARE(spy.form->isOpen(), by != u"closing"_s);
        QTRY_COMPARE(request.closed, 1);
        // An answer that was under way changes nothing.
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{0, 1, 0})}};
        m_portal->answer(m_portal->requests.constFirst());
        QTest::qWait(100);
        QCOMPARE(spy.shown(), noColour);
        QCOMPARE(m_portal->requests.size(), 1);
    }

    void theFormOverAPortalThatNeverAnswers()
    {
        m_portal->answers = false;
        const PortalSpy spy(*m_client, 300ms);
        spy.press();
        QVERIFY(spy.canCancel());
        // The form still answers while it waits.
        QTest::mouseClick(&spy.form->get(u"txtColor"_s), Qt::LeftButton);
        QCOMPARE(spy.form->focus(), u"txtColor"_s);
        QTRY_COMPARE(spy.status(), u"The desktop didn't answer."_s);
        QVERIFY(!spy.canCancel());
        QCOMPARE(spy.shown(), noColour);
        // Another try works, and the sentence goes.
        m_portal->answers = true;
        m_portal->results = {{u"color"_s, QVariant::fromValue(Shares{0, 1, 0})}};
        spy.press();
        QTRY_COMPARE(spy.form->value(u"txtHTML"_s), u"#00FF00"_s);
        QCOMPARE(spy.status(), QString());
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
