// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/diskfiles.h"
#include "support/eventwait.h"
#include "support/httpserver.h"
#include "support/peerways.h"
#include "support/testregistry.h"

#include <QTemporaryDir>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineProfile>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Time-out in milliseconds, long enough for a busy machine.
constexpr int patience = 20000;

/// A page that may open windows.
class OpenPage final : public QWebEnginePage
{
public:
    using QWebEnginePage::QWebEnginePage;

protected:
    QWebEnginePage *createWindow(WebWindowType) override { return new QWebEnginePage(profile(), this); }
};

} // namespace

/// The ways by which the tests of the fence try to reach peers do lead out of an engine in which nothing is closed. So this
/// class is a program of its own.
class TstPeerWays final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWayLeadsOut_data()
    {
        QTest::addColumn<int>("number");
        const auto ways = peerWays();
        for (std::size_t i = 0; i < ways.size(); ++i)
            QTest::newRow(ways[i].name) << static_cast<int>(i);
    }

    void aWayLeadsOut()
    {
        QFETCH(int, number);
        const HttpServer server;
        const QTemporaryDir folder;
        const QByteArray host = "127.0.0.1:" + QByteArray::number(server.port());
        const QByteArray markup = peerMarkup(peerWays().subspan(static_cast<std::size_t>(number), 1), host);
        putFile(folder.path() + u"/inner.html"_s, "<p>inner</p>");
        const QString file = putFile(folder.path() + u"/page.html"_s, "<!DOCTYPE html><body>" + markup);
        QWebEngineProfile profile;
        OpenPage page(&profile);
        page.setUrl(QUrl::fromLocalFile(file));
        QVERIFY(waitUntil([&] { return server.datagrams() > 0; }, patience));
        QVERIFY(waitUntil([&] { return server.connections() > server.datagrams(); }, patience));
    }
};

ZEPHIRA_TEST(TstPeerWays)
#include "tst_peerways.moc"
