// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/clock.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

class FixedClock final : public Clock
{
public:
    QDateTime time = QDateTime(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC);
    QDateTime now() const override { return time; }
};

const QString process = QString::number(QCoreApplication::applicationPid());

} // namespace

class TstRecoveryCopies : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_parent;
    DiskFileStore m_files;
    FixedClock m_clock;

    QString folder() const { return m_parent->filePath(u"data/recovery"_s); }
    QStringList names() const { return QDir(folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QByteArray content(const QString &name) const
    {
        return m_files.read(folder() + u'/' + name).valueOr("<unreadable>");
    }
    static Result<void> write(RecoveryCopies &copies, const QString &title, QByteArrayView text)
    {
        return copies.write(title, {&text, 1});
    }

private Q_SLOTS:
    void init()
    {
        m_parent = std::make_unique<QTemporaryDir>();
        m_clock = FixedClock();
    }

    void runsOfReplacements()
    {
        RecoveryCopies copies(folder(), m_files, m_clock);
        for (int i = 0; i < 12; ++i) {
            m_clock.time = m_clock.time.addSecs(1);
            const QString run = copies.beginReplacing();
            for (int file = 0; file < 6; ++file)
                QVERIFY(copies.keepReplaced(run, u"/a/page.htm"_s, QByteArray::number(file)).ok());
        }
        // Nine complete runs before the last one.
        const QStringList kept = names();
        QCOMPARE(kept.size(), 10 * 6);
        QCOMPARE(kept.front(), u"replaced-20240229-120003-000-"_s + process + u"-00001-page.htm"_s);
        QCOMPARE(content(kept.back()), QByteArray("5"));
    }

    void nothingIsMadeBeforeItIsNeeded()
    {
        RecoveryCopies copies(folder(), m_files, m_clock);
        copies.removeOwn();
        QVERIFY(!QFile::exists(folder()));
        QCOMPARE(copies.ownCopy(), QString());
    }

    void onlyTheUserSeesThem()
    {
        const mode_t mask = umask(0);
        RecoveryCopies copies(folder(), m_files, m_clock);
        const Result<QString> disk = copies.keepDisk(u"/home/me/a.htm"_s, "x");
        const bool written = write(copies, u"/home/me/a.htm"_s, "y").ok();
        umask(mask);
        QVERIFY(disk && written);
        QCOMPARE(modeOf(folder()), mode_t(0700));
        QCOMPARE(modeOf(disk.value()), mode_t(0600));
        QCOMPARE(modeOf(copies.ownCopy()), mode_t(0600));
    }

    /// A link in place of the folder leads nowhere, and what it leads to stays as it is.
    void aPlantedLinkIsRefused()
    {
        const QString outside = m_parent->filePath(u"outside"_s);
        QVERIFY(QDir().mkpath(outside) && QDir().mkpath(m_parent->filePath(u"data"_s)));
        QCOMPARE(chmod(QFile::encodeName(outside).constData(), 0755), 0);
        QVERIFY(QFile::link(outside, folder()));
        RecoveryCopies copies(folder(), m_files, m_clock);
        QVERIFY(!write(copies, u"a.htm"_s, "text"));
        QCOMPARE(modeOf(outside), mode_t(0755));
        QCOMPARE(QDir(outside).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    /// Only root can give a folder away.
    void theFolderOfSomeoneElseIsRefused()
    {
        constexpr uid_t someoneElse = 65534;
        QVERIFY(QDir().mkpath(folder()));
        const bool isGiven = geteuid() == 0 && chown(QFile::encodeName(folder()).constData(), someoneElse, 0) == 0;
        RecoveryCopies copies(folder(), m_files, m_clock);
        const Result<void> written = write(copies, u"a.htm"_s, "text");
        QCOMPARE(written.ok(), !isGiven);
        QCOMPARE(QDir(folder()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), isGiven);
        if (isGiven)
            QVERIFY2(written.error().sentence.contains(u"it isn't a folder that belongs to you"),
                     qPrintable(written.error().sentence));
    }

    void anOpenFolderIsClosed()
    {
        QVERIFY(QDir().mkpath(folder()));
        QCOMPARE(chmod(QFile::encodeName(folder()).constData(), 0755), 0);
        RecoveryCopies copies(folder(), m_files, m_clock);
        QVERIFY(write(copies, u"a"_s, "x"));
        QCOMPARE(modeOf(folder()), mode_t(0700));
    }

    void diskCopiesAreNeverOverwritten()
    {
        RecoveryCopies copies(folder(), m_files, m_clock);
        RecoveryCopies others(folder(), m_files, m_clock);
        QVERIFY(copies.keepDisk(u"/home/me/a.htm"_s, "one"));
        QVERIFY(copies.keepDisk(u"/home/me/a.htm"_s, "two"));
        QVERIFY(others.keepDisk(u"/elsewhere/a.htm"_s, "three"));
        const QString start = u"disk-20240229-120000-000-"_s + process;
        QCOMPARE(names(), (QStringList{start + u"-001-a.htm"_s, start + u"-002-a.htm"_s, start + u"-003-a.htm"_s}));
        QCOMPARE(content(names()[0]), QByteArray("one"));
        QCOMPARE(content(names()[1]), QByteArray("two"));
        QCOMPARE(content(names()[2]), QByteArray("three"));
    }

    void newestFiftyAreKept()
    {
        RecoveryCopies copies(folder(), m_files, m_clock);
        QVERIFY(write(copies, u"own"_s, "stays"));
        for (int i = 0; i < 60; ++i) {
            m_clock.time = m_clock.time.addSecs(1);
            QVERIFY(copies.keepDisk(u"a"_s, QByteArray::number(i)));
        }
        QCOMPARE(names().size(), 51);
        QCOMPARE(content(names().first()), QByteArray("10"));
        QCOMPARE(content(names()[49]), QByteArray("59"));
        QCOMPARE(copies.ownCopy(), folder() + u'/' + names().last());
        // If the clock was set back, the newest copy still isn't lost.
        m_clock.time = m_clock.time.addYears(-1);
        const Result<QString> copy = copies.keepDisk(u"a"_s, "late");
        QCOMPARE(m_files.read(copy.value()).value(), QByteArray("late"));
        QCOMPARE(names().size(), 51);
    }

    void oneFileAProcess()
    {
        RecoveryCopies copies(folder(), m_files, m_clock);
        m_clock.time = m_clock.time.addMSecs(1);
        RecoveryCopies second(folder(), m_files, m_clock);
        QVERIFY(write(copies, u"New Document"_s, "one"));
        QVERIFY(write(copies, u"New Document"_s, "two"));
        QVERIFY(write(second, u"New Document"_s, "other"));
        QCOMPARE(names(),
                 (QStringList{u"open-20240229-120000-000-"_s + process + u"-New Document"_s,
                              u"open-20240229-120000-001-"_s + process + u"-New Document"_s}));
        QCOMPARE(content(names()[0]), QByteArray("two"));
        QCOMPARE(content(names()[1]), QByteArray("other"));
        // When the document is renamed, its copy is renamed with it.
        QVERIFY(write(copies, u"/home/me/a.htm"_s, "three"));
        QCOMPARE(names(),
                 (QStringList{u"open-20240229-120000-000-"_s + process + u"-a.htm"_s,
                              u"open-20240229-120000-001-"_s + process + u"-New Document"_s}));
        copies.removeOwn();
        QCOMPARE(names().size(), 1);
        QCOMPARE(copies.ownCopy(), QString());
        second.removeOwn();
        QCOMPARE(names(), QStringList());
    }

    void aTextThatGaveWayStays()
    {
        RecoveryCopies copies(folder(), m_files, m_clock);
        const auto keep = [&](QByteArrayView text) { return copies.keepUnsaved(u"/home/me/a.htm"_s, {&text, 1}); };
        QVERIFY(write(copies, u"/home/me/a.htm"_s, "mine"));
        QVERIFY(keep("one"));
        QVERIFY(keep("two"));
        copies.removeOwn();
        const QString start = u"open-20240229-120000-00%1-"_s + process + u"-a.htm"_s;
        QCOMPARE(names(), (QStringList{start.arg(1), start.arg(2)}));
        QCOMPARE(content(start.arg(1)), "one");
        QCOMPARE(content(start.arg(2)), "two");
    }

    void piecesAreJoined()
    {
        RecoveryCopies copies(folder(), m_files, m_clock);
        const QByteArrayView pieces[] = {"one ", "two"};
        QVERIFY(copies.write(u"a"_s, pieces));
        QCOMPARE(content(names().first()), QByteArray("one two"));
    }

    void awkwardNames_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("longest") << u"/x/"_s + QString(251, u'n') + u".htm"_s;
        QTest::newRow("long in bytes") << u"/x/"_s + u"\U0001F600"_s.repeated(60) + u".htm"_s;
        QTest::newRow("ends in a separator") << u"/x/"_s;
        QTest::newRow("empty") << u""_s;
        QTest::newRow("NUL") << u"/x/a"_s + QChar(u'\0') + u"b"_s;
        QTest::newRow("dots") << u"/x/.."_s;
    }

    void awkwardNames()
    {
        QFETCH(QString, path);
        RecoveryCopies copies(folder(), m_files, m_clock);
        QVERIFY(write(copies, path, "text"));
        QVERIFY(copies.keepDisk(path, "disk"));
        QCOMPARE(names().size(), 2);
        QCOMPARE(content(names()[0]), QByteArray("disk"));
        QCOMPARE(content(names()[1]), QByteArray("text"));
    }

    void failureIsTold()
    {
        QFile blocked(m_parent->filePath(u"data"_s));
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        RecoveryCopies copies(folder(), m_files, m_clock);
        const QString sentence =
            u"The file \"%1\" could not be saved: a part of its path is not a folder."_s.arg(folder());
        QCOMPARE(copies.keepDisk(u"a"_s, "x").error().sentence, sentence);
        QCOMPARE(write(copies, u"a"_s, "x").error().sentence, sentence);
        QCOMPARE(copies.ownCopy(), QString());
    }
};

ZEPHIRA_TEST(TstRecoveryCopies)

} // namespace zephira

#include "tst_recoverycopies.moc"
