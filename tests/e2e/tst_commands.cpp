// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "files/iniconfiguration.h"
#include "support/testregistry.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QUrl>

#include <csignal>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

/// A process that was started by the program. It is ended together with the test, not with the program.
class StartedProcess
{
public:
    StartedProcess() = default;
    StartedProcess(const StartedProcess &) = delete;
    ~StartedProcess()
    {
        if (m_pid > 0)
            ::kill(m_pid, SIGKILL);
    }

    /// Waits for another process of the same executable besides the known one.
    bool waitFor(const ProgramFolder &folder, qint64 known)
    {
        m_executable = folder.executable();
        m_known = known;
        return QTest::qWaitFor([&] { return find(); }, patience);
    }
    /// Waits until the process shows a window with that title; returns the window's state as the window manager reports
    /// it.
    QByteArray windowState(const QString &title)
    {
        QByteArray state;
        // The window manager sets the state a moment after the window is shown.
        const bool told = QTest::qWaitFor(
            [&] {
                // What was found first may have been a fork on the way to the new process.
                find();
                const QByteArray window = outputOf(u"xdotool"_s,
                                                   {u"search"_s, u"--all"_s, u"--pid"_s, QString::number(m_pid),
                                                    u"--name"_s, u'^' + QRegularExpression::escape(title) + u'$'});
                if (!window.isEmpty())
                    state = outputOf(u"xprop"_s, {u"-id"_s, QString::fromLatin1(window), u"WM_STATE"_s});
                return state.contains("window state:");
            },
            patience);
        return told ? state : QByteArray();
    }

private:
    /// Looks for the process among those that run now.
    bool find()
    {
        m_pid = 0;
        const QStringList entries = QDir(u"/proc"_s).entryList(QDir::Dirs);
        for (const QString &entry : entries) {
            const int pid = entry.toInt();
            if (pid > 0 && pid != m_known && QFile::symLinkTarget(u"/proc/"_s + entry + u"/exe"_s) == m_executable)
                m_pid = pid;
        }
        return m_pid > 0;
    }

    static QByteArray outputOf(const QString &command, const QStringList &arguments)
    {
        QProcess process;
        process.start(command, arguments);
        process.waitForFinished();
        return process.readAllStandardOutput().trimmed();
    }

    QString m_executable;
    qint64 m_known = 0;
    int m_pid = 0;
};

} // namespace

