// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "files/iniconfiguration.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <array>

#include <sys/stat.h>
#include <unistd.h>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

/// Bad input from outside: names of missing files, bytes that aren't text, settings that were edited by hand, a process
/// that is killed.
class TstBadInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// An unreadable file on the command line: the window opens, empty and unmodified, and nothing is written.
    void fileAtTheStart_data()
    {
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<bool>("named"); // The caption has the file's name.
        QTest::addColumn<bool>("told");  // A message says why.
        QTest::newRow("a folder") << u"folder"_s << true << false;
        QTest::newRow("a dangling link") << u"dangling"_s << false << false;
        QTest::newRow("a circle of links") << u"circle"_s << false << false;
        QTest::newRow("a pipe") << u"pipe"_s << true << false;
        QTest::newRow("not for this user") << u"secret"_s << true << false;
        QTest::newRow("300 MB") << u"huge"_s << true << true;
    }

    void fileAtTheStart()
    {
        QFETCH(QString, trouble);
        QFETCH(bool, named);
        QFETCH(bool, told);
        ProgramFolder folder;
        const QString path = make(folder, trouble);
        const QString caption = named ? RunningProgram::captionOf(path) : untitled;
        RunningProgram program(folder, {path}, RunningProgram::boundByPermissions());
        if (told) {
            program.answer(message, u"Return"_s);
            QVERIFY(program.waitUntilGone(message));
        }
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        program.close(caption);
        QCOMPARE(program.waitForEnd(), 0);
    }

    /// The file pane shows the file's folder, whatever else is in it.
    void aFolderFullOfTraps_data()
    {
        QTest::addColumn<QString>("rootSelect");
        QTest::newRow("selected in the tree") << u"2"_s;
        QTest::newRow("root of the tree") << u"1"_s;
    }

    void aFolderFullOfTraps()
    {
        QFETCH(QString, rootSelect);
        ProgramFolder folder;
        folder.setIni(u"startup"_s, u"rootsel"_s, rootSelect);
        const QString path = folder.write(u"日本 site/page.html"_s, "<p>page</p>");
        const QString site = folder.place(u"日本 site"_s);
        QVERIFY(QDir().mkdir(site + u"/secret"_s));
        QVERIFY(QFile::setPermissions(site + u"/secret"_s, QFile::Permissions()));
        QVERIFY(QFile::link(site, site + u"/up"_s));
        QVERIFY(QFile::link(site + u"/self.html"_s, site + u"/self.html"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(site + u"/pipe.html"_s).constData(), 0600), 0);
        for (const char *name : {"/not text \xff\xfe.html", "/not text \xff\xfe folder"}) {
            const QByteArray place = QFile::encodeName(site) + name;
            QCOMPARE(place.endsWith("folder") ? ::mkdir(place.constData(), 0700)
                                              : ::mknod(place.constData(), S_IFREG | 0600, 0),
                     0);
        }
        RunningProgram program(folder, {path}, RunningProgram::boundByPermissions());
        const QString caption = RunningProgram::captionOf(path);
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        program.close(caption);
        QCOMPARE(program.waitForEnd(), 0);
        QVERIFY(QFile::setPermissions(site + u"/secret"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(::unlink((QFile::encodeName(site) + "/not text \xff\xfe.html").constData()), 0);
        QCOMPARE(::rmdir((QFile::encodeName(site) + "/not text \xff\xfe folder").constData()), 0);
    }

    /// The same through the open dialog: the document that was open before is still in its file.
    void fileInTheDialog_data()
    {
        QTest::addColumn<QString>("trouble");
        for (const char *trouble : {"pipe", "secret", "huge"})
            QTest::newRow(trouble) << QString::fromLatin1(trouble);
    }

    void fileInTheDialog()
    {
        QFETCH(QString, trouble);
        ProgramFolder folder;
        const QString good = folder.write(u"good.txt"_s, "good");
        const QString path = make(folder, trouble);
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {good}, RunningProgram::boundByPermissions());
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(good)));
        program.key(RunningProgram::captionOf(good), u"ctrl+o"_s);
        program.fillIn(openDialog, path);
        if (trouble == u"huge"_s)
            program.answer(message, u"Return"_s);
        QVERIFY(program.waitForWindow(caption));
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        QCOMPARE(ProgramFolder::read(good), "good");
        QVERIFY(program.isRunning());
    }

    void everyByteComesBack_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("NULs") << QByteArray("\0a\0\0b\0", 6);
        QTest::newRow("not UTF-8") << QByteArray("\xC3\x28 \xE9\x81\x8D\xFF\xFE\n");
        QTest::newRow("half a UTF-16 character") << QByteArray("\xFF\xFE"
                                                               "a\0b",
                                                               5);
        QTest::newRow("a lone surrogate in UTF-16") << QByteArray("\xFE\xFF\xD8\x00\x00x", 6);
        QTest::newRow("control characters") << QByteArray("\x01\x1B[31m\x7F\x0C\x0B\n");
        QByteArray all(256 * 256, Qt::Uninitialized);
        for (int i = 0; i < all.size(); ++i)
            all[i] = static_cast<char>((i * 167 + i / 256) & 0xFF);
        QTest::newRow("all pairs of bytes") << all;
        QTest::newRow("a line of a megabyte") << QByteArray(1 << 20, 'x');
    }

    void everyByteComesBack()
    {
        QFETCH(QByteArray, before);
        ProgramFolder folder;
        const QString path = folder.write(u"data.bin"_s, before);
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        // After a change and its undoing the save writes the file, which is removed first to prove it.
        QVERIFY(QFile::remove(path));
        program.key(caption, u"ctrl+Home x BackSpace ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), patience);
        QVERIFY(ProgramFolder::read(path) == before);
    }

    void settingsThatSomeoneEdited_data()
    {
        QTest::addColumn<QByteArray>("added");
        QTest::addColumn<bool>("inFront");
        QTest::newRow("the first match counts")
            << QByteArray("[OPTIONS]\nHighLight =  1\nlinenumber='1'\nleftmargin=1\n"
                          "whitespace = \"0\"\nselbounds=0\nhighlight=nonsense\n")
            << true;
        QTest::newRow("a section again") << QByteArray("\n[options]\nhighlight=nonsense\n[Colors]\nclr0bg=blue\n")
                                         << false;
        QTest::newRow("lines without a meaning") << QByteArray("[\n]\n=\n==\n[]\n=5\n;\n]x[\n\0\xFF\n", 30) << true;
        QTest::newRow("a very long line") << QByteArray("[" + QByteArray(200000, 'x') + "]\n" + QByteArray(200000, 'y')
                                                        + "=" + QByteArray(2000000, 'z') + "\n")
                                          << true;
        QTest::newRow("empty values elsewhere") << QByteArray("[new]\na=\nb=\"\"\nc=''\n") << false;
        QTest::newRow("a byte order mark") << QByteArray("\xEF\xBB\xBF") << true;
    }

    void settingsThatSomeoneEdited()
    {
        QFETCH(QByteArray, added);
        QFETCH(bool, inFront);
        ProgramFolder folder;
        const QByteArray shipped = ProgramFolder::read(folder.ini());
        const QByteArray edited = inFront ? added + shipped : shipped + added;
        folder.write(u"zephira/zephira.ini"_s, edited);
        RunningProgram program(folder, {u"/nodialog"_s});
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        // Writing finds the same line as reading and leaves all others unchanged.
        program.key(untitled, u"ctrl+h"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ReadIni(u"options"_s, u"highlight"_s, folder.ini()), u"0"_s, patience);
        const QByteArray now = ProgramFolder::read(folder.ini());
        QCOMPARE(now.size(), edited.size());
        int differences = 0;
        for (qsizetype i = 0; i < now.size(); ++i)
            differences += now[i] != edited[i];
        QCOMPARE(differences, 1);
    }

    void settingsThatCannotBeWritten()
    {
        ProgramFolder folder;
        const QByteArray before = ProgramFolder::read(folder.ini());
        QVERIFY(QFile::setPermissions(folder.ini(), QFile::ReadOwner));
        RunningProgram program(folder, {u"/nodialog"_s}, RunningProgram::boundByPermissions());
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"ctrl+h"_s);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled}); // No message.
        program.key(untitled, u"ctrl+h"_s);
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(ProgramFolder::read(folder.ini()), before);
    }

    void twoProcessesWriteTheSettingsAtOnce()
    {
        ProgramFolder folder;
        const QByteArray before = ProgramFolder::read(folder.ini());
        RunningProgram first(folder, {u"/nodialog"_s});
        RunningProgram second(folder, {u"/nodialog"_s});
        QVERIFY(first.waitForWindow(untitled));
        QVERIFY(second.waitForWindow(untitled));
        QByteArray off = before;
        QVERIFY(off.contains("\nhighlight=1\n"));
        off.replace("\nhighlight=1\n", "\nhighlight=0\n");
        const auto keysToFirst = first.keyInBackground(untitled, u"ctrl+h"_s, 60);
        const auto keysToSecond = second.keyInBackground(untitled, u"ctrl+h"_s, 60);
        int versions = 0;
        struct stat last = {};
        while (keysToFirst->state() != QProcess::NotRunning || keysToSecond->state() != QProcess::NotRunning) {
            struct stat now = {};
            QCOMPARE(::stat(QFile::encodeName(folder.ini()).constData(), &now), 0);
            versions += now.st_ino != last.st_ino || now.st_mtim.tv_nsec != last.st_mtim.tv_nsec;
            last = now;
            // The file is complete at every moment, and unchanged except for the one value.
            const QByteArray content = ProgramFolder::read(folder.ini());
            QVERIFY2(content == before || content == off, content.constData());
            QTest::qWait(1);
        }
        QVERIFY2(versions > 5, qPrintable(QString::number(versions)));
        QVERIFY(first.isRunning() && second.isRunning());
        for (const RunningProgram *program : {&first, &second}) {
            program->close(untitled);
            QVERIFY(program->waitUntilGone(untitled));
        }
        const QByteArray content = ProgramFolder::read(folder.ini());
        QVERIFY2(content == before || content == off, content.constData());
        QCOMPARE(QDir(folder.path()).entryList({u".zephira-*"_s}, QDir::Files | QDir::Hidden), QStringList());
    }

private:
    /// Creates something that can't be opened as a document, and returns its path.
    static QString make(const ProgramFolder &folder, const QString &trouble)
    {
        const QString path = folder.place(trouble + u".txt"_s);
        const QByteArray name = QFile::encodeName(path);
        if (trouble == u"folder"_s) {
            QDir().mkdir(path);
        } else if (trouble == u"dangling"_s) {
            QFile::link(folder.place(u"nowhere"_s), path);
        } else if (trouble == u"circle"_s) {
            QFile::link(folder.place(u"other"_s), path);
            QFile::link(path, folder.place(u"other"_s));
        } else if (trouble == u"pipe"_s) {
            ::mkfifo(name.constData(), 0600);
        } else if (trouble == u"secret"_s) {
            folder.write(trouble + u".txt"_s, "secret");
            QFile::setPermissions(path, QFile::Permissions());
        } else {
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || !file.resize(300'000'000)) // Sparse: it takes no space on the disk.
                qFatal("can't make %s", name.constData());
        }
        return path;
    }
};

ZEPHIRA_TEST(TstBadInput)
#include "tst_badinput.moc"
