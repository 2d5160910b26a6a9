// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"
#include "files/faultycalls.h"
#include "files/temporaryfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

using Call = FileSystemCalls::Call;

namespace {

constexpr QByteArrayView text = "text";

/// A process that stops in the middle of a save and waits to be killed.
class StoppedWriter
{
public:
    /// Stops at the first call of a kind; the constructor returns when it has stopped.
    StoppedWriter(const QString &path, Call place)
    {
        int ends[2] = {};
        if (pipe(ends) != 0)
            qFatal("no pipe");
        m_process = fork();
        if (m_process == 0) {
            FaultyCalls calls;
            calls.intervene = [&](int, Call call) {
                if (call == place) {
                    [[maybe_unused]] const ssize_t told = ::write(ends[1], "x", 1);
                    for (;;)
                        pause();
                }
                return 0;
            };
            _exit(DiskFileStore(calls).write(path, text) ? 0 : 1);
        }
        char answer = 0;
        m_isStopped = ::read(ends[0], &answer, 1) == 1;
        ::close(ends[0]);
        ::close(ends[1]);
    }
    ~StoppedWriter() { end(); }
    Q_DISABLE_COPY_MOVE(StoppedWriter)

    bool isStopped() const { return m_isStopped; }
    void end()
    {
        if (m_process <= 0)
            return;
        ::kill(m_process, SIGKILL);
        waitpid(std::exchange(m_process, 0), nullptr, 0);
    }

private:
    pid_t m_process = 0;
    bool m_isStopped = false;
};

} // namespace

class TstTemporaryFiles final : public QObject
{
    Q_OBJECT

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    void put(const QString &name) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void whatAKilledSaveLeavesGoesWithTheNext_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("writing") << static_cast<int>(Call::Write);
        QTest::newRow("flushing") << static_cast<int>(Call::Sync);
        QTest::newRow("closing") << static_cast<int>(Call::Close);
        QTest::newRow("taking the name") << static_cast<int>(Call::Rename);
    }

    void whatAKilledSaveLeavesGoesWithTheNext()
    {
        QFETCH(int, place);
        DiskFileStore files;
        StoppedWriter writer(at(u"a.htm"_s), Call(place));
        QVERIFY(writer.isStopped());
        QCOMPARE(names().size(), 1);
        // It stays as long as its writer runs.
        QVERIFY(files.write(at(u"b.htm"_s), text));
        QCOMPARE(names().size(), 2);
        writer.end();
        QVERIFY(files.write(at(u"b.htm"_s), text));
        QCOMPARE(names(), QStringList{u"b.htm"_s});
    }

    void onlyOurOwnGo()
    {
        const QStringList others = {u".zephira-0123456789abcdefa~"_s,
                                    u".zephira-12"_s,
                                    u".zephira-12~.bak"_s,
                                    u".zephira-XY~"_s,
                                    u".zephira-~"_s,
                                    u"a.htm~"_s,
                                    u"zephira-12~"_s};
        for (const QString &name : others)
            put(name);
        put(u".zephira-0123456789abcdef~"_s);
        put(u".zephira-1~"_s);
        QVERIFY(QDir().mkdir(at(u".zephira-2~"_s)));
        QCOMPARE(mkfifo(QFile::encodeName(at(u".zephira-3~"_s)).constData(), 0600), 0);
        QCOMPARE(symlink("a.htm~", QFile::encodeName(at(u".zephira-4~"_s)).constData()), 0);
        FileSystemCalls calls;
        sweepTemporaries(calls, QFile::encodeName(m_folder->path()) + '/');
        QStringList left = others;
        left << u".zephira-2~"_s << u".zephira-3~"_s << u".zephira-4~"_s;
        left.sort();
        QStringList found = names();
        found.sort();
        QCOMPARE(found, left);
    }

    void copiesDoNotSweep()
    {
        put(u".zephira-1~"_s);
        DiskFileStore files;
        QVERIFY(files.writeCopy(at(u"a.htm"_s), {&text, 1}));
        QCOMPARE(names().size(), 2);
    }

    void withoutLocksNothingGoes()
    {
        put(u".zephira-1~"_s);
        FaultyCalls calls;
        calls.intervene = [](int, Call call) { return call == Call::Lock ? ENOLCK : 0; };
        QVERIFY(DiskFileStore(calls).write(at(u"a.htm"_s), text));
        QCOMPARE(names(), (QStringList{u".zephira-1~"_s, u"a.htm"_s}));
    }

    /// Another process that cleans up may remove a file that has just been created, before its owner has locked it.
    void aNameThatIsTakenIsTriedAnew()
    {
        FaultyCalls calls;
        int locks = 0;
        calls.intervene = [&](int, Call call) { return call == Call::Lock && ++locks == 1 ? EWOULDBLOCK : 0; };
        QVERIFY(DiskFileStore(calls).write(at(u"a.htm"_s), text));
        QVERIFY(locks >= 2);
        QVERIFY(names().contains(u"a.htm"_s));

        FaultyCalls removing;
        bool removed = false;
        removing.intervene = [&](int, Call call) {
            if (call == Call::Lock && !std::exchange(removed, true)) {
                const QStringList all = names();
                for (const QString &name : all) {
                    if (name.startsWith(u".zephira-"))
                        QFile::remove(at(name));
                }
            }
            return 0;
        };
        QVERIFY(DiskFileStore(removing).write(at(u"b.htm"_s), text));
        QCOMPARE(names(), (QStringList{u"a.htm"_s, u"b.htm"_s}));
    }
};

ZEPHIRA_TEST(TstTemporaryFiles)

} // namespace zephira

#include "tst_temporaryfiles.moc"
