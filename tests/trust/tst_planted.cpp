// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/appfolder.h"
#include "files/desktopusersettings.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "ftp/siteprofile.h"
#include "support/diskfiles.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const SiteProfile site{.siteName = u"S"_s, .server = u"h"_s, .user = u"u"_s, .password = u"word"_s, .port = u"21"_s};

} // namespace

/// What others have put where the program writes, and who may read what it writes.
class TstPlanted final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A password goes neither to where a link leads nor into a file that others may read.
    void aPasswordStaysWithItsProfile()
    {
        const QTemporaryDir folder;
        const QString outside = putFile(folder.filePath(u"outside"_s), "theirs");
        const QString profile = folder.filePath(u"a.ftp"_s);
        QVERIFY(QFile::link(outside, profile));
        QVERIFY(writeSiteProfile(site, profile));
        QCOMPARE(contentOf(outside), "theirs");
        QVERIFY(!QFileInfo(profile).isSymLink());
        QCOMPARE(modeOf(profile), mode_t(0600));
        const QString open = putFile(folder.filePath(u"b.ftp"_s), "");
        QVERIFY(QFile::setPermissions(open, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
        QVERIFY(writeSiteProfile(site, open));
        QCOMPARE(modeOf(open), mode_t(0600));
    }

    void modes_data()
    {
        QTest::addColumn<int>("mask");
        for (const int mask : {0, 022, 077})
            QTest::newRow(qPrintable(QString::number(mask, 8))) << mask;
    }

    /// Whatever the umask, everything that is private is the user's alone.
    void modes()
    {
        QFETCH(int, mask);
        const QTemporaryDir folder;
        putFile(folder.filePath(u"share/zephira.ini"_s), "[options]\r\n");
        putFile(folder.filePath(u"share/deep/tags.dat"_s), "x");
        const mode_t before = umask(static_cast<mode_t>(mask));
        const QString home = folder.filePath(u"home"_s);
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home + u"/config"_s));
        DiskFileStore files;
        const FakeClock clock;
        RecoveryCopies recovery(home + u"/recovery"_s, files, clock);
        const QByteArrayView text = "text";
        const bool isWritten = prepareAppPath(folder.filePath(u"bin"_s), folder.filePath(u"share"_s), home, u"1"_s).ok()
            && scratchFolder(home).ok() && DesktopUserSettings().SaveSetting(UserSetting::ShowTips, u"0"_s)
            && recovery.write(u"a.htm"_s, {&text, 1}).ok() && recovery.keepDisk(u"b.htm"_s, text).ok()
            && writeSiteProfile(site, home + u"/zephira/a.ftp"_s);
        umask(before);
        QVERIFY(isWritten);
        QDirIterator walk(home, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        int seen = 0;
        while (walk.hasNext()) {
            const QString path = walk.next();
            QVERIFY2(modeOf(path) == (walk.fileInfo().isDir() ? 0700 : 0600), qPrintable(path));
            ++seen;
        }
        QVERIFY(seen >= 10);
    }
};

ZEPHIRA_TEST(TstPlanted)

} // namespace zephira

#include "tst_planted.moc"
