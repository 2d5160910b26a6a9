// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"
#include "files/faultycalls.h"
#include "files/textfile.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Call = FileSystemCalls::Call;

QString unsaved(const QString &path, const QString &reason)
{
    return u"The file \"%1\" could not be saved: %2."_s.arg(path, reason);
}

QString unread(const QString &path, const QString &reason)
{
    return u"The file \"%1\" could not be read: %2."_s.arg(path, reason);
}

} // namespace

class TstDiskFileStore : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    DiskFileStore m_store;

    QString at(const QString &name) const { return m_folder->filePath(name); }
    QByteArray native(const QString &name) const { return QFile::encodeName(at(name)); }
    void put(const QString &name, const QByteArray &content) const { putFile(at(name), content); }
    QByteArray get(const QString &name) const { return contentOf(at(name)); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void reads_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("abc\r\n");
        QTest::newRow("zeros") << QByteArray(1000, '\0');
        QTest::newRow("a megabyte") << QByteArray("0123456789abcdef").repeated(65536);
    }

    void reads()
    {
        QFETCH(QByteArray, content);
        put(u"a"_s, content);
        QCOMPARE(m_store.read(at(u"a"_s)).value(), content);
    }

    void readsFilesWhoseSizeSaysNothing()
    {
        const Result<QByteArray> bytes = m_store.read(u"/proc/self/status"_s);
        QVERIFY(bytes);
        QVERIFY(bytes.value().startsWith("Name:"));
    }

    void refusesToRead()
    {
        QCOMPARE(m_store.read(at(u"none"_s)).error().sentence, unread(at(u"none"_s), u"it does not exist"_s));
        QCOMPARE(m_store.read(at(u"none"_s)).error().code, Error::Code::NotFound);
        QCOMPARE(m_store.read(m_folder->path()).error().sentence, unread(m_folder->path(), u"it is a folder"_s));
        QCOMPARE(m_store.read(m_folder->path()).error().code, Error::Code::Unreadable);
        QCOMPARE(m_store.read(u"/dev/zero"_s).error().sentence, unread(u"/dev/zero"_s, u"it is not a regular file"_s));
        QCOMPARE(mkfifo(native(u"pipe"_s).constData(), 0600), 0);
        QCOMPARE(m_store.read(at(u"pipe"_s)).error().sentence, unread(at(u"pipe"_s), u"it is not a regular file"_s));
        const QString cut = at(u"a"_s) + QChar(u'\0') + u"b"_s;
        put(u"a"_s, "x");
        QCOMPARE(m_store.read(cut).error().code, Error::Code::NotFound);
    }

    void refusesWhatIsTooLarge()
    {
        put(u"large"_s, "");
        QCOMPARE(truncate(native(u"large"_s).constData(), maximumFileSize + 1), 0);
        const Result<QByteArray> bytes = m_store.read(at(u"large"_s));
        QCOMPARE(bytes.error().code, Error::Code::TooLarge);
        QCOMPARE(bytes.error().sentence, unread(at(u"large"_s), u"it is larger than 256 MiB"_s));
    }

    void refusesWhatGrowsTooLargeMeanwhile()
    {
        put(u"growing"_s, "small");
        FaultyCalls calls;
        calls.intervene = [&](int, Call call) {
            return call == Call::Read ? truncate(native(u"growing"_s).constData(), maximumFileSize + 1) : 0;
        };
        QCOMPARE(DiskFileStore(calls).read(at(u"growing"_s)).error().code, Error::Code::TooLarge);
    }

    void eachReadingCallFails()
    {
        put(u"a"_s, "abc");
        int failures = 0;
        for (int failing = 0;; ++failing) {
            FaultyCalls calls;
            calls.intervene = [&](int number, Call) { return number == failing ? EIO : 0; };
            const Result<QByteArray> bytes = DiskFileStore(calls).read(at(u"a"_s));
            if (calls.count() <= failing)
                break;
            if (bytes) {
                QCOMPARE(calls.made()[static_cast<std::size_t>(failing)], Call::Close);
                QCOMPARE(bytes.value(), QByteArray("abc"));
            } else {
                ++failures;
                QCOMPARE(bytes.error().sentence, unread(at(u"a"_s), u"the disk reported an error"_s));
            }
        }
        QCOMPARE(failures, 4);
    }

    void newFileObeysTheMask()
    {
        const mode_t mask = umask(027);
        const bool written = m_store.write(at(u"plain"_s), "x").ok() && m_store.write(at(u"secret"_s), "x", 0600).ok();
        umask(mask);
        QVERIFY(written);
        QCOMPARE(modeOf(at(u"plain"_s)), mode_t(0640));
        QCOMPARE(modeOf(at(u"secret"_s)), mode_t(0600));
    }

    void modeIsKept_data()
    {
        QTest::addColumn<int>("mode");
        for (const int mode : {0600, 0644, 0664, 0666, 0755, 0777, 0200, 0020})
            QTest::addRow("%o", static_cast<unsigned>(mode)) << mode;
    }

    void modeIsKept()
    {
        QFETCH(int, mode);
        put(u"a"_s, "old");
        QCOMPARE(chmod(native(u"a"_s).constData(), static_cast<mode_t>(mode)), 0);
        if (access(native(u"a"_s).constData(), W_OK) != 0) {
            QVERIFY(!m_store.write(at(u"a"_s), "new"));
            return;
        }
        QVERIFY(m_store.write(at(u"a"_s), "new"));
        QCOMPARE(modeOf(at(u"a"_s)), static_cast<mode_t>(mode));
    }

    void readOnlyFileIsRefused()
    {
        put(u"a"_s, "old");
        QCOMPARE(chmod(native(u"a"_s).constData(), 0444), 0);
        const Result<void> written = m_store.write(at(u"a"_s), "new");
        QCOMPARE(written.error().sentence, unsaved(at(u"a"_s), u"it is read-only"_s));
        QCOMPARE(written.error().code, Error::Code::Unwritable);
        QCOMPARE(get(u"a"_s), QByteArray("old"));
    }

    void attributesAreKept()
    {
        put(u"a"_s, "old");
        if (setxattr(native(u"a"_s).constData(), "user.origin", "web", 3, 0) != 0) {
            QCOMPARE(errno, ENOTSUP);
            return;
        }
        QVERIFY(m_store.write(at(u"a"_s), "new"));
        char value[8] = {};
        QCOMPARE(getxattr(native(u"a"_s).constData(), "user.origin", value, sizeof value), ssize_t(3));
        QCOMPARE(QByteArray(value), QByteArray("web"));
    }

    void accessListIsKept()
    {
        // Version 2, then tag, rights and id of: owner rw, user 4711 rw, group -, mask rw, others -.
        constexpr unsigned char list[] = {2, 0,    0,    0,   1,   0,   6,    0, 255, 255, 255, 255, 2,   0,    6,
                                          0, 0x67, 0x12, 0,   0,   4,   0,    0, 0,   255, 255, 255, 255, 0x10, 0,
                                          6, 0,    255,  255, 255, 255, 0x20, 0, 0,   0,   255, 255, 255, 255};
        constexpr char name[] = "system.posix_acl_access";
        put(u"a"_s, "old");
        if (setxattr(native(u"a"_s).constData(), name, list, sizeof list, 0) != 0) {
            QCOMPARE(errno, ENOTSUP);
            return;
        }
        QCOMPARE(modeOf(at(u"a"_s)), mode_t(0660));
        QVERIFY(m_store.write(at(u"a"_s), "new"));
        char value[256];
        QCOMPARE(getxattr(native(u"a"_s).constData(), name, value, sizeof value), ssize_t(sizeof list));
        QVERIFY(std::memcmp(value, list, sizeof list) == 0);
        QCOMPARE(modeOf(at(u"a"_s)), mode_t(0660));

        // If the list can't be copied, its mask must not turn into permissions of the group.
        FaultyCalls calls;
        calls.intervene = [](int, Call call) { return call == Call::SetAttribute ? EPERM : 0; };
        QVERIFY(DiskFileStore(calls).write(at(u"a"_s), "newer"));
        QCOMPARE(modeOf(at(u"a"_s)), mode_t(0600));
    }

    void linkIsFollowed()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"below"_s));
        put(u"below/target"_s, "old");
        QCOMPARE(symlink("below/second", native(u"link"_s).constData()), 0);
        QCOMPARE(symlink("target", native(u"below/second"_s).constData()), 0);
        QVERIFY(m_store.write(at(u"link"_s), "new"));
        QCOMPARE(get(u"below/target"_s), QByteArray("new"));
        QVERIFY(QFileInfo(at(u"link"_s)).isSymLink());
        QVERIFY(QFileInfo(at(u"below/second"_s)).isSymLink());
        QCOMPARE(m_store.read(at(u"link"_s)).value(), QByteArray("new"));
    }

    void danglingLinkGetsItsTarget()
    {
        QCOMPARE(symlink("target", native(u"link"_s).constData()), 0);
        QVERIFY(m_store.write(at(u"link"_s), "new"));
        QCOMPARE(get(u"target"_s), QByteArray("new"));
        QVERIFY(QFileInfo(at(u"link"_s)).isSymLink());
    }

    void linksInACircle()
    {
        QCOMPARE(symlink("two", native(u"one"_s).constData()), 0);
        QCOMPARE(symlink("one", native(u"two"_s).constData()), 0);
        QCOMPARE(m_store.write(at(u"one"_s), "new").error().sentence,
                 unsaved(at(u"one"_s), u"its symbolic links form a loop"_s));
        QVERIFY(!m_store.FileExists(at(u"one"_s)));
    }

    void otherHardLinksKeepTheOldContent()
    {
        put(u"a"_s, "old");
        QCOMPARE(link(native(u"a"_s).constData(), native(u"b"_s).constData()), 0);
        QVERIFY(m_store.write(at(u"a"_s), "new"));
        QCOMPARE(get(u"a"_s), QByteArray("new"));
        QCOMPARE(get(u"b"_s), QByteArray("old"));
    }

    void refusesToWrite()
    {
        const auto sentence = [this](const QString &path) { return m_store.write(path, "x").error().sentence; };
        QCOMPARE(sentence(m_folder->path()), unsaved(m_folder->path(), u"it is a folder"_s));
        QCOMPARE(sentence(at(u"none/a"_s)), unsaved(at(u"none/a"_s), u"its folder does not exist"_s));
        put(u"file"_s, "");
        QCOMPARE(sentence(at(u"file/a"_s)), unsaved(at(u"file/a"_s), u"a part of its path is not a folder"_s));
        const QString longName = at(QString(256, u'x'));
        QCOMPARE(sentence(longName), unsaved(longName, u"its name is too long"_s));
        QVERIFY(m_store.write(at(QString(255, u'x')), "x"));
        QCOMPARE(mkfifo(native(u"pipe"_s).constData(), 0600), 0);
        QCOMPARE(sentence(at(u"pipe"_s)), unsaved(at(u"pipe"_s), u"it is not a regular file"_s));
        const QString cut = at(u"file"_s) + QChar(u'\0') + u"b"_s;
        QCOMPARE(sentence(cut), unsaved(cut, u"its name contains a NUL character"_s));
        QVERIFY(!m_store.write(u""_s, "x"));
    }

    void folderThatTakesNoFiles()
    {
        put(u"a"_s, "old");
        FaultyCalls calls;
        bool folderOpened = false;
        calls.intervene = [&](int, Call call) {
            // The first call opens the folder, the second the temporary file.
            return call == Call::Open && std::exchange(folderOpened, true) ? EACCES : 0;
        };
        QCOMPARE(DiskFileStore(calls).write(at(u"a"_s), "new").error().sentence,
                 unsaved(at(u"a"_s), u"its folder does not allow new files"_s));
        QCOMPARE(get(u"a"_s), QByteArray("old"));
    }

    void takenTemporaryNamesArePassedOver()
    {
        put(u"a"_s, "old");
        FaultyCalls calls;
        int openings = 0;
        calls.intervene = [&](int, Call call) {
            return call == Call::Open && ++openings >= 2 && openings <= 4 ? EEXIST : 0;
        };
        QVERIFY(DiskFileStore(calls).write(at(u"a"_s), "new"));
        QCOMPARE(get(u"a"_s), QByteArray("new"));
    }

    void fileExists()
    {
        put(u"a"_s, "");
        QVERIFY(m_store.FileExists(at(u"a"_s)));
        QVERIFY(!m_store.FileExists(at(u"b"_s)));
        QVERIFY(!m_store.FileExists(m_folder->path()));
        QVERIFY(!m_store.FileExists(u""_s));
        FaultyCalls calls;
        calls.intervene = [](int, Call call) { return call == Call::Open ? EACCES : 0; };
        QVERIFY2(!DiskFileStore(calls).FileExists(at(u"a"_s)), "an unreadable file counts as absent");
    }

    void removes()
    {
        put(u"a"_s, "");
        QVERIFY(m_store.remove(at(u"a"_s)));
        QVERIFY(!QFile::exists(at(u"a"_s)));
        const Result<void> again = m_store.remove(at(u"a"_s));
        QCOMPARE(again.error().code, Error::Code::NotFound);
        QCOMPARE(again.error().sentence, u"The file \"%1\" could not be removed: it does not exist."_s.arg(at(u"a"_s)));
        QVERIFY(!m_store.remove(m_folder->path()));
    }

    void signatureTellsVersionsApart()
    {
        QVERIFY(!m_store.signature(at(u"a"_s)).exists);
        put(u"a"_s, "one");
        const FileSignature first = m_store.signature(at(u"a"_s));
        QVERIFY(first.exists);
        QCOMPARE(first.size, 3);
        QCOMPARE(m_store.signature(at(u"a"_s)), first);
        QVERIFY(m_store.write(at(u"a"_s), "two"));
        QVERIFY(m_store.signature(at(u"a"_s)) != first);
    }
};

ZEPHIRA_TEST(TstDiskFileStore)

} // namespace zephira

#include "tst_diskfilestore.moc"
