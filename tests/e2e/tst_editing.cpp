// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QString untitled = u"Zephira - [New Document]"_s;
const QString openDialog = u"Open a document..."_s;
const QString saveDialog = u"Save a document..."_s;
const QString overwrite = u"Overwrite?"_s;
const QString modified = u"Document Modified."_s;
const QString message = u"Zephira"_s;
constexpr int patience = 20000;

QString captionOf(const QString &path)
{
    return RunningProgram::captionOf(path);
}

} // namespace

/// A document's life as a user leads it: by keys and dialogs, judged by the bytes on the disk and the window's caption.
class TstEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewDocumentIsSaved()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.type(untitled, u"one\ntwo"_s);
        program.key(untitled, u"ctrl+s"_s);
        const QString path = folder.place(u"first page.txt"_s);
        program.fillIn(saveDialog, path);
        QVERIFY(program.waitForWindow(captionOf(path)));
        QCOMPARE(ProgramFolder::read(path), "one\r\ntwo");
        // From now on the file is known, and saving asks nothing.
        program.type(captionOf(path), u"!"_s);
        program.key(captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "one\r\ntwo!", patience);
        QCOMPARE(program.waitForWindows({captionOf(path)}), QStringList{captionOf(path)});
    }

    void aNameWithoutAnExtensionGetsTheLanguages()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.type(untitled, u"x"_s);
        program.key(untitled, u"ctrl+s"_s);
        program.fillIn(saveDialog, folder.place(u"notes"_s));
        QVERIFY(program.waitForWindow(captionOf(folder.place(u"notes.txt"_s))));
        QCOMPARE(ProgramFolder::read(folder.place(u"notes.txt"_s)), "x");
    }

    void openEditSave_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("CR LF") << u"page.html"_s << QByteArray("a\r\nb\r\n") << QByteArray("[a\r\nb\r\n]");
        QTest::newRow("LF") << u"unix.txt"_s << QByteArray("a\nb\n") << QByteArray("[a\nb\n]");
        QTest::newRow("CR") << u"old.txt"_s << QByteArray("a\rb\r") << QByteArray("[a\rb\r]");
        QTest::newRow("mixed") << u"mixed.txt"_s << QByteArray("a\r\nb\nc\r") << QByteArray("[a\r\nb\nc\r]");
        QTest::newRow("empty") << u"empty.css"_s << QByteArray() << QByteArray("[]");
        QTest::newRow("blanks in the name") << u"two  words here.js"_s << QByteArray("x") << QByteArray("[x]");
        QTest::newRow("an apostrophe") << u"it's mine.txt"_s << QByteArray("x") << QByteArray("[x]");
        QTest::newRow("no extension") << u"README"_s << QByteArray("x") << QByteArray("[x]");
    }

    void openEditSave()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        ProgramFolder folder;
        const QString path = folder.write(u"site/"_s + name, before);
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"ctrl+o"_s);
        program.fillIn(openDialog, path);
        QVERIFY(program.waitForWindow(captionOf(path)));
        editBothEnds(program, captionOf(path));
        program.key(captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), after, patience);
    }

    void namesInEveryScript_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << u"a \"quoted\" 'page'.html"_s;
        QTest::newRow("Cyrillic") << u"Привет мир.html"_s;
        QTest::newRow("Japanese") << u"日本語.css"_s;
        QTest::newRow("beyond the first plane") << u"\U0001F600.txt"_s;
        QTest::newRow("percent and ampersand") << u"100%20 & more #1.html"_s;
    }

    void namesInEveryScript()
    {
        QFETCH(QString, name);
        ProgramFolder folder;
        const QString path = folder.write(name, "x\n");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(captionOf(path)));
        editBothEnds(program, captionOf(path));
        program.key(captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "[x\n]", patience);
    }

    void aNameCanBePasted()
    {
        ProgramFolder folder;
        const QString target = folder.place(u"Ærø søndag.txt"_s);
        const QString source = folder.write(u"name.txt"_s, target.toUtf8());
        RunningProgram program(folder, {source});
        QVERIFY(program.waitForWindow(captionOf(source)));
        program.key(captionOf(source), u"ctrl+a ctrl+c alt+f a"_s);
        QVERIFY(program.waitForWindow(saveDialog));
        program.key(saveDialog, u"ctrl+a ctrl+v Return"_s);
        QVERIFY(program.waitForWindow(captionOf(target)));
        QCOMPARE(ProgramFolder::read(target), target.toUtf8());
    }

    void anExistingFileIsAskedAbout_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<bool>("again"); // The save dialog comes back.
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
        const QString caption = saved ? captionOf(path) : untitled;
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        QCOMPARE(ProgramFolder::read(path), saved ? "new" : "old");
        program.close(caption);
        if (!saved)
            program.answer(modified, u"alt+n"_s);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void aSaveThatFailsKeepsFileAndText_data()
    {
        QTest::addColumn<QString>("trouble");
        for (const char *trouble : {"read-only file", "read-only folder", "no folder", "full disk"})
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
        QVERIFY(program.waitForWindow(captionOf(path)));
        program.type(captionOf(path), u"new "_s);
        if (full)
            program.limitFileSize(8192);
        else if (trouble == u"read-only file"_s)
            QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
        else if (trouble == u"read-only folder"_s)
            QVERIFY(QFile::setPermissions(site, QFile::ReadOwner | QFile::ExeOwner));
        else
            QVERIFY(QDir().rename(site, folder.place(u"elsewhere"_s)));

        program.key(captionOf(path), u"ctrl+s"_s);
        program.answer(message, u"Return"_s);
        QVERIFY(program.waitUntilGone(message));
        // Neither a part of the new text nor a temporary file is left behind.
        const QDir now(trouble == u"no folder"_s ? folder.place(u"elsewhere"_s) : site);
        QCOMPARE(now.entryList(QDir::Files | QDir::Hidden), QStringList{u"page.txt"_s});
        QCOMPARE(ProgramFolder::read(now.filePath(u"page.txt"_s)), old);
        QVERIFY(QFile::setPermissions(now.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

        // The document is still modified, and saving it elsewhere works.
        program.close(captionOf(path));
        program.answer(modified, u"Escape"_s);
        QVERIFY(program.waitUntilGone(modified));
        if (full)
            program.limitFileSize(1000000);
        program.key(captionOf(path), u"alt+f a"_s);
        program.fillIn(saveDialog, folder.place(u"rescued.txt"_s));
        QVERIFY(program.waitForWindow(captionOf(folder.place(u"rescued.txt"_s))));
        QCOMPARE(ProgramFolder::read(folder.place(u"rescued.txt"_s)), "new " + old);
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
        QVERIFY(program.waitForWindow(captionOf(sign)));
        program.key(captionOf(sign), u"ctrl+a ctrl+c ctrl+o"_s);
        program.fillIn(openDialog, path);
        QVERIFY(program.waitForWindow(captionOf(path)));
        program.key(captionOf(path), u"ctrl+v ctrl+s"_s);
        program.answer(message, keys);
        QVERIFY(program.waitUntilGone(message));
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
        QVERIFY(program.waitForWindow(captionOf(path)));
        folder.write(u"page.txt"_s, "of another program");
        program.type(captionOf(path), u"still "_s);
        program.key(captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "still mine", patience);
        const QStringList copies = folder.recoveryCopies();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(ProgramFolder::read(copies.first()), "of another program");
    }

    void closingAsks_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<bool>("ends");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("yes") << u"alt+y"_s << true << QByteArray("new old");
        QTest::newRow("no") << u"alt+n"_s << true << QByteArray("old");
        QTest::newRow("cancel") << u"Escape"_s << false << QByteArray("old");
    }

    void closingAsks()
    {
        QFETCH(QString, keys);
        QFETCH(bool, ends);
        QFETCH(QByteArray, after);
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "old");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(captionOf(path)));
        program.type(captionOf(path), u"new "_s);
        program.close(captionOf(path));
        program.answer(modified, keys);
        if (ends) {
            QCOMPARE(program.waitForEnd(), 0);
            QCOMPARE(folder.recoveryCopies(), QStringList());
        } else {
            QCOMPARE(program.waitForWindows({captionOf(path)}), QStringList{captionOf(path)});
            QVERIFY(program.isRunning());
        }
        QCOMPARE(ProgramFolder::read(path), after);
    }

    void closingGoesOnWhenTheSaveIsGivenUp()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.type(untitled, u"never saved"_s);
        program.close(untitled);
        program.answer(modified, u"alt+y"_s);
        program.answer(saveDialog, u"Escape"_s);
        QCOMPARE(program.waitForEnd(), 0);
        // The text has no file, but the next session can still find it.
        const QStringList copies = folder.recoveryCopies();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(ProgramFolder::read(copies.first()), "never saved");
    }

    void aNewDocumentAsksFirst_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<bool>("goesOn");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("yes") << u"alt+y"_s << true << QByteArray("new old");
        QTest::newRow("no") << u"alt+n"_s << true << QByteArray("old");
        QTest::newRow("cancel") << u"Escape"_s << false << QByteArray("old");
    }

    void aNewDocumentAsksFirst()
    {
        QFETCH(QString, keys);
        QFETCH(bool, goesOn);
        QFETCH(QByteArray, after);
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "old");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(captionOf(path)));
        program.type(captionOf(path), u"new "_s);
        program.key(captionOf(path), u"ctrl+n"_s);
        program.answer(modified, keys);
        const QString caption = goesOn ? untitled : captionOf(path);
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        QCOMPARE(ProgramFolder::read(path), after);
        program.close(caption);
        if (!goesOn)
            program.answer(modified, u"alt+n"_s);
        QCOMPARE(program.waitForEnd(), 0); // The new document is empty and unmodified, so that nothing is asked.
    }

    void exitLosesTheTextWithoutAWord()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "old");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(captionOf(path)));
        program.type(captionOf(path), u"new "_s);
        program.key(captionOf(path), u"alt+f e"_s);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(ProgramFolder::read(path), "old");
        QCOMPARE(folder.recoveryCopies(), QStringList());
    }

    void aTemplateIsKept()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"page.html"_s, "<p>\n");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(captionOf(path)));
        program.type(captionOf(path), u"x"_s);
        program.key(captionOf(path), u"alt+f t"_s);
        program.fillIn(u"Save as Template"_s, u"mine.html"_s);
        const QString kept = folder.path() + u"/templates/custom/mine.html"_s;
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(kept), "x<p>\n", patience);
        QCOMPARE(ProgramFolder::read(path), "<p>\n"); // The document itself is neither saved nor renamed.
        program.key(captionOf(path), u"ctrl+t"_s);
        program.answer(modified, u"alt+n"_s);
        program.answer(u"Select Template"_s, u"Escape"_s);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
    }

    void aTemplateNeedsAName()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"alt+f t"_s);
        program.answer(u"Save as Template"_s, u"Return"_s);
        program.answer(message, u"Return"_s);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
    }

private:
    static void editBothEnds(const RunningProgram &program, const QString &caption)
    {
        program.key(caption, u"ctrl+Home bracketleft ctrl+End bracketright"_s);
    }
};

ZEPHIRA_TEST(TstEditing)
#include "tst_editing.moc"
