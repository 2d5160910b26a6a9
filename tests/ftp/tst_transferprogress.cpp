// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/transferprogress.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using zephira::TransferProgress;

/// The texts of the labels after each block.
class TstTransferProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amounts_data();
    void amounts();
    void rateIsAveragedWithTheValueBefore();
    void timesWaitForAMillisecond();
    void timesWaitForABlock();
    void onlyTheFileBeforeIsCarriedOver_data();
    void onlyTheFileBeforeIsCarriedOver();
    void timesKeepTheLastValue();
};

void TstTransferProgress::amounts_data()
{
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("done");
    QTest::addColumn<QString>("moved");
    QTest::addColumn<QString>("left");

    QTest::newRow("one block of one") << 1024LL << 1024LL << u"1 Kb"_s << u"0.02 Kb"_s;
    QTest::newRow("nothing") << 0LL << 0LL << u"0 Kb"_s << u"0 Kb"_s;
    QTest::newRow("half a block") << 1000LL << 512LL << u"0.5 Kb"_s << u"0.5 Kb"_s;
    QTest::newRow("groups of digits") << 3'000'000LL << 2'000'000LL << u"1 953.13 Kb"_s << u"1 046.88 Kb"_s;
    QTest::newRow("more than was announced") << 1000LL << 2048LL << u"2 Kb"_s << u"-1 Kb"_s;
    QTest::newRow("beyond 32 bits") << 5'000'000'000LL << 4'294'967'296LL << u"4 194 304 Kb"_s << u"805 696 Kb"_s;
}

void TstTransferProgress::amounts()
{
    QFETCH(const qint64, total);
    QFETCH(const qint64, done);
    TransferProgress progress{.total = total};
    progress.addBlock(done, 0);
    QTEST(progress.movedText(), "moved");
    QTEST(progress.leftText(), "left");
}

void TstTransferProgress::rateIsAveragedWithTheValueBefore()
{
    TransferProgress progress{.total = 10'240};
    progress.addBlock(1024, 500);
    // (1.024 / 0.5 + 0) / 2
    QCOMPARE(progress.rateText(), u"1.02 Kbps"_s);
    progress.addBlock(1024, 1000);
    // (2.048 / 1 + 1.024) / 2
    QCOMPARE(progress.rateText(), u"1.54 Kbps"_s);
    // (10.24 - 2) / 1.536
    QCOMPARE(progress.timeLeftText(), u"5 s"_s);
    progress.endFile();
    progress.beginFile();
    progress.addBlock(1024, 1000);
    // The rate continues with the next file: (1.024 / 1 + 1.536) / 2.
    QCOMPARE(progress.rateText(), u"1.28 Kbps"_s);
}

void TstTransferProgress::timesWaitForAMillisecond()
{
    TransferProgress progress{.total = 4096};
    progress.addBlock(1024, 0);
    QVERIFY(!progress.isTimed);
    progress.addBlock(1024, 1);
    QVERIFY(progress.isTimed);
    QCOMPARE(progress.timeText(), u"0 s"_s);
    QCOMPARE(progress.rateText(), u"1024 Kbps"_s);
}

void TstTransferProgress::timesWaitForABlock()
{
    TransferProgress progress;
    progress.addBlock(0, 5000);
    QVERIFY(!progress.isTimed);
    QCOMPARE(progress.elapsed, 0);
}

void TstTransferProgress::onlyTheFileBeforeIsCarriedOver_data()
{
    QTest::addColumn<qint32>("first");
    QTest::addColumn<qint32>("second");
    QTest::addColumn<qint32>("third");
    QTest::addColumn<QString>("time");

    QTest::newRow("not the first of three") << 10'000 << 4000 << 3000 << u"7 s"_s;
    QTest::newRow("rounded to the even second below") << 10'000 << 2500 << 3000 << u"5 s"_s;
    QTest::newRow("rounded to the even second above") << 10'000 << 3500 << 3000 << u"7 s"_s;
}

void TstTransferProgress::onlyTheFileBeforeIsCarriedOver()
{
    QFETCH(const qint32, first);
    QFETCH(const qint32, second);
    QFETCH(const qint32, third);
    TransferProgress progress{.total = 3072};
    for (const qint32 milliseconds : {first, second}) {
        progress.beginFile();
        progress.addBlock(1024, milliseconds);
        progress.endFile();
    }
    progress.beginFile();
    progress.addBlock(1024, third);
    QTEST(progress.timeText(), "time");
}

void TstTransferProgress::timesKeepTheLastValue()
{
    TransferProgress progress{.total = 2048};
    progress.addBlock(1024, 2000);
    progress.endFile();
    const QString time = progress.timeText();
    progress.beginFile();
    progress.addBlock(1024, 0);
    QCOMPARE(progress.timeText(), time);
    QCOMPARE(progress.movedText(), u"2 Kb"_s);
}

ZEPHIRA_TEST(TstTransferProgress)
#include "tst_transferprogress.moc"
