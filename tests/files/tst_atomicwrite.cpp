// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/atomicwrite.h"
#include "files/diskfilestore.h"
#include "files/faultycalls.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <csignal>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Call = FileSystemCalls::Call;

const QByteArray oldContent("the old text\n");
const QByteArray newContent = QByteArray("the new text, which is longer\r\n").repeated(500);
constexpr QByteArrayView newPieces[] = {"", "first ", "second ", "", "third\n"};
constexpr char joinedPieces[] = "first second third\n";

QStringList namesIn(const QTemporaryDir &folder)
{
    return QDir(folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// Runs the body in a child process and returns its exit status.
template<typename Body>
int inChild(Body body)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(body());
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

constexpr int killed = 77;

} // namespace

class TstAtomicWrite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsPieces()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        QVERIFY(DiskFileStore().write(path, newPieces));
        QCOMPARE(contentOf(path), QByteArray(joinedPieces));
        QCOMPARE(namesIn(folder), QStringList{u"a.htm"_s});
    }

    void manyPieces()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        const std::vector<QByteArrayView> pieces(5000, QByteArrayView("line\n"));
        QVERIFY(DiskFileStore().write(path, pieces));
        QCOMPARE(contentOf(path), QByteArray("line\n").repeated(5000));
    }

    void nothingAtAll()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        putFile(path, oldContent);
        QVERIFY(DiskFileStore().write(path, std::span<const QByteArrayView>()));
        QCOMPARE(contentOf(path), QByteArray());
    }

    void shortWrites_data()
    {
        QTest::addColumn<int>("limit");
        for (const int limit : {1, 2, 3, 5, 6, 7, 12, 13, 19})
            QTest::addRow("%d bytes", limit) << limit;
    }

    void shortWrites()
    {
        QFETCH(int, limit);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        FaultyCalls calls;
        calls.writeLimit = static_cast<std::size_t>(limit);
        QVERIFY(DiskFileStore(calls).write(path, newPieces));
        QCOMPARE(contentOf(path), QByteArray(joinedPieces));
    }

    void writeThatTakesNothingFails()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        putFile(path, oldContent);
        FaultyCalls calls;
        calls.writeLimit = 0;
        const Result<void> written = DiskFileStore(calls).write(path, newPieces);
        QCOMPARE(written.error().sentence, u"The file \"%1\" could not be saved: the disk is full."_s.arg(path));
        QCOMPARE(contentOf(path), oldContent);
    }

    /// Each call in turn fails with each errno: the file has the old or the new content, an error is reported unless it
    /// is the new one, and no temporary file is left that could be removed.
    void eachCallFails_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("replaces");
        for (const bool replaces : {true, false}) {
            const char *kind = replaces ? "replacing" : "new file";
            QTest::addRow("EIO, %s", kind) << EIO << replaces;
            QTest::addRow("ENOSPC, %s", kind) << ENOSPC << replaces;
            QTest::addRow("EACCES, %s", kind) << EACCES << replaces;
            QTest::addRow("EPERM, %s", kind) << EPERM << replaces;
            QTest::addRow("ENOMEM, %s", kind) << ENOMEM << replaces;
        }
    }

    void eachCallFails()
    {
        QFETCH(int, error);
        QFETCH(bool, replaces);
        const QByteArray before = replaces ? oldContent : QByteArray("<unreadable>");
        int failures = 0;
        for (int failing = 0;; ++failing) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"a.htm"_s);
            if (replaces)
                putFile(path, oldContent);
            FaultyCalls calls;
            calls.intervene = [&](int number, Call) { return number == failing ? error : 0; };
            const Result<void> written = DiskFileStore(calls).write(path, newContent);
            if (calls.count() <= failing)
                break;
            const Call call = calls.made()[static_cast<std::size_t>(failing)];
            if (written) {
                QCOMPARE(contentOf(path), newContent);
                const auto end = calls.made().begin() + failing;
                const bool isInPlace = std::find(calls.made().begin(), end, Call::Rename) != end;
                const bool isFolder =
                    call == Call::Open && error == EACCES && std::find(calls.made().begin(), end, Call::Open) == end;
                const bool isExtra = call == Call::GetAttribute || call == Call::ListAttributes || call == Call::Lock
                    || call == Call::HandleStat || call == Call::Duplicate;
                QVERIFY2(isFolder || isExtra || (call == Call::Close && isInPlace), "a failure was passed over");
            } else {
                ++failures;
                QCOMPARE(written.error().code, Error::Code::Unwritable);
                QVERIFY(written.error().sentence.startsWith(u"The file \""_s + path + u"\" could not be saved: "_s));
                // After the rename only the flush of the folder is left, which can't bring the old content back.
                const bool isFolderFlush = call == Call::Sync && contentOf(path) == newContent;
                QCOMPARE(contentOf(path), isFolderFlush ? newContent : before);
            }
            QCOMPARE(namesIn(folder),
                     QStringList(replaces || written || contentOf(path) == newContent ? 1 : 0, u"a.htm"_s));
        }
        QVERIFY2(failures >= 7, "the failures were not seen");
    }

    void interruptedCallsAreMadeAgain()
    {
        for (int interrupted = 0;; ++interrupted) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"a.htm"_s);
            putFile(path, oldContent);
            FaultyCalls calls;
            calls.intervene = [&](int number, Call) { return number == interrupted ? EINTR : 0; };
            QVERIFY(DiskFileStore(calls).write(path, newContent));
            QCOMPARE(contentOf(path), newContent);
            if (calls.count() <= interrupted)
                break;
        }
    }

    void killedAtEachCall_data()
    {
        QTest::addColumn<bool>("replaces");
        QTest::newRow("replacing") << true;
        QTest::newRow("new file") << false;
    }

    void killedAtEachCall()
    {
        QFETCH(bool, replaces);
        const QByteArray before = replaces ? oldContent : QByteArray("<unreadable>");
        bool sawOld = false;
        bool sawNew = false;
        for (int last = 0;; ++last) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"a.htm"_s);
            if (replaces)
                putFile(path, oldContent);
            const int status = inChild([&] {
                FaultyCalls calls;
                // The writes are small, so that the process is also killed between two of them.
                calls.writeLimit = 4096;
                calls.intervene = [&](int number, Call) {
                    if (number == last)
                        _exit(killed);
                    return 0;
                };
                return DiskFileStore(calls).write(path, newContent) ? 0 : 1;
            });
            const QByteArray after = contentOf(path);
            QVERIFY2(after == before || after == newContent, after.left(40).constData());
            sawOld |= after == before;
            sawNew |= after == newContent && status == killed;
            if (status != killed) {
                QCOMPARE(status, 0);
                QCOMPARE(after, newContent);
                break;
            }
        }
        QVERIFY(sawOld && sawNew);
    }

    void fullDisk()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        putFile(path, oldContent);
        const int status = inChild([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{10'000, 10'000};
            setrlimit(RLIMIT_FSIZE, &limit);
            const Result<void> written = DiskFileStore().write(path, newContent);
            return !written && written.error().sentence.contains(u"it is larger than the system allows") ? 3 : 1;
        });
        QCOMPARE(status, 3);
        QCOMPARE(contentOf(path), oldContent);
        QCOMPARE(namesIn(folder), QStringList{u"a.htm"_s});
    }

    void temporaryIsPrivateAndFlushedBeforeItTakesTheName()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        putFile(path, oldContent);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
        FaultyCalls calls;
        QFile::Permissions duringWrite;
        bool flushed = false;
        bool flushedBeforeRename = false;
        calls.intervene = [&](int, Call call) {
            if (call == Call::Write) {
                const QStringList all = namesIn(folder);
                for (const QString &name : all) {
                    if (name != u"a.htm")
                        duringWrite = QFile::permissions(folder.filePath(name));
                }
            }
            flushed |= call == Call::Sync;
            if (call == Call::Rename)
                flushedBeforeRename = flushed;
            return 0;
        };
        QVERIFY(DiskFileStore(calls).write(path, newContent));
        QCOMPARE(duringWrite
                     & (QFile::ReadOwner | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions(QFile::ReadOwner));
        QVERIFY(flushedBeforeRename);
        QCOMPARE(calls.made()[static_cast<std::size_t>(calls.count()) - 2], Call::Sync);
    }

    void newCopyIsNotWaitedFor()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        const QByteArrayView piece = newContent;
        FaultyCalls calls;
        DiskFileStore store(calls);
        QVERIFY(store.writeCopy(path, {&piece, 1}));
        QCOMPARE(contentOf(path), newContent);
        QCOMPARE(std::ranges::count(calls.made(), Call::Sync), 0);
        // This write replaces a file, which could be lost without a flush.
        QVERIFY(store.writeCopy(path, {&piece, 1}));
        QCOMPARE(std::ranges::count(calls.made(), Call::Sync), 2);
    }

    void incomingCopyTakesItsPlaceAtTheEnd()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        FaultyCalls calls;
        DiskFileStore store(calls);
        const auto names = [&] { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); };
        {
            const std::unique_ptr<IncomingFile> incoming = store.receiveCopy(path);
            QVERIFY2(names().isEmpty(), "nothing is made before there is something to put into it");
            incoming->append(QByteArrayView(newContent).first(3));
            incoming->append(QByteArrayView(newContent).sliced(3));
            QVERIFY(!QFile::exists(path));
            QVERIFY(incoming->finish());
        }
        QCOMPARE(contentOf(path), newContent);
        QCOMPARE(std::ranges::count(calls.made(), Call::Sync), 0);
        {
            const std::unique_ptr<IncomingFile> incoming = store.receiveCopy(path);
            incoming->append("given up");
            QCOMPARE(contentOf(path), newContent);
        }
        QCOMPARE(names(), QStringList{u"a.htm"_s});
        QCOMPARE(contentOf(path), newContent);
        // An empty file replaces the old one, too.
        QVERIFY(store.receiveCopy(path)->finish());
        QCOMPARE(contentOf(path), QByteArray());
        QCOMPARE(std::ranges::count(calls.made(), Call::Sync), 2);
    }

    void incomingCopyThatFailsLeavesTheOldFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        FaultyCalls plain;
        putFile(path, oldContent);
        QVERIFY(DiskFileStore(plain).writeCopy(path, std::array{QByteArrayView(newContent)}));
        for (int failing = 0; failing < plain.count(); ++failing) {
            putFile(path, oldContent);
            FaultyCalls calls;
            calls.intervene = [failing](int number, Call) { return number == failing ? ENOSPC : 0; };
            DiskFileStore store(calls);
            const std::unique_ptr<IncomingFile> incoming = store.receiveCopy(path);
            incoming->append(newContent);
            incoming->append({});
            const bool stored = incoming->finish().ok();
            const QByteArray content = contentOf(path);
            QVERIFY2(stored ? content == newContent : content == oldContent || content == newContent,
                     qPrintable(QString::number(failing)));
        }
    }

    void ownerThatCannotBeKeptNarrowsTheGroup()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.htm"_s);
        putFile(path, oldContent);
        const QByteArray name = QFile::encodeName(path);
        if (chown(name.constData(), 4711, 4712) != 0) {
            // Only root can give a file to another user.
            QCOMPARE(errno, EPERM);
            return;
        }
        QCOMPARE(chmod(name.constData(), 0674), 0);
        FaultyCalls calls;
        calls.intervene = [](int, Call call) { return call == Call::ChangeOwner ? EPERM : 0; };
        QVERIFY(DiskFileStore(calls).write(path, newContent));
        struct stat status = {};
        QCOMPARE(stat(name.constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t(0644));

        QCOMPARE(chown(name.constData(), 4711, 4712), 0);
        QCOMPARE(chmod(name.constData(), 0674), 0);
        QVERIFY(DiskFileStore().write(path, newContent));
        QCOMPARE(stat(name.constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t(0674));
        QCOMPARE(status.st_uid, uid_t(4711));
        QCOMPARE(status.st_gid, gid_t(4712));
    }
};

ZEPHIRA_TEST(TstAtomicWrite)

} // namespace zephira

#include "tst_atomicwrite.moc"
