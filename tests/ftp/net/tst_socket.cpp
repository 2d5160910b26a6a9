// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/hostlookup.h"
#include "ftp/net/socket.h"
#include "support/testregistry.h"

#include <QTest>

#include <thread>

#include <netinet/in.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using namespace std::chrono_literals;

/// Long enough for a busy machine; a passing test never waits this long.
const Deadline patience(60s);

SocketAddress numeric(const QString &host, quint16 port = 0)
{
    return lookUpHost(host, port, patience).front();
}

} // namespace

/// Addresses and connections, below the protocol.
class TstSocket final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addresses_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("family");
        QTest::newRow("IPv4") << u"192.0.2.7"_s << AF_INET;
        QTest::newRow("IPv6") << u"2001:db8::7"_s << AF_INET6;
    }

    void addresses()
    {
        QFETCH(QString, host);
        const SocketAddress address = numeric(host, 21);
        QTEST(address.family(), "family");
        QCOMPARE(address.host(), host.toLatin1());
        QCOMPARE(address.port(), static_cast<quint16>(21));
        const SocketAddress other = address.withPort(65535);
        QCOMPARE(other.port(), static_cast<quint16>(65535));
        QVERIFY(other.isSameHost(address));
        QVERIFY(!other.isSameHost(numeric(u"192.0.2.8"_s)));
        QVERIFY(!other.isSameHost(SocketAddress()));
    }

    void sendsAndReceives()
    {
        const Socket listener = Socket::listeningAt(numeric(u"127.0.0.1"_s));
        Socket client = Socket::connectedTo(listener.localAddress(), patience);
        Socket server = listener.accept(client.localAddress(), patience);
        QVERIFY(client.send("hello", 60s));
        client.endSending();
        char buffer[16];
        QCOMPARE(server.receive(buffer, sizeof(buffer), patience), 5);
        QCOMPARE(QByteArray(buffer, 5), "hello"_ba);
        QCOMPARE(server.receive(buffer, sizeof(buffer), patience), 0);
    }

    void receivesWhatComesLate()
    {
        const Socket listener = Socket::listeningAt(numeric(u"127.0.0.1"_s));
        Socket client = Socket::connectedTo(listener.localAddress(), patience);
        Socket server = listener.accept(client.localAddress(), patience);
        char buffer[16];
        // Much later than the short time before the receiver goes to sleep.
        std::thread sender([&client] {
            std::this_thread::sleep_for(50ms);
            client.send("hello", 60s);
            client.endSending();
        });
        const qsizetype count = server.receive(buffer, sizeof(buffer), patience, Socket::Waiting::AwakeAtFirst);
        sender.join();
        QCOMPARE(QByteArray(buffer, count), "hello"_ba);
        QCOMPARE(server.receive(buffer, sizeof(buffer), patience, Socket::Waiting::AwakeAtFirst), 0);
    }

    void waitsNoLongerThanItMay()
    {
        const Socket listener = Socket::listeningAt(numeric(u"127.0.0.1"_s));
        Socket client = Socket::connectedTo(listener.localAddress(), patience);
        char buffer[16];
        for (const auto waiting : {Socket::Waiting::Asleep, Socket::Waiting::AwakeAtFirst})
            QCOMPARE(client.receive(buffer, sizeof(buffer), Deadline(10ms), waiting), -1);
        QVERIFY(!client.waitForInput(Deadline(0ms)));
        // Nobody reads it from the connection's buffers.
        QVERIFY(!client.send(QByteArray(100'000'000, 'x'), 10ms));
    }

    void turnsStrangersAway()
    {
        const Socket listener = Socket::listeningAt(numeric(u"127.0.0.1"_s));
        const SocketAddress at = listener.localAddress();
        const SocketAddress elsewhere = numeric(u"127.0.0.2"_s);
        const int stranger = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(::bind(stranger, elsewhere.data(), elsewhere.length()), 0);
        QCOMPARE(::connect(stranger, at.data(), at.length()), 0);
        QVERIFY(!listener.accept(at, Deadline(10ms)).isOpen());

        const Socket friendly = Socket::connectedTo(at, patience);
        const Socket accepted = listener.accept(at, patience);
        QVERIFY(accepted.isOpen());
        QCOMPARE(accepted.peerAddress().port(), friendly.localAddress().port());
        ::close(stranger);
    }

    void nothingWorksWithoutAConnection()
    {
        Socket none;
        char buffer[16];
        QVERIFY(!none.isOpen());
        QVERIFY(!none.send("hello", 60s));
        QCOMPARE(none.receive(buffer, sizeof(buffer), patience), -1);
        QVERIFY(!none.waitForInput(patience));
        QVERIFY(!none.accept(numeric(u"127.0.0.1"_s), patience).isOpen());
    }
};

ZEPHIRA_TEST(TstSocket)

#include "tst_socket.moc"
