// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/appfolder.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// During its lifetime, access checks are answered as for a user without privileges, even if root runs the test; actual
/// operations still have the real privileges.
class WithoutPrivileges
{
public:
    WithoutPrivileges()
    {
        if (m_wasSuperuser)
            QVERIFY(::setreuid(nobody, 0) == 0);
    }
    ~WithoutPrivileges()
    {
        if (m_wasSuperuser && ::setreuid(0, 0) != 0)
            qFatal("the superuser's rights did not come back");
    }
    Q_DISABLE_COPY_MOVE(WithoutPrivileges)

private:
    static constexpr uid_t nobody = 65534;
    const bool m_wasSuperuser = ::geteuid() == 0;
};

} // namespace

class TstAppFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void portable();
    void portableOfAnotherUser();
    void executableFolderWithoutConfiguration();
    void firstStartFills();
    void existingFilesStay();
    void filledFolderIsLeftAlone();
    void interruptedFillGoesOn();
    void laterVersionAddsWhatIsNew();
    void modulesComeFromBesideTheProgram();
    void missingDataIsAnError();
    void configurationThatIsAFolder();
    void configurationThatCannotBeRead();
    void placeTakenByAFile();
    void scratchIsMade();
    void scratchIsNarrowed();
    void scratchRefusesALink();
    void scratchRefusesAFile();
    void foldersOfOthersAreRefused();
    void theDataFolderIsNarrowed();

private:
    QString at(const QString &name) const { return m_folder->path() + u'/' + name; }
    Result<QString> prepare(const QString &version = u"1"_s) const
    {
        return prepareAppPath(at(u"bin"_s), at(u"share"_s), at(u"home"_s), version);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstAppFolder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(at(u"bin"_s)));
    putFile(at(u"share/zephira.ini"_s), "[Startup]\r\nselprj=0\r\n");
    putFile(at(u"share/readme.txt"_s), "Read me");
    putFile(at(u"share/templates/blank.html"_s), "<html>");
    QVERIFY(QDir().mkpath(at(u"share/templates/custom"_s)));
    QVERIFY(QFile::setPermissions(at(u"share/readme.txt"_s), QFile::ReadOwner | QFile::ReadOther));
}

void TstAppFolder::portable()
{
    putFile(at(u"bin/zephira.ini"_s), "");
    const Result<QString> path = prepare();
    QVERIFY(path.ok());
    QCOMPARE(path.value(), at(u"bin"_s));
    QVERIFY(!QFileInfo::exists(at(u"home"_s)));
}

void TstAppFolder::portableOfAnotherUser()
{
    putFile(at(u"bin/zephira.ini"_s), "[Startup]\r\n");
    putFile(at(u"bin/zephira"_s), "program");
    putFile(at(u"bin/zephiraweb.so"_s), "module");
    putFile(at(u"bin/templates/blank.html"_s), "<body>");
    putFile(at(u"bin/templates/tool.so"_s), "data");
    QVERIFY(QFile::setPermissions(at(u"bin/zephira"_s), QFile::Permissions::fromInt(0x5555)));
    QVERIFY(QFile::setPermissions(at(u"bin"_s), QFile::Permissions::fromInt(0x5555)));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions::fromInt(0x7755)));
    {
        const WithoutPrivileges withoutPrivileges;
        const Result<QString> path = prepare();
        QVERIFY2(path.ok(), path.ok() ? "" : qPrintable(path.error().sentence));
        QCOMPARE(path.value(), at(u"home/zephira"_s));
    }
    QVERIFY(QFile::setPermissions(at(u"bin"_s), QFile::Permissions::fromInt(0x7755)));
    QCOMPARE(contentOf(at(u"home/zephira/zephira.ini"_s)), "[Startup]\r\n");
    QCOMPARE(contentOf(at(u"home/zephira/templates/blank.html"_s)), "<body>");
    QCOMPARE(contentOf(at(u"home/zephira/templates/tool.so"_s)), "data");
    QVERIFY(!QFileInfo::exists(at(u"home/zephira/zephira"_s)));
    QVERIFY(!QFileInfo::exists(at(u"home/zephira/zephiraweb.so"_s)));
    QVERIFY(!QFileInfo::exists(at(u"home/zephira/readme.txt"_s)));
}

void TstAppFolder::executableFolderWithoutConfiguration()
{
    const Result<QString> path = prepare();
    QVERIFY(path.ok());
    QCOMPARE(path.value(), at(u"home/zephira"_s));
}

void TstAppFolder::firstStartFills()
{
    QVERIFY(prepare().ok());
    QCOMPARE(contentOf(at(u"home/zephira/zephira.ini"_s)), "[Startup]\r\nselprj=0\r\n");
    QCOMPARE(contentOf(at(u"home/zephira/readme.txt"_s)), "Read me");
    QCOMPARE(contentOf(at(u"home/zephira/templates/blank.html"_s)), "<html>");
    QVERIFY(QFileInfo(at(u"home/zephira/templates/custom"_s)).isDir());
    // A file that was installed read-only is writable in the user's folder.
    QCOMPARE(modeOf(at(u"home/zephira/readme.txt"_s)), 0600u);
    QCOMPARE(modeOf(at(u"home/zephira"_s)), 0700u);
    QCOMPARE(modeOf(at(u"home/zephira/templates/custom"_s)), 0700u);
}

