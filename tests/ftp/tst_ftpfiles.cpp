// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "ftp/sessionlogfile.h"
#include "ftp/siteprofile.h"
#include "support/diskfiles.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The files that the FTP client writes: profiles of sites, and saved logs.
class TstFtpFiles final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void profileBytes();
    void profileRoundTrip_data();
    void profileRoundTrip();
    void profileIsCut();
    void profileIsPrivate();
    void profileOverwritesOnlyItsKeys();
    void missingProfile();
    void unwritableProfile();
    void profilePath();
    void emptyLog();
    void logWithoutName();
    void saveLog();
    void shorterLogLeavesTheTail();
    void logFolderIsMissing();
    void unreadableOldLog();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

void TstFtpFiles::profileBytes()
{
    const QString file = path(u"My Site.ftp"_s);
    QVERIFY(writeSiteProfile({u"My Site"_s, u"ftp.example.com"_s, u"me"_s, {}, u"21"_s}, file));
    QCOMPARE(contentOf(file),
             QByteArray("[PROFIL]\r\nsname=My Site\r\nadresa=ftp.example.com\r\nID=me\r\npass=\r\nport=21\r\n"));
}

void TstFtpFiles::profileRoundTrip_data()
{
    QTest::addColumn<SiteProfile>("profile");
    QTest::newRow("plain") << SiteProfile{u"a"_s, u"example.com"_s, u"me"_s, u"secret"_s, u"2121"_s};
    QTest::newRow("empty") << SiteProfile{};
    QTest::newRow("blanks and quotes") << SiteProfile{u" a "_s, u"\"x\""_s, u"'me'"_s, u" ; = [s] "_s, u"x"_s};
    QTest::newRow("any script") << SiteProfile{u"Größe"_s, u"пример.рф"_s, u"日本"_s, u"påss😀"_s, {}};
}

void TstFtpFiles::profileRoundTrip()
{
    QFETCH(SiteProfile, profile);
    const QString file = path(u"round.ftp"_s);
    QFile::remove(file);
    QVERIFY(writeSiteProfile(profile, file));
    QVERIFY(readSiteProfile(file) == profile);
}

void TstFtpFiles::profileIsCut()
{
    const QString file = path(u"long.ftp"_s);
    const QString text(100, u'x');
    QVERIFY(writeSiteProfile({text, text, text, text, text}, file));
    const SiteProfile profile = readSiteProfile(file);
    QCOMPARE(profile.siteName.size(), 49);
    QCOMPARE(profile.server.size(), 74);
    QCOMPARE(profile.user.size(), 49);
    QCOMPARE(profile.password.size(), 49);
    QCOMPARE(profile.port.size(), 49);
}

void TstFtpFiles::profileIsPrivate()
{
    const QString file = path(u"private.ftp"_s);
    QVERIFY(writeSiteProfile({u"a"_s, u"example.com"_s, {}, u"secret"_s, {}}, file));
    QCOMPARE(QFile::permissions(file), ownerOnly);
    QVERIFY(QFile::setPermissions(file, ownerOnly | QFile::ReadGroup | QFile::ReadOther));
    QVERIFY(writeSiteProfile({u"a"_s, u"example.com"_s, {}, u"other"_s, {}}, file));
    QCOMPARE(QFile::permissions(file), ownerOnly);
}

void TstFtpFiles::profileOverwritesOnlyItsKeys()
{
    const QString file = path(u"mine.ftp"_s);
    putFile(file, "; by hand\r\n[PROFIL]\r\nPASS=old\r\nnote=stays\r\n[other]\r\npass=stays too\r\n");
    QVERIFY(writeSiteProfile({u"mine"_s, u"example.com"_s, u"me"_s, {}, u"21"_s}, file));
    QCOMPARE(contentOf(file),
             QByteArray("; by hand\r\n[PROFIL]\r\nPASS=\r\nnote=stays\r\nsname=mine\r\n"
                        "adresa=example.com\r\nID=me\r\nport=21\r\n[other]\r\npass=stays too\r\n"));
}

