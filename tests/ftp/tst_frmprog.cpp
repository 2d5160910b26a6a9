// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/frmprog.h"
#include "ftp/ftpclient.h"
#include "ftp/recordingdesk.h"
#include "ftp/recordingoperations.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPaintEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The form with a queue and a temporary folder as the local side.
struct Transfer {
    TestContext world;
    QTemporaryDir folder;
    RecordingOperations operations;
    RecordingDesk desk;
    FtpClient client{operations};
    FormCatalogue catalogue;

    Transfer()
    {
        client.session.ftpConnectHandle = 2;
        client.session.ftpLocalFolder = folder.path() + u'/';
        client.session.ftpRemoteFolder = u"/"_s;
        catalogue.add(u"frmProg"_s, [this](const AppContext &context, QWidget *owner) -> QWidget * {
            return new frmProg(client, desk, desk, context, owner);
        });
    }

    void queue(TransferQueue::Direction direction, const std::vector<TransferQueue::File> &files)
    {
        client.queue = {direction, files};
    }
    LivingForm form() { return LivingForm(catalogue, u"frmProg"_s, world); }
};

/// Counts how often a widget is painted, wholly or in part.
struct PaintCount final : QObject {
    explicit PaintCount(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints;
            wholes += static_cast<QPaintEvent *>(event)->rect() == static_cast<QWidget *>(watched)->rect();
        }
        return false;
    }

    int paints = 0;
    int wholes = 0;
};

QStringList rows(const QListWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts += list.item(row)->text();
    return texts;
}

} // namespace

class TstFrmProg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queueIsShown_data();
    void queueIsShown();
    void nothingMovesBeforeTheStart();
    void labelsHoldTheValuesAfterTheLastBlock();
    void emptyFile();
    void completedRunCloses();
    void stoppedRunStaysAndCanBeStartedAgain();
    void cancelWithoutATransferDoesNothing();
    void barsTakeMoreThanWasAnnounced();
    void queueIsTakenOnce();
    void paintsWhatIsNew();
    void failedOpenLeavesTheCountersAsTheyAre();
};

void TstFrmProg::queueIsShown_data()
{
    QTest::addColumn<TransferQueue::Direction>("direction");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("moved");

    QTest::newRow("down") << TransferQueue::Direction::Download << u"File:             /2"_s << u"Download"_s
                          << u"Bytes received:"_s;
    QTest::newRow("up") << TransferQueue::Direction::Upload << u"File:       /2"_s << u"Upload"_s << u"Bytes send:"_s;
}

void TstFrmProg::queueIsShown()
{
    QFETCH(const TransferQueue::Direction, direction);
    Transfer transfer;
    transfer.queue(direction, {{u"a b.htm"_s, 1500}, {u"ζ"_s, 0}});
    const LivingForm form = transfer.form();
    QCOMPARE(rows(form.get<QListWidget>(u"List1"_s)), (QStringList{u"a b.htm"_s, u"ζ"_s}));
    QCOMPARE(rows(form.get<QListWidget>(u"List2"_s)), (QStringList{u"1500"_s, u"0"_s}));
    QVERIFY(!form.get(u"List1"_s).isVisible() && !form.get(u"List2"_s).isVisible());
    QTEST(form.value(u"Label2"_s), "count");
    QTEST(form.value(u"Command3"_s), "start");
    QTEST(form.value(u"Label4"_s), "moved");
    QCOMPARE(form.value(u"lbCelkem"_s), u"1500"_s);
    QVERIFY(!form.get(u"Command1"_s).isEnabled());
}

void TstFrmProg::nothingMovesBeforeTheStart()
{
    Transfer transfer;
    transfer.operations.files[u"/a"_s] = "a";
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 1}});
    const LivingForm form = transfer.form();
    form.key(Qt::Key_Escape);
    QVERIFY(!form.isOpen());
    QVERIFY(transfer.operations.log.isEmpty());
}