void TstAppFolder::existingFilesStay()
{
    putFile(at(u"home/zephira/readme.txt"_s), "Mine");
    QVERIFY(prepare().ok());
    QCOMPARE(contentOf(at(u"home/zephira/readme.txt"_s)), "Mine");
    QCOMPARE(contentOf(at(u"home/zephira/templates/blank.html"_s)), "<html>");
}

void TstAppFolder::filledFolderIsLeftAlone()
{
    QVERIFY(prepare().ok());
    QVERIFY(QFile::remove(at(u"home/zephira/templates/blank.html"_s)));
    QVERIFY(prepare().ok());
    QVERIFY(!QFileInfo::exists(at(u"home/zephira/templates/blank.html"_s)));
}

void TstAppFolder::interruptedFillGoesOn()
{
    QVERIFY(prepare().ok());
    QVERIFY(QFile::remove(at(u"home/zephira/zephira.ini"_s)));
    QVERIFY(QFile::remove(at(u"home/zephira/templates/blank.html"_s)));
    QVERIFY(prepare().ok());
    QCOMPARE(contentOf(at(u"home/zephira/templates/blank.html"_s)), "<html>");
    QVERIFY(QFileInfo::exists(at(u"home/zephira/zephira.ini"_s)));
}

void TstAppFolder::laterVersionAddsWhatIsNew()
{
    putFile(at(u"share/templates/deleted.html"_s), "old");
    putFile(at(u"share/templates/changed.html"_s), "old");
    QVERIFY(prepare().ok());
    QVERIFY(QFile::remove(at(u"home/zephira/templates/deleted.html"_s)));
    putFile(at(u"home/zephira/templates/changed.html"_s), "mine");
    putFile(at(u"share/templates/changed.html"_s), "newer");
    putFile(at(u"share/help/index.html"_s), "new");

    QVERIFY(prepare().ok());
    QVERIFY(!QFile::exists(at(u"home/zephira/help/index.html"_s)));

    QVERIFY(prepare(u"2"_s).ok());
    QCOMPARE(contentOf(at(u"home/zephira/help/index.html"_s)), QByteArray("new"));
    QCOMPARE(contentOf(at(u"home/zephira/templates/changed.html"_s)), QByteArray("mine"));
    QVERIFY(!QFile::exists(at(u"home/zephira/templates/deleted.html"_s)));

    // The data may be gone while the user's own folder is whole.
    QVERIFY(QFile::remove(at(u"share/zephira.ini"_s)));
    QVERIFY(prepare(u"3"_s).ok());
}

void TstAppFolder::modulesComeFromBesideTheProgram()
{
    putFile(at(u"bin/plugins/filler.so"_s), "module");
    putFile(at(u"bin/zephiraweb.so"_s), "module");
    QVERIFY(prepare().ok());
    QCOMPARE(contentOf(at(u"home/zephira/plugins/filler.so"_s)), QByteArray("module"));
    QVERIFY(!QFile::exists(at(u"home/zephira/zephiraweb.so"_s)));
}

void TstAppFolder::missingDataIsAnError()
{
    QVERIFY(QFile::remove(at(u"share/zephira.ini"_s)));
    const Result<QString> path = prepare();
    QVERIFY(!path.ok());
    QCOMPARE(path.error().code, Error::Code::NotFound);
    QCOMPARE(
        path.error().sentence,
        u"Zephira can't start: there is no zephira.ini next to the program or in %1. Please reinstall the program."_s
            .arg(at(u"share"_s)));
}

void TstAppFolder::configurationThatIsAFolder()
{
    QVERIFY(QDir().mkpath(at(u"bin/zephira.ini"_s)));
    QCOMPARE(
        prepare().error().sentence,
        u"Zephira can't start: The file \"%1\" could not be read: it is a folder."_s.arg(at(u"bin/zephira.ini"_s)));
    QVERIFY(QDir().rmdir(at(u"bin/zephira.ini"_s)));
    QVERIFY(QDir().mkpath(at(u"home/zephira/zephira.ini"_s)));
    QCOMPARE(prepare().error().sentence,
             u"Zephira can't start: The file \"%1\" could not be read: it is a folder."_s.arg(
                 at(u"home/zephira/zephira.ini"_s)));
}

