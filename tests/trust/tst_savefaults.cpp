// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "trust/faultyfiles.h"
#include "trust/savepaths.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ranges>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

enum class Outcome { Saved, Told, Killed };

/// Saves in a process of its own.
Outcome saveIn(const QString &folder, const SavePath &path, const FileFault *fault)
{
    const pid_t child = fork();
    if (child == 0) {
        const bool saved = path.save(folder, [&] {
            if (fault)
                beginFileFaults(QFile::encodeName(folder).constData(), *fault);
        });
        endFileFaults();
        _exit(saved ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status))
        return Outcome::Killed;
    return WEXITSTATUS(status) == 0 ? Outcome::Saved : Outcome::Told;
}

/// The files below the folder, without the numbers in the names of recovery copies.
QStringList filesIn(const QString &folder)
{
    static const QRegularExpression number(u"\\d+"_s);
    QStringList names;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QString name = walk.next().sliced(folder.size());
        if (name.startsWith(u"/recovery/"))
            name.replace(number, u"#"_s);
        names.append(name);
    }
    names.sort();
    names.removeDuplicates();
    return names;
}

/// A folder in memory, where there is one, because disks are slow to flush.
class Place
{
public:
    QString path() const { return m_folder.path(); }

private:
    const QTemporaryDir m_folder{(QFileInfo(u"/dev/shm"_s).isWritable() ? u"/dev/shm"_s : QDir::tempPath())
                                 + u"/zephira-trust-XXXXXX"_s};
};

struct NamedFault {
    const char *name;
    FileFault fault;
};

/// Each is tried at each call.
std::vector<NamedFault> faults(bool all)
{
    std::vector<NamedFault> faults{
        {"killed", {.kind = FaultKind::Kill}},
        {"killed halfway", {.kind = FaultKind::KillHalf}},
        {"EIO", {.error = EIO}},
        {"ENOSPC from then on", {.error = ENOSPC, .lasts = true}},
        {"EACCES", {.error = EACCES}},
        {"EINTR", {.error = EINTR}},
        {"a single byte", {.kind = FaultKind::Short}},
    };
    if (all) {
        for (const auto &[name, error] :
             std::initializer_list<std::pair<const char *, int>>{{"ENOSPC", ENOSPC},
                                                                 {"EDQUOT", EDQUOT},
                                                                 {"EROFS", EROFS},
                                                                 {"EMFILE", EMFILE},
                                                                 {"ESTALE", ESTALE},
                                                                 {"ENOMEM", ENOMEM},
                                                                 {"EPERM", EPERM},
                                                                 {"ENAMETOOLONG", ENAMETOOLONG}})
            faults.push_back({name, {.error = error}});
        for (const auto &[name, error] : std::initializer_list<std::pair<const char *, int>>{
                 {"EIO from then on", EIO}, {"EACCES from then on", EACCES}, {"EROFS from then on", EROFS}})
            faults.push_back({name, {.error = error, .lasts = true}});
    }
    return faults;
}

/// Whether a save may not count as done after this call has failed: what was written may not be on the disk.
bool mustBeTold(const FileFault &fault, const char *call)
{
    constexpr std::array decisive{"fsync", "fdatasync", "write", "writev", "rename", "renameat2", "ftruncate"};
    return fault.kind == FaultKind::Error && (fault.error == EIO || fault.error == ENOSPC)
        && std::ranges::any_of(decisive, [&](const char *name) { return std::strcmp(name, call) == 0; });
}

} // namespace

/// Every way of saving, killed at every file call and with every call failing: what is on the disk afterwards is the old
/// or the new, whole, and nobody is told that something is saved that isn't. ZEPHIRA_TRUST=1 tries more errors.
class TstSaveFaults final : public QObject
{
    Q_OBJECT

    int m_walked = 0;
    int m_killed = 0;
    int m_told = 0;

    static QString describe(const NamedFault &fault, const FileFaultReport &report)
    {
        return u"%1 at call %2, %3"_s.arg(QLatin1String(fault.name))
            .arg(fault.fault.call)
            .arg(QLatin1String(report.name));
    }

private Q_SLOTS:
    void everyCall_data()
    {
        QTest::addColumn<int>("number");
        for (std::size_t i = 0; i < savePaths().size(); ++i)
            QTest::newRow(savePaths()[i].name) << static_cast<int>(i);
    }

    void everyCall()
    {
        QFETCH(int, number);
        const SavePath &path = savePaths()[static_cast<std::size_t>(number)];
        const Place model;
        path.prepare(model.path());
        QByteArray oldState;
        QStringList files;
        QByteArray newState;
        {
            // The same functions, undisturbed; what they are told to do has to show.
            const Place before;
            path.prepare(before.path());
            FileFault first{.kind = FaultKind::Kill};
            QCOMPARE(saveIn(before.path(), path, &first), Outcome::Killed);
            oldState = path.state(before.path());
            QCOMPARE(saveIn(model.path(), path, nullptr), Outcome::Saved);
            newState = path.state(model.path());
            files = filesIn(model.path());
        }
        QVERIFY(oldState != newState);

        QStringList complaints;
        int calls = 0;
        int killed = 0;
        int told = 0;
        int overcome = 0;
        for (NamedFault fault : faults(qEnvironmentVariableIsSet("ZEPHIRA_TRUST"))) {
            for (;; ++fault.fault.call) {
                const Place folder;
                path.prepare(folder.path());
                const Outcome outcome = saveIn(folder.path(), path, &fault.fault);
                const FileFaultReport report = fileFaultReport();
                if (report.struck == 0) {
                    if (outcome != Outcome::Saved || path.state(folder.path()) != newState)
                        complaints.append(describe(fault, report) + u": fails undisturbed"_s);
                    break;
                }
                ++calls;
                killed += outcome == Outcome::Killed;
                told += outcome == Outcome::Told;
                overcome += outcome == Outcome::Saved;
                const QByteArray state = path.state(folder.path());
                if (state != oldState && state != newState)
                    complaints.append(describe(fault, report) + u": damaged: "_s + QString::fromUtf8(state.left(60)));
                if (outcome == Outcome::Saved
                    && (state != newState || (!path.hasExtras && mustBeTold(fault.fault, report.name))))
                    complaints.append(describe(fault, report) + u": counts as saved"_s);
                // The next save ends well and leaves nothing behind that doesn't belong there.
                if (saveIn(folder.path(), path, nullptr) == Outcome::Killed)
                    complaints.append(describe(fault, report) + u": the next save ends badly"_s);
                const QStringList left = filesIn(folder.path());
                for (const QString &name : left) {
                    if (!files.contains(name) && !name.startsWith(u"/recovery/"))
                        complaints.append(describe(fault, report) + u": leaves "_s + name);
                }
            }
        }
        qInfo("%s: %d calls went wrong, %d killed, %d told, %d overcome; %d complaints", path.name, calls, killed, told,
              overcome, static_cast<int>(complaints.size()));
        m_walked += calls;
        m_killed += killed;
        m_told += told;
        QVERIFY(killed > 0 && told > 0);
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(u'\n')));
    }

    void cleanupTestCase() const
    {
        qInfo("in all: %d calls went wrong, %d killed, %d told", m_walked, m_killed, m_told);
    }
};

ZEPHIRA_TEST(TstSaveFaults)

} // namespace zephira

#include "tst_savefaults.moc"