void TstFrmProg::labelsHoldTheValuesAfterTheLastBlock()
{
    Transfer transfer;
    transfer.operations.files = {{u"/a"_s, QByteArray(2000, 'a')}, {u"/b"_s, QByteArray(1000, 'b')}};
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 2000}, {u"b"_s, 1000}});
    const LivingForm form = transfer.form();
    bool looked = false;
    transfer.world.prompts.expect({u"Data transfer completed."_s, {}, Question::Icon::Information}, Answer::Ok, [&] {
        looked = true;
        QCOMPARE(form.value(u"Label1"_s), u"Downloading File: b / 1000 bytù."_s);
        QCOMPARE(form.value(u"lbCount"_s), u"2"_s);
        QCOMPARE(form.value(u"lbCelkem"_s), u"3 000 Kb"_s);
        QCOMPARE(form.value(u"lbFar"_s), u"2.93 Kb"_s);
        QCOMPARE(form.value(u"lbLeft"_s), u"0.07 Kb"_s);
        QCOMPARE(form.get<QProgressBar>(u"ProgressBar1"_s).maximum(), 1024);
        QCOMPARE(form.get<QProgressBar>(u"ProgressBar1"_s).value(), 1000);
        QCOMPARE(form.get<QProgressBar>(u"ProgressBar2"_s).maximum(), 3072);
        QCOMPARE(form.get<QProgressBar>(u"ProgressBar2"_s).value(), 3000);
        QVERIFY(form.get(u"Command1"_s).isEnabled());
    });
    form.press(u"Command3"_s);
    QVERIFY(looked);
}

void TstFrmProg::emptyFile()
{
    Transfer transfer;
    transfer.operations.files[u"/a"_s] = "";
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 0}});
    const LivingForm form = transfer.form();
    transfer.world.prompts.expect({u"Data transfer completed."_s, {}, Question::Icon::Information}, Answer::Ok, [&] {
        QCOMPARE(form.value(u"lbFar"_s), u"0 Kb"_s);
        QCOMPARE(form.value(u"lbTime"_s), QString());
        QCOMPARE(form.get<QProgressBar>(u"ProgressBar1"_s).value(), 0);
    });
    form.press(u"Command3"_s);
    QVERIFY(transfer.world.files.contents.contains(transfer.folder.filePath(u"a"_s)));
}

void TstFrmProg::completedRunCloses()
{
    Transfer transfer;
    QFile local(transfer.folder.filePath(u"a"_s));
    QVERIFY(local.open(QIODevice::WriteOnly) && local.write("text") == 4);
    local.close();
    transfer.queue(TransferQueue::Direction::Upload, {{u"a"_s, 4}});
    const LivingForm form = transfer.form();
    transfer.world.prompts.expectTell(u"Data transfer completed."_s);
    form.press(u"Command3"_s);
    QVERIFY(!form.isOpen());
    QCOMPARE(transfer.operations.files[u"/a"_s], "text");
}

void TstFrmProg::stoppedRunStaysAndCanBeStartedAgain()
{
    Transfer transfer;
    transfer.operations.files[u"/a"_s] = "a";
    transfer.operations.failures[u"FtpOpenFileA"_s] = 1;
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 1}});
    const LivingForm form = transfer.form();
    transfer.world.prompts.expectTell(u"Can't open file path!"_s, u"Problém s URL"_s, Question::Icon::Exclamation);
    form.press(u"Command3"_s);
    QVERIFY(form.isOpen());
    QCOMPARE(rows(form.get<QListWidget>(u"List1"_s)), QStringList{u"a"_s});
    QCOMPARE(form.value(u"lbCount"_s), u"1"_s);
    transfer.world.prompts.expectTell(u"Data transfer completed."_s);
    form.press(u"Command3"_s);
    QVERIFY(!form.isOpen());
}

void TstFrmProg::cancelWithoutATransferDoesNothing()
{
    Transfer transfer;
    transfer.operations.failures[u"FtpOpenFileA"_s] = 1;
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 1}});
    const LivingForm form = transfer.form();
    transfer.world.prompts.expectTell(u"Can't open file path!"_s, u"Problém s URL"_s, Question::Icon::Exclamation);
    form.press(u"Command3"_s);
    form.press(u"Command1"_s);
    QVERIFY(form.isOpen());
    QVERIFY(transfer.operations.log.filter(u"InternetCloseHandle"_s).isEmpty());
}