void TstAppFolder::configurationThatCannotBeRead()
{
    putFile(at(u"bin/zephira.ini"_s), "[Startup]\r\n");
    QVERIFY(QFile::setPermissions(at(u"bin/zephira.ini"_s), QFile::Permissions()));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions::fromInt(0x7755)));
    // Root can read everything.
    constexpr uid_t nobody = 65534;
    const bool wasSuperuser = ::geteuid() == 0;
    QVERIFY(!wasSuperuser || ::seteuid(nobody) == 0);
    const Result<QString> path = prepare();
    QVERIFY(!wasSuperuser || ::seteuid(0) == 0);
    QVERIFY(!path);
    QCOMPARE(path.error().sentence,
             u"Zephira can't start: The file \"%1\" could not be read: permission was denied."_s.arg(
                 at(u"bin/zephira.ini"_s)));
}

void TstAppFolder::placeTakenByAFile()
{
    putFile(at(u"home"_s), "in the way");
    const Result<QString> path = prepare();
    QVERIFY(!path.ok());
    QCOMPARE(path.error().code, Error::Code::Unwritable);
    QVERIFY(path.error().sentence.startsWith(u"The folder %1/zephira can't be created: "_s.arg(at(u"home"_s))));
}

void TstAppFolder::scratchIsMade()
{
    const Result<QString> folder = scratchFolder(at(u"cache"_s));
    QVERIFY(folder.ok());
    QCOMPARE(folder.value(), at(u"cache/zephira/scratch"_s));
    QCOMPARE(modeOf(folder.value()), 0700u);
    // Once created, the same folder is used at every start.
    QCOMPARE(scratchFolder(at(u"cache"_s)).valueOr(u"?"_s), folder.value());
}

void TstAppFolder::scratchIsNarrowed()
{
    QVERIFY(QDir().mkpath(at(u"cache/zephira/scratch"_s)));
    QCOMPARE(::chmod(QFile::encodeName(at(u"cache/zephira/scratch"_s)).constData(), 0777), 0);
    QVERIFY(scratchFolder(at(u"cache"_s)).ok());
    QCOMPARE(modeOf(at(u"cache/zephira/scratch"_s)), 0700u);
}

void TstAppFolder::scratchRefusesALink()
{
    QVERIFY(QDir().mkpath(at(u"cache/zephira"_s)));
    QVERIFY(QDir().mkpath(at(u"elsewhere"_s)));
    QVERIFY(QFile::link(at(u"elsewhere"_s), at(u"cache/zephira/scratch"_s)));
    const Result<QString> folder = scratchFolder(at(u"cache"_s));
    QVERIFY(!folder.ok());
    QCOMPARE(folder.error().code, Error::Code::Refused);
}

void TstAppFolder::scratchRefusesAFile()
{
    putFile(at(u"cache/zephira/scratch"_s), "");
    const Result<QString> folder = scratchFolder(at(u"cache"_s));
    QVERIFY(!folder.ok());
    QCOMPARE(folder.error().code, Error::Code::Refused);
}

/// Only root can give a folder away.
void TstAppFolder::foldersOfOthersAreRefused()
{
    constexpr uid_t someoneElse = 65534;
    putFile(at(u"share/zephira.ini"_s), "[options]\r\n");
    const QString scratch = at(u"cache/zephira/scratch"_s);
    const QString data = at(u"data/zephira"_s);
    putFile(data + u"/zephira.ini"_s, "[options]\r\n");
    QVERIFY(QDir().mkpath(scratch));
    const bool areGiven = geteuid() == 0 && ::chown(QFile::encodeName(scratch).constData(), someoneElse, 0) == 0
        && ::chown(QFile::encodeName(data).constData(), someoneElse, 0) == 0;
    const Result<QString> scratchFound = scratchFolder(at(u"cache"_s));
    const Result<QString> dataFound = prepareAppPath(at(u"bin"_s), at(u"share"_s), at(u"data"_s), u"1"_s);
    QCOMPARE(scratchFound.ok(), !areGiven);
    QCOMPARE(dataFound.ok(), !areGiven);
    if (!areGiven)
        return;
    QCOMPARE(scratchFound.error().code, Error::Code::Refused);
    QCOMPARE(scratchFound.error().sentence,
             scratch + u" isn't a folder that belongs to you, so Zephira doesn't write temporary files there."_s);
    QCOMPARE(dataFound.error().code, Error::Code::Refused);
    QCOMPARE(dataFound.error().sentence, u"Zephira can't start: %1 isn't a folder that belongs to you."_s.arg(data));
    QCOMPARE(QDir(data).entryList(QDir::Files | QDir::Hidden), QStringList{u"zephira.ini"_s});
}

void TstAppFolder::theDataFolderIsNarrowed()
{
    putFile(at(u"share/zephira.ini"_s), "[options]\r\n");
    const QString data = at(u"data/zephira"_s);
    QVERIFY(QDir().mkpath(data));
    QCOMPARE(::chmod(QFile::encodeName(data).constData(), 0755), 0);
    QVERIFY(prepareAppPath(at(u"bin"_s), at(u"share"_s), at(u"data"_s), u"1"_s).ok());
    QCOMPARE(modeOf(data), 0700u);
}

ZEPHIRA_TEST(TstAppFolder)
#include "tst_appfolder.moc"
