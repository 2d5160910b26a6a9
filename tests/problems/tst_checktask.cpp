// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/checktask.h"
#include "problems/told.h"
#include "support/testregistry.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

using namespace zephira;

/// Checks in a thread.
class TstCheckTask final : public QObject
{
    Q_OBJECT

private:
    static CheckOrder linking(const std::shared_ptr<QSemaphore> &asked, const std::shared_ptr<QSemaphore> &answer)
    {
        CheckOrder order = orderFor("<body><a href=x>y</a></body>");
        order.places = {QStringLiteral("/none"), {}, [=](const QString &) {
                            asked->release();
                            answer->acquire();
                            return true;
                        }};
        return order;
    }

private Q_SLOTS:
    void reports()
    {
        CheckTask task;
        std::vector<CheckReport> reports;
        connect(&task, &CheckTask::finished, this, [&](const CheckReport &report) { reports.push_back(report); });
        task.start([] { return orderFor("<blok></blok>"); });
        QVERIFY(task.isBusy());
        QTRY_COMPARE(reports.size(), 1U);
        QVERIFY(!task.isBusy());
        QCOMPARE(reports.front().problems.size(), 1U);
    }

    /// Only the report of what was started last comes, and there is never a second thread.
    void onlyTheLast()
    {
        const auto asked = std::make_shared<QSemaphore>();
        const auto answer = std::make_shared<QSemaphore>();
        CheckTask task;
        std::vector<CheckReport> reports;
        connect(&task, &CheckTask::finished, this, [&](const CheckReport &report) { reports.push_back(report); });
        task.start([&] { return linking(asked, answer); });
        asked->acquire();
        int made = 0;
        for (int i = 0; i < 3; ++i)
            task.start([&made] { return ++made, orderFor("<blok></blok>"); });
        QCOMPARE(made, 0);
        answer->release(10);
        QTRY_COMPARE(reports.size(), 1U);
        QCOMPARE(made, 1);
        QCOMPARE(reports.front().problems.size(), 1U);
    }

    void cancelled()
    {
        const auto asked = std::make_shared<QSemaphore>();
        const auto answer = std::make_shared<QSemaphore>();
        CheckTask task;
        QSignalSpy finished(&task, &CheckTask::finished);
        task.start([&] { return linking(asked, answer); });
        asked->acquire();
        task.cancel();
        QVERIFY(!task.isBusy());
        answer->release(10);
        task.start([] { return orderFor("<p>a</p>"); });
        QTRY_COMPARE(finished.size(), 1);
    }

    /// Nobody waits for a thread that can't go on.
    void destroyedMeanwhile()
    {
        const auto asked = std::make_shared<QSemaphore>();
        const auto answer = std::make_shared<QSemaphore>();
        {
            CheckTask task;
            task.start([&] { return linking(asked, answer); });
            asked->acquire();
        }
        answer->release(10);
        QTest::qWait(20);
    }
};

ZEPHIRA_TEST(TstCheckTask)

#include "tst_checktask.moc"