void TstFtpFiles::missingProfile()
{
    QVERIFY(readSiteProfile(path(u"none.ftp"_s)) == SiteProfile{});
    QVERIFY(readSiteProfile(m_folder.path()) == SiteProfile{});
}

void TstFtpFiles::unwritableProfile()
{
    QVERIFY(!writeSiteProfile({u"a/b"_s, u"example.com"_s, {}, {}, {}}, path(u"a/b.ftp"_s)));
    QVERIFY(!QFile::exists(path(u"a"_s)));
}

void TstFtpFiles::profilePath()
{
    QCOMPARE(siteProfilePath(u"/app"_s, u"My: Site"_s), u"/app/My: Site.ftp"_s);
}

void TstFtpFiles::emptyLog()
{
    TestContext world;
    world.prompts.expectTell(u"Nothing to be saved!"_s, {}, Question::Icon::Exclamation);
    saveSessionLog(world, {});
    QVERIFY(world.files.log.isEmpty());
}

void TstFtpFiles::logWithoutName()
{
    for (const std::optional<QString> &answer : {std::optional<QString>(), std::optional(QString())}) {
        TestContext world;
        world.prompts.expectInput({u"Type name for the log file:"_s, u"Log File"_s}, answer);
        world.prompts.expectTell(u"No name entered, quiting"_s);
        saveSessionLog(world, u"text"_s);
        QVERIFY(world.files.log.isEmpty());
    }
}

void TstFtpFiles::saveLog()
{
    TestContext world;
    world.prompts.expectInput({u"Type name for the log file:"_s, u"Log File"_s}, u"today"_s);
    world.prompts.expectTell(u"File saved as: \r\n/app/Logon/today.txt"_s);
    saveSessionLog(world, u"9:07 > Größe\r\n"_s);
    QCOMPARE(world.files.contents[u"/app/Logon/today.txt"_s], QByteArray("9:07 > Größe\r\n"));
}

void TstFtpFiles::shorterLogLeavesTheTail()
{
    TestContext world;
    for (const QString &text : {u"a long text\r\n"_s, u"SHORT"_s}) {
        world.prompts.expectInput({u"Type name for the log file:"_s, u"Log File"_s}, u"x"_s);
        world.prompts.expectTell(u"File saved as: \r\n/app/Logon/x.txt"_s);
        saveSessionLog(world, text);
    }
    QCOMPARE(world.files.contents[u"/app/Logon/x.txt"_s], QByteArray("SHORTg text\r\n"));
}

void TstFtpFiles::logFolderIsMissing()
{
    TestContext world;
    const Error error{Error::Code::Unwritable, u"There is no such folder."_s};
    world.files.unwritable.emplace(u"/app/Logon/x.txt"_s, error);
    world.prompts.expectInput({u"Type name for the log file:"_s, u"Log File"_s}, u"x"_s);
    QString raised;
    try {
        saveSessionLog(world, u"text"_s);
    } catch (const HandlerError &failure) {
        raised = failure.description;
    }
    QCOMPARE(raised, error.sentence);
}

void TstFtpFiles::unreadableOldLog()
{
    TestContext world;
    const Error error{Error::Code::Unreadable, u"It can't be read."_s};
    world.files.contents[u"/app/Logon/x.txt"_s] = "older";
    world.files.unreadable.emplace(u"/app/Logon/x.txt"_s, error);
    world.prompts.expectInput({u"Type name for the log file:"_s, u"Log File"_s}, u"x"_s);
    QVERIFY_EXCEPTION_THROWN(saveSessionLog(world, u"text"_s), HandlerError);
    QCOMPARE(world.files.contents[u"/app/Logon/x.txt"_s], QByteArray("older"));
}

ZEPHIRA_TEST(TstFtpFiles)

#include "tst_ftpfiles.moc"
