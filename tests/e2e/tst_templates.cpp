// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

const QString chooser = u"Select Template"_s;

} // namespace

/// The start dialog, with the keys of a user who has no mouse.
class TstTemplates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTemplateBecomesTheDocument()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        openChooser(program);
        program.key(chooser, u"Tab Tab space"_s); // The second button.
        QVERIFY(program.waitUntilGone(chooser));
        QCOMPARE(saved(program, folder), ProgramFolder::read(folder.path() + u"/templates/faq.html"_s));
    }

    void aStyleSheetBecomesTheDocument()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        openChooser(program);
        program.key(chooser, u"Right Right Tab space"_s);
        QVERIFY(program.waitUntilGone(chooser));
        QCOMPARE(saved(program, folder), ProgramFolder::read(folder.path() + u"/templates/coolblue.css"_s));
    }

    void theSwitchIsWrittenAtOnce()
    {
        ProgramFolder folder;
        folder.setIni(u"startup"_s, u"selprj"_s, u"0"_s);
        RunningProgram program(folder, {u"/nodialog"_s});
        openChooser(program);
        program.key(chooser, u"shift+Tab shift+Tab space"_s); // Cancel and, before it, the check box.
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(folder.ini()).contains("selprj=1"), patience);
        program.key(chooser, u"Tab space"_s);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
    }

    void aTemplateIsRenamed()
    {
        ProgramFolder folder;
        const QDir custom = onlyTemplate(folder, "first");
        RunningProgram program(folder, {u"/nodialog"_s});
        openRenaming(program);
        program.type(chooser, u"other.html\n"_s);
        QTRY_COMPARE_WITH_TIMEOUT(custom.entryList(QDir::Files), QStringList{u"other.html"_s}, patience);
        QCOMPARE(ProgramFolder::read(custom.filePath(u"other.html"_s)), "first");
        program.key(chooser, u"Return"_s);
        QVERIFY(program.waitUntilGone(chooser));
        QCOMPARE(saved(program, folder), "first");
    }

    void aNameThatLeadsOutOfTheFolderIsRefused()
    {
        ProgramFolder folder;
        const QDir custom = onlyTemplate(folder, "first");
        RunningProgram program(folder, {u"/nodialog"_s});
        openRenaming(program);
        program.type(chooser, u"../up.html\n"_s);
        // The message has the dialog's title. Without it, this key would take the template and close the dialog.
        program.key(chooser, u"Return"_s);
        QCOMPARE(program.waitForWindows({untitled, chooser}), (QStringList{chooser, untitled}));
        program.key(chooser, u"Escape"_s);
        QVERIFY(program.waitUntilGone(chooser));
        QCOMPARE(custom.entryList(QDir::Files), QStringList{u"mine.html"_s});
        QVERIFY(!QFile::exists(folder.path() + u"/templates/up.html"_s));
    }

    void aTemplateRenamedToItsOwnNameIsKept()
    {
        ProgramFolder folder;
        const QDir custom = onlyTemplate(folder, "first");
        RunningProgram program(folder, {u"/nodialog"_s});
        openRenaming(program);
        program.key(chooser, u"Return"_s);
        QTRY_COMPARE_WITH_TIMEOUT(custom.entryList(QDir::Files), QStringList(), patience);
        const QStringList copies = folder.recoveryCopies();
        QCOMPARE(copies.size(), 1);
        QCOMPARE(ProgramFolder::read(copies.first()), "first");
    }

private:
    static void openChooser(const RunningProgram &program)
    {
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"ctrl+t"_s);
        QVERIFY(program.waitForWindow(chooser));
    }

    /// Opens the label of the first template of the user's own.
    static void openRenaming(const RunningProgram &program)
    {
        openChooser(program);
        program.key(chooser, u"Right Right Right Right Right Tab Down F2 ctrl+a"_s);
    }

    /// Leaves one template in the user's folder, mine.html, and returns the folder.
    static QDir onlyTemplate(const ProgramFolder &folder, const QByteArray &content)
    {
        QDir custom(folder.path() + u"/templates/custom"_s);
        const QStringList shipped = custom.entryList(QDir::Files);
        for (const QString &name : shipped)
            custom.remove(name);
        folder.write(u"zephira/templates/custom/mine.html"_s, content);
        return custom;
    }

    /// Saves the new document and returns its bytes, without the carriage returns.
    static QByteArray saved(const RunningProgram &program, const ProgramFolder &folder)
    {
        const QString file = folder.place(u"saved.txt"_s);
        program.key(untitled, u"ctrl+s"_s);
        program.fillIn(saveDialog, file);
        if (!program.waitForWindow(RunningProgram::captionOf(file)))
            return {};
        return ProgramFolder::read(file).replace("\r\n", "\n");
    }
};

ZEPHIRA_TEST(TstTemplates)
#include "tst_templates.moc"
