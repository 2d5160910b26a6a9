// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/iniconfiguration.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int writers = 8;

/// The number that each writer was last told to be written. Writers and test share it.
using Written = std::array<volatile int, writers>;

QString keyOf(int writer, int number)
{
    return u"w%1k%2"_s.arg(writer).arg(number);
}

/// A process that writes numbers from `first` on, until it is killed or done.
pid_t startWriter(const QString &file, int writer, int first, int count, Written &written)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    for (int number = first; number < count; ++number) {
        if (!WriteIni(u"shared"_s, keyOf(writer, number), QString::number(number), file))
            _exit(1);
        written[static_cast<std::size_t>(writer)] = number + 1;
    }
    _exit(0);
}

} // namespace

/// Eight processes write one file while some of them are killed over and over.
class TstIniWriters final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedWritersLoseNothing()
    {
        const bool isLong = qEnvironmentVariableIsSet("ZEPHIRA_TRUST");
        const int count = isLong ? 400 : 40;
        const int kills = isLong ? 300 : 30;
        const QTemporaryDir folder((QFileInfo(u"/dev/shm"_s).isWritable() ? u"/dev/shm"_s : QDir::tempPath())
                                   + u"/zephira-trust-XXXXXX"_s);
        const QString file = putFile(folder.filePath(u"zephira.ini"_s), "; kept\r\n[shared]\r\nfirst=1\r\n");
        void *memory = mmap(nullptr, sizeof(Written), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        QVERIFY(memory != MAP_FAILED);
        Written &written = *new (memory) Written{};
        std::array<pid_t, writers> processes{};
        for (int i = 0; i < writers; ++i)
            processes[static_cast<std::size_t>(i)] = startWriter(file, i, 0, count, written);

        QRandomGenerator random(8);
        int killed = 0;
        while (killed < kills) {
            usleep(static_cast<useconds_t>(random.bounded(3000)));
            const int i = random.bounded(writers);
            pid_t &process = processes[static_cast<std::size_t>(i)];
            ::kill(process, SIGKILL);
            int status = 0;
            QCOMPARE(waitpid(process, &status, 0), process);
            QVERIFY(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
            ++killed;
            process = startWriter(file, i, written[static_cast<std::size_t>(i)], count, written);
            // Whatever was told to be written is there, at every moment.
            const QByteArray now = contentOf(file);
            QVERIFY2(now.startsWith("; kept\r\n[shared]\r\nfirst=1\r\n") && now.endsWith("\r\n"),
                     now.left(60).constData());
        }
        for (const pid_t process : processes) {
            int status = -1;
            QCOMPARE(waitpid(process, &status, 0), process);
            QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        }
        for (int i = 0; i < writers; ++i) {
            QCOMPARE(written[static_cast<std::size_t>(i)], count);
            for (int number = 0; number < count; ++number)
                QCOMPARE(ReadIni(u"shared"_s, keyOf(i, number), file), QString::number(number));
        }
        QCOMPARE(contentOf(file).count('\n'), 3 + writers * count);
        // One more save removes what the killed ones have left.
        QVERIFY(WriteIni(u"shared"_s, u"last"_s, u"1"_s, file));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"zephira.ini"_s});
        munmap(memory, sizeof(Written));
        qInfo("%d writers, %d values each, %d kills: nothing lost, nothing torn", writers, count, killed);
    }
};

ZEPHIRA_TEST(TstIniWriters)

} // namespace zephira

#include "tst_iniwriters.moc"
