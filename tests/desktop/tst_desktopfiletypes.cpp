// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktopfiletypes.h"
#include "files/diskfilestore.h"
#include "files/faultycalls.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <map>
#include <optional>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr auto ours = "zephira-filetypes.desktop";

/// What the user's desktop is told by the environment, for the tests and the tools that they run.
class UserFolders
{
public:
    UserFolders()
    {
        for (const char *name : names)
            m_before[name] = qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt;
        qputenv("HOME", m_folder.path().toUtf8());
        qputenv("XDG_DATA_HOME", data().toUtf8());
        qputenv("XDG_CONFIG_HOME", config().toUtf8());
        qunsetenv("XDG_CURRENT_DESKTOP");
        qunsetenv("DESKTOP_SESSION");
        qunsetenv("KDE_FULL_SESSION");
        putFile(program(), "#!/bin/sh\n");
        QFile::setPermissions(program(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    ~UserFolders()
    {
        for (const auto &[name, value] : m_before) {
            if (value)
                qputenv(name, *value);
            else
                qunsetenv(name);
        }
    }
    Q_DISABLE_COPY_MOVE(UserFolders)

    QString path() const { return m_folder.path(); }
    QString data() const { return path() + u"/data"_s; }
    QString config() const { return path() + u"/config"_s; }
    QString program() const { return path() + u"/app/zephira"_s; }
    QString list() const { return config() + u"/mimeapps.list"_s; }
    QString entry() const { return data() + u"/applications/"_s + QLatin1String(ours); }
    QString package() const { return data() + u"/mime/packages/zephira-filetypes.xml"_s; }
    DesktopFileTypes::Places places() const { return {data(), config(), program(), path() + u"/app/zephira.ico"_s}; }

    /// Installs a program that opens a type.
    void install(const QString &name, const QByteArray &type) const
    {
        putFile(data() + u"/applications/"_s + name,
                "[Desktop Entry]\nType=Application\nName=Other\nExec=/bin/true %f\nMimeType=" + type + ";\n");
        QCOMPARE(QProcess::execute(u"/usr/bin/update-desktop-database"_s, {data() + u"/applications"_s}), 0);
    }

    /// All files, and what is in them, but for what the desktop's tools make of the others.
    QStringList files() const
    {
        QStringList all;
        QDirIterator walk(path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString file = walk.next();
            const QString name = file.mid(path().size() + 1);
            const bool isMade = name.endsWith(u"mimeinfo.cache"_s)
                || (name.startsWith(u"data/mime/"_s) && !name.startsWith(u"data/mime/packages/"_s));
            if (!isMade)
                all.append(name + u": "_s + QString::fromUtf8(contentOf(file)));
        }
        all.sort();
        return all;
    }

    /// The desktop's own answer.
    static QString defaultOf(const QString &type)
    {
        QProcess process;
        process.start(u"/usr/bin/xdg-mime"_s, {u"query"_s, u"default"_s, type});
        if (!process.waitForFinished() || process.exitCode() != 0)
            return u"<xdg-mime failed>"_s;
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

private:
    static constexpr const char *names[] = {
        "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "KDE_FULL_SESSION"};
    std::map<const char *, std::optional<QByteArray>> m_before;
    QTemporaryDir m_folder;
};

/// Writes a type as the program does.
void bind(FileTypeStore &store, const QString &extension, const QString &command, const QString &action = u"Open"_s)
{
    const QString typeKey = extension + u"file"_s;
    store.setValue(u'.' + extension, {}, {}, typeKey);
    store.setValue(typeKey, {}, {}, extension + u" document"_s);
    store.setValue(typeKey, u"shell"_s, {}, action);
    store.setValue(typeKey + u"\\shell\\"_s + action, u"command"_s, {}, command);
}

/// What giving back a type without an earlier handler leaves.
void giveBack(FileTypeStore &store, const QString &extension)
{
    store.setValue(extension + u"file"_s, u"shell"_s, {}, {});
}

} // namespace

/// The desktop's tools answer on the tests' behalf.
class TstDesktopFileTypes final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAreKept()
    {
        const UserFolders user;
        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        store.setValue(u"txtfile"_s, u"shell"_s, {}, u"Read"_s);
        store.createKey(u"txtfile"_s, u"DefaultIcon"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(modeOf(user.data() + u"/zephira/filetypes.json"_s), mode_t{0600});
        QCOMPARE(modeOf(user.data() + u"/zephira"_s), mode_t{0700});

        DesktopFileTypes other(files, user.places());
        QCOMPARE(other.readValue(u"txtfile"_s, u"shell"_s, {}), QString());
        QVERIFY(other.refresh().ok());
        QCOMPARE(other.readValue(u"txtfile"_s, u"SHELL"_s, {}), u"Read"_s);
        // Keys of other programs change nothing for the desktop.
        QCOMPARE(user.files().size(), 2);
    }

    void whatIsNotCommittedIsForgotten()
    {
        const UserFolders user;
        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        store.setValue(u"txtfile"_s, {}, {}, u"a"_s);
        QVERIFY(store.refresh().ok());
        QCOMPARE(store.readValue(u"txtfile"_s, {}, {}), QString());
        QVERIFY(store.commit().ok());
        QCOMPARE(user.files().size(), 1);
    }

    void boundAndGivenBack_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("type");
        QTest::newRow("text") << u"txt"_s << u"text/plain"_s;
        QTest::newRow("xml") << u"xml"_s << u"application/xml"_s;
        QTest::newRow("xml, by its other name") << u"xml"_s << u"text/xml"_s;
        QTest::newRow("c") << u"c"_s << u"text/x-csrc"_s;
        QTest::newRow("a type of our own") << u"frm"_s << u"application/x-zephira-frm"_s;
    }

    void boundAndGivenBack()
    {
        QFETCH(QString, extension);
        QFETCH(QString, type);
        const UserFolders user;
        user.install(u"notes.desktop"_s, type.toUtf8());
        putFile(user.list(), "[Default Applications]\n" + type.toUtf8() + "=notes.desktop\nimage/png=viewer.desktop;");
        const QStringList before = user.files();
        QCOMPARE(UserFolders::defaultOf(type), u"notes.desktop"_s);

        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        bind(store, extension, user.program() + u" %1"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(UserFolders::defaultOf(type), QLatin1String(ours));
        QVERIFY(contentOf(user.list()).contains("image/png=viewer.desktop;"));

        giveBack(store, extension);
        QVERIFY(store.commit().ok());
        QCOMPARE(UserFolders::defaultOf(type), u"notes.desktop"_s);
        QStringList after = user.files();
        after.removeIf([](const QString &file) { return file.startsWith(u"data/zephira/filetypes.json"_s); });
        QCOMPARE(after, before);
    }

    /// No list, no other program.
    void fromNothing()
    {
        const UserFolders user;
        const QStringList before = user.files();
        const QString other = UserFolders::defaultOf(u"text/plain"_s);
        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        bind(store, u"txt"_s, user.program() + u" %1"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(UserFolders::defaultOf(u"text/plain"_s), QLatin1String(ours));
        QCOMPARE(contentOf(user.list()),
                 "[Default Applications]\ntext/plain=zephira-filetypes.desktop;\n\n"
                 "[Added Associations]\ntext/plain=zephira-filetypes.desktop;\n");
        giveBack(store, u"txt"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(UserFolders::defaultOf(u"text/plain"_s), other);
        QVERIFY(!QFile::exists(user.list()));
        QVERIFY(!QFile::exists(user.entry()));
        QCOMPARE(user.files().size(), before.size() + 1);
    }

    /// The browser stays the default program of pages, whether a list names it or only its own entry does.
    void pagesStayWithTheBrowser_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::newRow("by the list") << QByteArray("[Default Applications]\ntext/html=browser.desktop\n");
        QTest::newRow("by its entry") << QByteArray("[Default Applications]\n");
        QTest::newRow("without a list") << QByteArray();
    }

    void pagesStayWithTheBrowser()
    {
        QFETCH(QByteArray, list);
        const UserFolders user;
        user.install(u"browser.desktop"_s, "text/html");
        if (!list.isEmpty())
            putFile(user.list(), list);
        QCOMPARE(UserFolders::defaultOf(u"text/html"_s), u"browser.desktop"_s);

        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        bind(store, u"htm"_s, user.program() + u" %1"_s, u"Edit_with_Zephira"_s);
        bind(store, u"html"_s, user.program() + u" %1"_s, u"Edit_with_Zephira"_s);
        store.setValue(u"htmlfile"_s, u"shell"_s, {}, u"opennew"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(UserFolders::defaultOf(u"text/html"_s), u"browser.desktop"_s);
        QVERIFY(contentOf(user.list()).contains("[Added Associations]\ntext/html=zephira-filetypes.desktop;\n"));
        QVERIFY(contentOf(user.entry()).contains("\nMimeType=text/html;\n"));

        giveBack(store, u"htm"_s);
        giveBack(store, u"html"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(UserFolders::defaultOf(u"text/html"_s), u"browser.desktop"_s);
        QCOMPARE(contentOf(user.list()), list.isEmpty() ? QByteArray("<unreadable>") : list);
    }

    /// The file's type is known to the desktop, and the entry is a good one.
    void whatTheToolsMakeOfIt()
    {
        const UserFolders user;
        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        bind(store, u"qqzz"_s, user.program() + u" %1"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(contentOf(user.data() + u"/mime/globs"_s).count("application/x-zephira-qqzz:*.qqzz"), 1);
        QCOMPARE(QProcess::execute(u"/usr/bin/desktop-file-validate"_s, {user.entry()}), 0);
        QVERIFY(contentOf(user.data() + u"/applications/mimeinfo.cache"_s)
                    .contains("application/x-zephira-qqzz=zephira-filetypes.desktop;"));
        giveBack(store, u"qqzz"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(contentOf(user.data() + u"/mime/globs"_s).count("qqzz"), 0);
        QVERIFY(!QFile::exists(user.package()));
    }

    void withoutAChangeNothingIsWritten()
    {
        const UserFolders user;
        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        bind(store, u"txt"_s, user.program() + u" %1"_s);
        QVERIFY(store.commit().ok());
        const FileSignature list = files.signature(user.list());
        const FileSignature entry = files.signature(user.entry());
        QVERIFY(store.refresh().ok());
        bind(store, u"txt"_s, user.program() + u" %1"_s);
        QVERIFY(store.commit().ok());
        QVERIFY(files.signature(user.list()) == list);
        QVERIFY(files.signature(user.entry()) == entry);
    }

    void aLinkedListStaysALink()
    {
        const UserFolders user;
        const QString target = putFile(user.path() + u"/dotfiles/list"_s, "[Default Applications]\n");
        QVERIFY(QDir().mkpath(user.config()));
        QVERIFY(QFile::link(target, user.list()));
        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        QVERIFY(store.refresh().ok());
        bind(store, u"txt"_s, user.program() + u" %1"_s);
        QVERIFY(store.commit().ok());
        QVERIFY(QFileInfo(user.list()).isSymLink());
        QVERIFY(contentOf(target).contains("text/plain=zephira-filetypes.desktop;"));
        giveBack(store, u"txt"_s);
        QVERIFY(store.commit().ok());
        QCOMPARE(contentOf(target), "[Default Applications]\n");
        QVERIFY(QFileInfo(user.list()).isSymLink());
    }

    /// Whichever of the files can't be written, none has changed.
    void aFullDisk()
    {
        const UserFolders user;
        putFile(user.list(), "[Default Applications]\ntext/plain=notes.desktop\n");
        const QStringList before = user.files();
        int failures = 0;
        for (int writes = 0; writes < 6; ++writes) {
            FaultyCalls calls;
            DiskFileStore files(calls);
            DesktopFileTypes store(files, user.places());
            QVERIFY(store.refresh().ok());
            bind(store, u"txt"_s, user.program() + u" %1"_s);
            bind(store, u"qqzz"_s, user.program() + u" %1"_s);
            int renamed = 0;
            calls.intervene = [&](int, FileSystemCalls::Call call) {
                return call == FileSystemCalls::Call::Rename && renamed++ == writes ? ENOSPC : 0;
            };
            const Result<void> done = store.commit();
            if (done.ok())
                break;
            ++failures;
            QVERIFY2(done.error().sentence.contains(u"disk is full"_s), qPrintable(done.error().sentence));
            QCOMPARE(user.files(), before);
        }
        // Keys, package, entry, record and list.
        QCOMPARE(failures, 5);
        QCOMPARE(UserFolders::defaultOf(u"text/plain"_s), QLatin1String(ours));
    }

    void damagedFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("keys") << u"filetypes.json"_s;
        QTest::newRow("record") << u"mimeapps.json"_s;
    }

    void damagedFiles()
    {
        QFETCH(QString, name);
        const UserFolders user;
        const QString file = putFile(user.data() + u"/zephira/"_s + name, "{]");
        const QStringList before = user.files();
        DiskFileStore files;
        DesktopFileTypes store(files, user.places());
        Result<void> done = store.refresh();
        if (done) {
            bind(store, u"txt"_s, user.program() + u" %1"_s);
            done = store.commit();
        }
        QVERIFY(!done.ok());
        QCOMPARE(done.error().sentence, u"The file \"%1\" can't be read: it is damaged."_s.arg(file));
        QCOMPARE(user.files(), before);
    }
};

ZEPHIRA_TEST(TstDesktopFileTypes)
#include "tst_desktopfiletypes.moc"
