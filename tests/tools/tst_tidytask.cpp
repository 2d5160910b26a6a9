// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tools/realtidy.h"
#include "tools/tidytask.h"

#include <QProcess>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QByteArray unit = "<h1>Title</h1>\r\n<p>text <b>bold</b> <foo> &euro; <a href=x>link</a>\r\n";

/// Waits for the result of a task.
Result<TidyOutcome> resultOf(TidyTask &task)
{
    std::optional<Result<TidyOutcome>> outcome;
    if (!QTest::qWaitFor([&] { return (outcome = task.take()).has_value(); }, 60'000))
        return Error{Error::Code::TimedOut, u"no result"_s};
    return *outcome;
}

} // namespace

/// Clean-ups in a thread, and processes that end while one is running.
class TstTidyTask final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTask()
    {
        TidyTask task;
        QVERIFY(!task.isRunning());
        QVERIFY(!task.take());
        QCOMPARE(task.permille(), 0);
        QVERIFY(task.start(*realTidy().value(), "<title>x</title><p>y", {}).ok());
        QVERIFY(task.isRunning());
        const Result<TidyOutcome> outcome = resultOf(task);
        QVERIFY(outcome.ok());
        QVERIFY(outcome.value().text.contains(u"<P>y</P>"));
        QVERIFY(!task.isRunning());
        QVERIFY(!task.take());
    }

    void theLatestStartCounts()
    {
        TidyTask task;
        for (int number = 0; number < 20; ++number)
            QVERIFY(task.start(*realTidy().value(), unit.repeated(5000) + QByteArray::number(number), {}).ok());
        const Result<TidyOutcome> outcome = resultOf(task);
        QVERIFY(outcome.ok());
        QVERIFY(outcome.value().text.contains(u"19"));
        QVERIFY(!task.take());
    }

    void aCancelledTaskHasNoResult()
    {
        TidyTask task;
        QVERIFY(task.start(*realTidy().value(), unit.repeated(10000), {}).ok());
        task.cancel();
        QVERIFY(!task.isRunning());
        QTest::qWait(300);
        QVERIFY(!task.take());
    }

    void manyAtATime()
    {
        std::vector<std::unique_ptr<TidyTask>> tasks;
        for (int number = 0; number < 8; ++number) {
            tasks.push_back(std::make_unique<TidyTask>());
            QVERIFY(
                tasks.back()->start(*realTidy().value(), unit.repeated(2000) + QByteArray::number(number), {}).ok());
        }
        std::size_t messages = 0;
        for (std::size_t number = 0; number < tasks.size(); ++number) {
            const Result<TidyOutcome> outcome = resultOf(*tasks[number]);
            QVERIFY(outcome.ok());
            QVERIFY(outcome.value().text.contains(QString::number(number) + u"</"_s));
            QVERIFY(number == 0 || outcome.value().messages.size() == messages);
            messages = outcome.value().messages.size();
        }
    }

    void theModuleCleans()
    {
        QProcess probe;
        probe.start(QStringLiteral(ZEPHIRA_TIDY_PROBE), {QStringLiteral(ZEPHIRA_TIDY_MODULE)});
        probe.write("<title>x</title><p>y");
        probe.closeWriteChannel();
        QVERIFY(probe.waitForFinished());
        QCOMPARE(probe.exitCode(), 0);
        QVERIFY(probe.readAllStandardOutput().contains("<P>y</P>"));
    }

    void aProcessEndsInTheMiddle()
    {
        QTemporaryFile page;
        QVERIFY(page.open());
        page.write(unit.repeated(80000));
        page.close();
        // All at once, so that they disturb one another.
        std::vector<std::unique_ptr<QProcess>> probes;
        for (int number = 0; number < 24; ++number) {
            probes.push_back(std::make_unique<QProcess>());
            probes.back()->setStandardInputFile(page.fileName());
            probes.back()->start(QStringLiteral(ZEPHIRA_TIDY_PROBE),
                                 {QStringLiteral(ZEPHIRA_TIDY_MODULE), QString::number(number * 25)});
        }
        for (const std::unique_ptr<QProcess> &probe : probes) {
            QVERIFY(probe->waitForFinished(60'000));
            QCOMPARE(probe->exitStatus(), QProcess::NormalExit);
            QCOMPARE(probe->exitCode(), 0);
            QCOMPARE(probe->readAllStandardError(), QByteArray());
        }
    }
};

ZEPHIRA_TEST(TstTidyTask)

#include "tst_tidytask.moc"