void TstFrmProg::barsTakeMoreThanWasAnnounced()
{
    Transfer transfer;
    transfer.operations.files[u"/a"_s] = QByteArray(5000, 'a');
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 1000}});
    const LivingForm form = transfer.form();
    transfer.world.prompts.expect({u"Data transfer completed."_s, {}, Question::Icon::Information}, Answer::Ok, [&] {
        QCOMPARE(form.get<QProgressBar>(u"ProgressBar1"_s).value(), 1024);
        QCOMPARE(form.value(u"lbFar"_s), u"4.88 Kb"_s);
    });
    form.press(u"Command3"_s);
}

void TstFrmProg::queueIsTakenOnce()
{
    Transfer transfer;
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 1}});
    {
        const LivingForm form = transfer.form();
    }
    const LivingForm form = transfer.form();
    QVERIFY(rows(form.get<QListWidget>(u"List1"_s)).isEmpty());
}

void TstFrmProg::paintsWhatIsNew()
{
    Transfer transfer;
    std::vector<TransferQueue::File> files;
    for (int i = 0; i < 60; ++i) {
        files.push_back({QString::number(i), 3});
        transfer.operations.files[u"/%1"_s.arg(i)] = "abc";
    }
    transfer.queue(TransferQueue::Direction::Download, files);
    const LivingForm form = transfer.form();
    // A little more than half a second, long enough to notice a window that repaints sixty times a second.
    transfer.operations.onCall = [](const QString &call) {
        if (call.startsWith(u"InternetReadFile"))
            QTest::qSleep(10);
    };
    PaintCount window(form.widget());
    PaintCount name(form.get(u"Label1"_s));
    transfer.world.prompts.expect({u"Data transfer completed."_s, {}, Question::Icon::Information}, Answer::Ok, [&] {
        QCOMPARE(form.value(u"lbCount"_s), u"60"_s);
        QCOMPARE(form.value(u"lbFar"_s), u"0.18 Kb"_s);
    });
    QElapsedTimer time;
    time.start();
    form.press(u"Command3"_s);
    QVERIFY(time.elapsed() > 550);
    QVERIFY2(window.wholes <= 2, "the window was painted whole");
    QVERIFY2(name.paints > 3 && name.paints <= time.elapsed() / 50 + 3, qPrintable(QString::number(name.paints)));
}

void TstFrmProg::failedOpenLeavesTheCountersAsTheyAre()
{
    Transfer transfer;
    transfer.operations.files[u"/a"_s] = QByteArray(1500, 'a');
    transfer.queue(TransferQueue::Direction::Download, {{u"a"_s, 1500}, {u"b"_s, 1000}});
    const LivingForm form = transfer.form();
    transfer.operations.onCall = [&](const QString &call) {
        if (call.startsWith(u"FtpOpenFileA") && call.contains(u"/b"))
            transfer.operations.failures[u"FtpOpenFileA"_s] = 1;
    };
    transfer.world.prompts.expect({u"Can't open file path!"_s, u"Problém s URL"_s, Question::Icon::Exclamation},
                                  Answer::Ok, [&] {
                                      QCOMPARE(form.value(u"Label1"_s), u"Downloading File: b / 1000 bytù."_s);
                                      QCOMPARE(form.value(u"lbCount"_s), u"2"_s);
                                      QCOMPARE(form.value(u"lbFar"_s), u"1.46 Kb"_s);
                                      QCOMPARE(form.get<QProgressBar>(u"ProgressBar1"_s).value(), 0);
                                      QCOMPARE(form.get<QProgressBar>(u"ProgressBar2"_s).value(), 1500);
                                  });
    form.press(u"Command3"_s);
    QVERIFY(form.isOpen());
}

ZEPHIRA_TEST(TstFrmProg)
#include "tst_frmprog.moc"