/// Commands in the real window, given by keys alone.
class TstCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Keys in the code view of a document, and the file that is saved afterwards.
    void keys_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *title, const char *name, const char *before, const char *keys,
                            const char *after) {
            QTest::newRow(title) << QString::fromLatin1(name) << QByteArray(before) << QString::fromLatin1(keys)
                                 << QByteArray(after);
        };
        row("copy and paste", "a.txt", "ab\n", "ctrl+a ctrl+c ctrl+End ctrl+v", "ab\nab\n");
        row("cut and paste", "a.txt", "ab", "shift+Right ctrl+x ctrl+End ctrl+v", "ba");
        row("paste over a selection", "a.txt", "ab", "shift+Right ctrl+c ctrl+a ctrl+v ctrl+v", "aa");
        row("delete a selection", "a.txt", "abc", "shift+Right shift+Right Delete", "c");
        row("delete a character", "a.txt", "abc", "Delete Delete", "c");
        row("undo", "a.txt", "abc", "x ctrl+a Delete ctrl+z", "xabc");
        row("an abbreviation", "a.html", "ul>li*2", "ctrl+End ctrl+e x Tab y",
            "<ul>\r\n\t<li>x</li>\r\n\t<li>y</li>\r\n</ul>");
        row("an abbreviation taken back", "a.html", "x ul>li", "ctrl+End ctrl+e ctrl+z y", "x ul>liy");
        row("wrapping", "a.html", "x", "ctrl+a ctrl+shift+e i Return y", "<i>x</i>y");
        row("wrapping given up", "a.html", "x", "ctrl+a ctrl+shift+e i Escape y", "y");
        row("undo and redo", "a.txt", "abc", "ctrl+a Delete x ctrl+z ctrl+z ctrl+y", "");
        row("start tag keeps the selection in front", "a.html", "ab", "shift+Right shift+Delete", "a<>b");
        row("no tags in a text", "a.txt", "ab", "shift+Right shift+Delete", "ab");
        row("the web viewer's key selects nothing", "a.txt", "word", "ctrl+w Escape x", "xword");
        row("through the views and back", "a.txt", "b", "F8 F8 F8 a", "ab");
        row("highlighting changes no text", "a.txt", "b", "ctrl+h a ctrl+h a", "aab");
    }

    void keys()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, before);
        QFETCH(QString, keys);
        QFETCH(QByteArray, after);
        ProgramFolder folder;
        const QString path = folder.write(name, before);
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.key(caption, keys + u" ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), after, patience);
        // Only the final content counts: not what was on the disk for a moment, and nothing changed after the save.
        QCOMPARE(program.waitForWindows({caption}), QStringList{caption});
        program.close(caption);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(ProgramFolder::read(path), after);
    }

    void timeAndDate()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"a.txt"_s, "now: ");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        const QByteArray before = stamp();
        program.key(caption, u"ctrl+a F5 ctrl+s"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(path).size() > 5, patience);
        const QByteArray written = ProgramFolder::read(path);
        QVERIFY2(written == "now: " + before || written == "now: " + stamp(), written.constData());
    }

    void findAndFindNext()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"a.txt"_s, "one two one two one\n");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.key(caption, u"ctrl+f"_s);
        QVERIFY(program.waitForWindow(u"Find"_s));
        program.type(u"Find"_s, u"two\n"_s);
        program.key(u"Find"_s, u"Escape"_s);
        QVERIFY(program.waitUntilGone(u"Find"_s));
        program.key(caption, u"F3 x ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "one two one x one\n", patience);
    }

    void replaceAll()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"a.txt"_s, "one two one\n");
        const QString caption = RunningProgram::captionOf(path);
        const QString dialog = u"Find and Replace"_s;
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.key(caption, u"ctrl+r"_s);
        QVERIFY(program.waitForWindow(dialog));
        program.type(dialog, u"one\t1"_s);
        program.key(dialog, u"alt+l Escape"_s);
        QVERIFY(program.waitUntilGone(dialog));
        program.key(caption, u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "1 two 1\n", patience);
    }

    void goToALine()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"a.txt"_s, "a\nb\nc\n");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.key(caption, u"ctrl+g"_s);
        program.fillIn(u"Go To Line"_s, u"3"_s);
        QVERIFY(program.waitUntilGone(u"Go To Line"_s));
        program.key(caption, u"x ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path), "a\nb\nxc\n", patience);
    }

    void highlightingIsRemembered()
    {
        ProgramFolder folder;
        folder.setIni(u"options"_s, u"highlight"_s, u"1"_s);
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"ctrl+h"_s);
        QTRY_COMPARE_WITH_TIMEOUT(highlight(folder), u"0"_s, patience);
        program.key(untitled, u"ctrl+h"_s);
        QTRY_COMPARE_WITH_TIMEOUT(highlight(folder), u"1"_s, patience);
    }

    void theFontDialogIsGivenUp()
    {
        ProgramFolder folder;
        const QByteArray ini = ProgramFolder::read(folder.ini());
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"F7"_s);
        program.answer(u"Select Font"_s, u"Escape"_s);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        QCOMPARE(ProgramFolder::read(folder.ini()), ini);
    }

    void theChosenFontIsRemembered()
    {
        ProgramFolder folder;
        folder.setIni(u"font"_s, u"size"_s, u"11"_s);
        folder.setIni(u"font"_s, u"bold"_s, u"no"_s); // Not one of the two valid words; the dialog writes a valid one.
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"F7"_s);
        program.answer(u"Select Font"_s, u"Return"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ReadIni(u"Font"_s, u"Bold"_s, folder.ini()), u"False"_s, patience);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        QCOMPARE(ReadIni(u"Font"_s, u"Size"_s, folder.ini()), u"11"_s);
    }

    /// Chosen by the keyboard alone, in effect at once and in the next process.
    void chosenKeysOutliveTheProgram()
    {
        ProgramFolder folder;
        const QString options = u"Options"_s;
        const QString about = u"About Zephira"_s;
        {
            RunningProgram program(folder, {u"/nodialog"_s});
            QVERIFY(program.waitForWindow(untitled));
            program.key(untitled, u"F6"_s);
            program.answer(about, u"Escape"_s);
            QVERIFY(program.waitUntilGone(about));
            program.key(untitled, u"alt+o Return"_s);
            QVERIFY(program.waitForWindow(options));
            program.key(options, u"End Tab"_s);
            program.type(options, u"help about"_s);
            program.key(options, u"Tab space Tab ctrl+shift+b Return Tab Return"_s);
            QVERIFY(program.waitUntilGone(options));
            program.key(untitled, u"ctrl+shift+b"_s);
            program.answer(about, u"Escape"_s);
            QVERIFY(program.waitUntilGone(about));
            program.close(untitled);
            QCOMPARE(program.waitForEnd(), 0);
        }
        const QByteArray ini = ProgramFolder::read(folder.ini());
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"F6"_s);
        QVERIFY(program.waitUntilIdle());
        QCOMPARE(program.windows(), QStringList{untitled});
        program.key(untitled, u"ctrl+shift+b"_s);
        program.answer(about, u"Escape"_s);
        QCOMPARE(ProgramFolder::read(folder.ini()), ini);
        QVERIFY(!ini.contains("Ctrl+Shift+B"));
    }

    /// The desktop's own dialog proposes the file's name, or one for a text that has no file.
    void printingIntoAFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("proposed");
        QTest::newRow("no file yet") << QString() << u"Untitled.pdf"_s;
        QTest::newRow("a page") << u"page.html"_s << u"page.pdf"_s;
        QTest::newRow("no suffix") << u"Makefile"_s << u"Makefile.pdf"_s;
    }

    void printingIntoAFile()
    {
        QFETCH(QString, name);
        QFETCH(QString, proposed);
        ProgramFolder folder;
        const QString path = name.isEmpty() ? QString() : folder.write(name, "text");
        const QString caption = path.isEmpty() ? untitled : RunningProgram::captionOf(path);
        RunningProgram program(folder, {path.isEmpty() ? u"/nodialog"_s : path});
        QVERIFY(program.waitForWindow(caption));
        program.type(caption, u"words"_s);
        program.key(caption, u"ctrl+p"_s);
        program.answer(u"Print"_s, u"Return"_s);
        const auto isThere = [&] { return ProgramFolder::read(folder.home() + u'/' + proposed).startsWith("%PDF"); };
        QVERIFY2(QTest::qWaitFor(isThere, patience), qPrintable(QDir(folder.home()).entryList(QDir::Files).join(u' ')));
    }

    void aSecondWindowIsASecondProcess()
    {
        ProgramFolder folder;
        folder.setTips(true); // The second window shows neither tip nor start dialog.
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.type(untitled, u"text of the first"_s);
        program.key(untitled, u"F12"_s);
        StartedProcess second;
        QVERIFY(second.waitFor(folder, program.pid()));
        const QByteArray state = second.windowState(untitled);
        QVERIFY2(state.contains("window state:"), state.constData());
        QVERIFY(program.isRunning());
    }

    void helpIsShownByTheDesktop_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("page");
        QTest::newRow("code view") << QString() << untitled << u"code-view.html"_s;
        QTest::newRow("modal form") << u"F6"_s << u"About Zephira"_s << u"about.html"_s;
    }

    void helpIsShownByTheDesktop()
    {
        QFETCH(QString, first);
        QFETCH(QString, window);
        QFETCH(QString, page);
        ProgramFolder folder;
        folder.write(u"zephira/help/"_s + page, ProgramFolder::read(QStringLiteral(ZEPHIRA_HANDBOOK) + u'/' + page));
        const QString told = folder.place(u"told"_s);
        const QString opener =
            folder.write(u"tools/xdg-open"_s, "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"" + told.toUtf8() + "\"\n");
        QVERIFY(QFile::setPermissions(opener, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        if (!first.isEmpty()) {
            program.key(untitled, first);
            QVERIFY(program.waitForWindow(window));
        }
        program.key(window, u"F1"_s);
        QTRY_VERIFY_WITH_TIMEOUT(ProgramFolder::read(told).endsWith('\n'), patience);
        const QString shown = QUrl(QString::fromUtf8(ProgramFolder::read(told).trimmed())).path();
        QCOMPARE(shown, folder.path() + u"/help/"_s + page);
        QVERIFY(ProgramFolder::read(shown).contains("<h1>"));
        if (!first.isEmpty())
            program.answer(window, u"Escape"_s);
    }

    void aboutShows()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"F6"_s);
        program.answer(u"About Zephira"_s, u"Escape"_s);
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        QVERIFY(program.isRunning());
    }

    void theReadMeFileShowsBesideTheDocument()
    {
        ProgramFolder folder;
        RunningProgram program(folder, {u"/nodialog"_s});
        QVERIFY(program.waitForWindow(untitled));
        program.key(untitled, u"alt+h r"_s);
        QVERIFY(program.waitForWindow(u"QuickView"_s));
        program.type(untitled, u"x"_s); // It isn't modal.
        program.close(untitled);
        program.answer(modified, u"alt+n"_s);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void theTableWizardWritesIntoTheDocument()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"a.html"_s, "");
        const QString caption = RunningProgram::captionOf(path);
        const QString wizard = u"Table Wizard ..."_s;
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        // Below it are the web viewer, the statement wizard, the text wizard and the wizard for text files.
        program.key(caption, u"alt+t Up Up Up Up Up Return"_s);
        QVERIFY(program.waitForWindow(wizard));
        program.key(wizard, u"Return"_s);
        QVERIFY(program.waitUntilGone(wizard));
        program.key(caption, u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(path),
                                  "<TABLE Align=\"center\" Border=\"0\">\r\n<TR>\r\n<TD> </TD>\r\n\t</TR></TABLE>\r\n",
                                  patience);
    }

private:
    static QString highlight(const ProgramFolder &folder)
    {
        return ReadIni(u"options"_s, u"highlight"_s, folder.ini());
    }

    static QByteArray stamp()
    {
        const QDateTime now = QDateTime::currentDateTime();
        const QLocale system = QLocale::system();
        return (system.toString(now.time(), QLocale::ShortFormat) + u' '
                + system.toString(now.date(), QLocale::ShortFormat))
            .toUtf8();
    }
};

ZEPHIRA_TEST(TstCommands)
#include "tst_commands.moc"
