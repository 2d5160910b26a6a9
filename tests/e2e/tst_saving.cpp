// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

/// Saves with an obstacle: a file that exists, that can't be written, or that another program has changed.
class TstSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anExistingFileIsAskedAbout_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<bool>("again"); // The save dialog opens again.
        QTest::addColumn<bool>("saved");
        QTest::newRow("yes") << u"alt+y"_s << false << true;
        QTest::newRow("no") << u"alt+n"_s << true << false;
        QTest::newRow("cancel") << u"Escape"_s << false << false;
    }

    void anExistingFileIsAskedAbout()
    {
        QFETCH(QString, keys);
        QFETCH(bool, again);
        QFETCH(bool, saved);
        ProgramFolder folder;
        const QString path = folder.write(u"there.txt"_s, "old");
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.type(untitled, u"new"_s);
        program.key(untitled, u"ctrl+s"_s);
        program.fillIn(saveDialog, path);
        program.answer(overwrite, keys);
        QVERIFY(program.waitUntilGone(overwrite));
        if (again)
            program.answer(saveDialog, u"Escape"_s);
        const QString caption = saved ? RunningProgram::captionOf(path) : untitled;
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        QCOMPARE(ProgramFolder::read(path), saved ? "new" : "old");
        // The desktop lists what was saved under a name.
        const QString recent = folder.home() + u"/.local/share/recently-used.xbel"_s;
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(recent).contains(path.toUtf8() + '"'), saved, patience);
        program.close(caption);
        if (!saved)
            program.answer(modified, u"alt+n"_s);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void aSaveThatFailsKeepsFileAndText_data()
    {
        QTest::addColumn<QString>("trouble");
        for (const char *trouble : {"read-only file", "no folder", "full disk"})
            QTest::newRow(trouble) << QString::fromLatin1(trouble);
    }

    void aSaveThatFailsKeepsFileAndText()
    {
        QFETCH(QString, trouble);
        const bool full = trouble == u"full disk"_s;
        ProgramFolder folder;
        const QByteArray old(20000, 'x');
        const QString path = folder.write(u"site/page.txt"_s, old);
        const QString site = QFileInfo(path).path();
        RunningProgram program(folder, {path},
                               full ? RunningProgram::withoutSizeSignal() : RunningProgram::boundByPermissions());
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        program.type(RunningProgram::captionOf(path), u"new "_s);
        if (full)
            program.limitFileSize(8192);
        else if (trouble == u"read-only file"_s)
            QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
        else
            QVERIFY(QDir().rename(site, folder.place(u"elsewhere"_s)));

        program.key(RunningProgram::captionOf(path), u"ctrl+s"_s);
        program.answer(message, u"Return"_s);
        QVERIFY(program.waitUntilGone(message));
        // Neither part of the new text nor a temporary file is left behind.
        const QDir now(trouble == u"no folder"_s ? folder.place(u"elsewhere"_s) : site);
        QCOMPARE(now.entryList(QDir::Files | QDir::Hidden), QStringList{u"page.txt"_s});
        QCOMPARE(ProgramFolder::read(now.filePath(u"page.txt"_s)), old);
        QVERIFY(QFile::setPermissions(now.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

        // The document is still modified, and saving it elsewhere works.
        program.close(RunningProgram::captionOf(path));
        program.answer(modified, u"Escape"_s);
        QVERIFY(program.waitUntilGone(modified));
        if (full)
            program.limitFileSize(1000000);
        program.key(RunningProgram::captionOf(path), u"alt+f a"_s);
        program.fillIn(saveDialog, folder.place(u"rescued.txt"_s));
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(folder.place(u"rescued.txt"_s))));
        QCOMPARE(ProgramFolder::read(folder.place(u"rescued.txt"_s)), "new " + old);
    }

    void aSaveAsThatFailsIsTold_data()
    {
        QTest::addColumn<QString>("place");
        QTest::newRow("read-only folder") << u"closed/page.txt"_s;
        QTest::newRow("read-only file") << u"site/locked.txt"_s;
        QTest::newRow("no folder") << u"none/page.txt"_s;
        QTest::newRow("full disk") << u"site/page.txt"_s;
        QTest::newRow("no disk") << u"/dev/full"_s;
    }

    /// In a box, whatever the reason; the text stays, and a close that goes on all the same leaves a copy.
    void aSaveAsThatFailsIsTold()
    {
        QFETCH(QString, place);
        const bool isFull = QByteArray(QTest::currentDataTag()) == "full disk";
        ProgramFolder folder;
        const QString locked = folder.write(u"site/locked.txt"_s, "old");
        const QString closed = QFileInfo(folder.write(u"closed/other.txt"_s, "other")).path();
        QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner));
        QVERIFY(QFile::setPermissions(closed, QFile::ReadOwner | QFile::ExeOwner));
        const QString path = place.startsWith(u'/') ? place : folder.place(place);
        RunningProgram program(folder, {u"/nodialog"_s},
                               isFull ? RunningProgram::withoutSizeSignal() : RunningProgram::boundByPermissions());
        QVERIFY(program.waitForWindow(untitled));
        program.type(untitled, u"new text"_s);
        const auto fail = [&] {
            program.fillIn(saveDialog, path);
            if (QFile::exists(path))
                program.answer(overwrite, u"alt+y"_s);
            QVERIFY(program.waitForWindow(message));
            if (isFull)
                program.limitFileSize(1000000);
            program.key(message, u"Return"_s);
            QVERIFY(program.waitUntilGone(message));
        };
        if (isFull)
            program.limitFileSize(4);
        program.key(untitled, u"alt+f a"_s);
        fail();
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        QVERIFY(program.isRunning());
        if (isFull)
            program.limitFileSize(4);
        program.close(untitled);
        program.answer(modified, u"alt+y"_s);
        fail();
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(folder.recoveryCopies().size(), 1);
        QCOMPARE(ProgramFolder::read(folder.recoveryCopies().first()), "new text");
        QCOMPARE(ProgramFolder::read(locked), "old");
        QVERIFY(QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        for (const QString &name : {u"site"_s, u"closed"_s})
            QCOMPARE(QDir(folder.place(name)).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void aFolderThatAllowsNoNewFilesIsWrittenInPlace()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"site/page.txt"_s, "old");
        const QString site = QFileInfo(path).path();
        RunningProgram program(folder, {path}, RunningProgram::boundByPermissions());
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        program.type(RunningProgram::captionOf(path), u"new "_s);
        QVERIFY(QFile::setPermissions(site, QFile::ReadOwner | QFile::ExeOwner));
        program.key(RunningProgram::captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE(ProgramFolder::read(path), QByteArray("new old"));
        QVERIFY(QFile::setPermissions(site, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(QDir(site).entryList(QDir::Files | QDir::Hidden), QStringList{u"page.txt"_s});
        program.close(RunningProgram::captionOf(path));
        QCOMPARE(program.waitForEnd(), 0);
    }

    void aCharacterThatTheFileCannotHoldIsAskedAbout_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("no") << u"alt+n"_s << QByteArray("\xE9");
        QTest::newRow("yes") << u"alt+y"_s << QByteArray("\xE2\x88\x80\xC3\xA9");
    }

    void aCharacterThatTheFileCannotHoldIsAskedAbout()
    {
        QFETCH(QString, keys);
        QFETCH(QByteArray, after);
        ProgramFolder folder;
        const QString path = folder.write(u"old.txt"_s, "\xE9");
        const QString sign = folder.write(u"sign.txt"_s, "\xE2\x88\x80");
        RunningProgram program(folder, {sign});
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(sign)));
        program.key(RunningProgram::captionOf(sign), u"ctrl+a ctrl+c ctrl+o"_s);
        program.fillIn(openDialog, path);
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        program.key(RunningProgram::captionOf(path), u"ctrl+v ctrl+s"_s);
        QVERIFY(program.waitForWindow(message));
        const QString question = program.windowId(message);
        program.key(message, keys);
        QTRY_VERIFY_WITH_TIMEOUT(program.windowId(message) != question, patience);
        if (after.size() == 1) {
            program.answer(message, u"Return"_s); // It says that the file was not saved, and why.
            QVERIFY(program.waitUntilGone(message));
        }
        QCOMPARE(ProgramFolder::read(path), after);
    }

    void whatAnotherProgramWroteIsKept()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "mine");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        folder.write(u"page.txt"_s, "of another program");
        program.type(RunningProgram::captionOf(path), u"still "_s);
        program.key(RunningProgram::captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "still mine", patience);
        const QStringList copies = folder.recoveryCopies();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(ProgramFolder::read(copies.first()), "of another program");
    }
};

ZEPHIRA_TEST(TstSaving)
#include "tst_saving.moc"
