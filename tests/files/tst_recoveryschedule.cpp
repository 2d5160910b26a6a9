// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/recoveryschedule.h"
#include "support/testregistry.h"

#include <QTest>

namespace zephira {

using namespace std::chrono_literals;

class TstRecoverySchedule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quietDocumentIsNeverDue()
    {
        const RecoverySchedule schedule;
        QVERIFY(!schedule.due());
        QVERIFY(!schedule.isDue(1h));
    }

    void firstChangeSetsTheTime()
    {
        RecoverySchedule schedule;
        QVERIFY(schedule.changed(1000ms) == RecoverySchedule::delay);
        QVERIFY(!schedule.isDue(1000ms + RecoverySchedule::delay - 1ms));
        QVERIFY(schedule.isDue(1000ms + RecoverySchedule::delay));
        QVERIFY(1000ms + RecoverySchedule::delay < 16s);
    }

    void typingOnNeitherPutsItOffNorRepeatsIt()
    {
        RecoverySchedule schedule;
        int copies = 0;
        RecoverySchedule::Time lastCopy{0};
        for (RecoverySchedule::Time now{0}; now <= 60s; now += 10ms) {
            schedule.changed(now);
            if (schedule.isDue(now)) {
                QVERIFY(now - lastCopy <= 15s);
                lastCopy = now;
                ++copies;
                schedule.settled();
            }
        }
        QVERIFY(copies >= 4 && copies <= 6);
    }

    void savedDocumentIsNotDue()
    {
        RecoverySchedule schedule;
        schedule.changed(0ms);
        schedule.settled();
        QVERIFY(!schedule.isDue(1h));
        QVERIFY(schedule.changed(5s) == RecoverySchedule::delay);
        QVERIFY(schedule.due() == 5s + RecoverySchedule::delay);
    }

    void failedCopyIsTriedAgain()
    {
        RecoverySchedule schedule;
        schedule.changed(0ms);
        QVERIFY(schedule.copyFailed(20s) == RecoverySchedule::delay);
        QVERIFY(!schedule.isDue(21s));
        QVERIFY(schedule.isDue(20s + RecoverySchedule::delay));
        QVERIFY(!schedule.changed(22s));
    }
};

ZEPHIRA_TEST(TstRecoverySchedule)

} // namespace zephira

#include "tst_recoveryschedule.moc"
