// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

/// Creating, editing and saving documents with keys and dialogs, judged by the bytes on the disk and the window's
/// caption.
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
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        QCOMPARE(ProgramFolder::read(path), "one\r\ntwo");
        // Now that the document has a file, saving asks nothing.
        program.type(RunningProgram::captionOf(path), u"!"_s);
        program.key(RunningProgram::captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "one\r\ntwo!", patience);
        QCOMPARE(program.waitForWindows({RunningProgram::captionOf(path)}),
                 QStringList{RunningProgram::captionOf(path)});
    }

    void aNameWithoutAnExtensionGetsTheLanguages()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.type(untitled, u"x"_s);
        program.key(untitled, u"ctrl+s"_s);
        program.fillIn(saveDialog, folder.place(u"notes"_s));
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(folder.place(u"notes.txt"_s))));
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
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        editBothEnds(program, RunningProgram::captionOf(path));
        program.key(RunningProgram::captionOf(path), u"ctrl+s"_s);
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
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        editBothEnds(program, RunningProgram::captionOf(path));
        program.key(RunningProgram::captionOf(path), u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "[x\n]", patience);
    }

    void aNameCanBePasted()
    {
        ProgramFolder folder;
        const QString target = folder.place(u"Ærø søndag.txt"_s);
        const QString source = folder.write(u"name.txt"_s, target.toUtf8());
        RunningProgram program(folder, {source});
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(source)));
        program.key(RunningProgram::captionOf(source), u"ctrl+a ctrl+c alt+f a"_s);
        QVERIFY(program.waitForWindow(saveDialog));
        program.key(saveDialog, u"ctrl+a ctrl+v Return"_s);
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(target)));
        QCOMPARE(ProgramFolder::read(target), target.toUtf8());
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
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        program.type(RunningProgram::captionOf(path), u"new "_s);
        program.close(RunningProgram::captionOf(path));
        program.answer(modified, keys);
        if (ends) {
            QCOMPARE(program.waitForEnd(), 0);
            QCOMPARE(folder.recoveryCopies(), QStringList());
        } else {
            QCOMPARE(program.waitForWindows({RunningProgram::captionOf(path)}),
                     QStringList{RunningProgram::captionOf(path)});
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
        // The text has no file, but the next session can still recover it.
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
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        program.type(RunningProgram::captionOf(path), u"new "_s);
        program.key(RunningProgram::captionOf(path), u"ctrl+n"_s);
        program.answer(modified, keys);
        const QString caption = goesOn ? untitled : RunningProgram::captionOf(path);
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        QCOMPARE(ProgramFolder::read(path), after);
        program.close(caption);
        if (!goesOn)
            program.answer(modified, u"alt+n"_s);
        QCOMPARE(program.waitForEnd(), 0); // The new document is empty and unmodified, so nothing is asked.
    }

    void exitLosesTheTextWithoutAWord()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "old");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        program.type(RunningProgram::captionOf(path), u"new "_s);
        program.key(RunningProgram::captionOf(path), u"alt+f e"_s);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(ProgramFolder::read(path), "old");
        QCOMPARE(folder.recoveryCopies(), QStringList());
    }

    void aTemplateIsKept()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "<p>\n");
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(RunningProgram::captionOf(path)));
        program.type(RunningProgram::captionOf(path), u"x"_s);
        program.key(RunningProgram::captionOf(path), u"alt+f t"_s);
        program.fillIn(u"Save as Template"_s, u"mine.html"_s);
        const QString kept = folder.path() + u"/templates/custom/mine.html"_s;
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(kept), "x<p>\n", patience);
        QCOMPARE(ProgramFolder::read(path), "<p>\n"); // The document itself is neither saved nor renamed.
        program.key(RunningProgram::captionOf(path), u"ctrl+t"_s);
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
