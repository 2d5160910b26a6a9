// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/recoverybar.h"
#include "app/sessionend.h"
#include "app/statuspanels.h"
#include "app/windowbench.h"
#include "app/windowend.h"
#include "panes/sidepane.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolBar>

#include <cerrno>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstFrmmain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPartIsThereOnce_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {"rt",        "cboLang",       "PrjPath",   "cmdprojpath", "DRV",         "DIR",       "ListFiles",
              "file",      "Frame1",        "workspace", "toolpane",    "tBar",        "Toolbar1",  "Toolbar2",
              "FontCombo", "FontSizeCombo", "Command1",  "List1",       "CM",          "mnufile",   "edit",
              "tools",     "Tags",          "View",      "Insert",      "Format",      "Table",     "d2d",
              "mnuhid",    "mnuspell",      "cmenu",     "mnuplugins",  "Toolbar_0",   "Toolbar_5", "Toolbar_11",
              "stBar",     "stBar_1",       "stBar_10",  "asptags",     "scriptfolder"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void everyPartIsThereOnce()
    {
        QFETCH(QString, name);
        WindowBench bench;
        bench.start();
        QCOMPARE(bench.window->findChildren<QObject *>(name).size(), 1);
    }

    void theTabStripsShow()
    {
        WindowBench bench;
        bench.start().show();
        QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
        for (const QString &name : {u"Frame1"_s, u"workspace"_s, u"toolpane"_s}) {
            const auto *tabs = bench.find<QTabBar>(name);
            QVERIFY(tabs->isVisible());
            QVERIFY2(tabs->width() >= 24 && tabs->height() >= 20, qPrintable(name));
        }
    }

    /// Tab is typed into the text, so another key leaves it.
    void ctrlF6WalksThroughTheWindow()
    {
        WindowBench bench;
        bench.start().show();
        bench.window->resize(1800, 900);
        QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
        bench.window->activateWindow();
        bench.window->rt().setFocus();
        const auto here = [&] {
            const QWidget *focus = QApplication::focusWidget();
            for (const QString &name : {u"rt"_s, u"toolpane"_s, u"cboLang"_s, u"workspace"_s, u"Frame1"_s}) {
                const QWidget *part = bench.find<QWidget>(name);
                if (focus == part || part->isAncestorOf(focus))
                    return name;
            }
            // The buttons next to a tab bar belong to the palette or to the side pane.
            return bench.window->sidePane().isAncestorOf(focus) ? u"Frame1"_s : u"toolpane"_s;
        };
        QCOMPARE(here(), u"rt"_s);
        const QStringList order{u"toolpane"_s, u"Frame1"_s, u"cboLang"_s, u"workspace"_s, u"rt"_s};
        for (const QString &name : order) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ControlModifier);
            QCOMPARE(here(), name);
        }
        for (auto name = order.rbegin() + 1; name != order.rend(); ++name) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(here(), *name);
        }
    }

    void aQuickTagWrapsEachSelection()
    {
        WindowBench bench;
        bench.start();
        bench.window->rt().setText(u"one two one"_s);
        bench.window->rt().select({0, 0, 0, 3});
        bench.window->rt().executeCmd(EditorCommand::AddNextOccurrence);
        bench.click(u"Toolbar_1"_s, u"paragraph"_s);
        QCOMPARE(bench.window->rt().text().count(u"one</"_s), 2);
        bench.window->rt().undo();
        QCOMPARE(bench.window->rt().text(), u"one two one"_s);
    }

    void statusBarAtTheStart()
    {
        WindowBench bench;
        bench.start();
        QStringList texts;
        for (int i = 1; i <= 10; ++i)
            texts.append(bench.panel(i));
        texts.removeAt(7); // The time of day.
        QCOMPARE(texts,
                 (QStringList{u"Line:"_s, u"1"_s, u"Total Lines:"_s, u"1"_s, u"CAPS"_s, u"NUM"_s, u"INS"_s,
                              u"Charecter Count"_s, u"File Name"_s}));
    }

    void theStatusBarFollowsTyping()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.rt().setSelText(u"one\r\ntwo\r\nthree"_s);
        QCOMPARE(bench.panel(4), u"3"_s);
        QCOMPARE(bench.panel(2), u"3"_s);
        QCOMPARE(bench.panel(9), u"15"_s);
        QVERIFY(window.docModified());
        QCOMPARE(window.rt().highlightedLine(), 2);
        bench.choose(u"highlightlines"_s);
        QCOMPARE(window.rt().highlightedLine(), -1);
        QCOMPARE(bench.configuration.value(Setting::HighlightLine), u"0"_s);
    }

    void languagesOpenAndCloseTheMarkupTools_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("open");
        QTest::addColumn<QString>("language");
        const char *languages[] = {"", "HTML", "C/C++", "Perl", "XML", "Basic", "Pascal", "java", "java", "java"};
        for (int row = 0; row < 10; ++row)
            QTest::addRow("%d", row) << row << (row == 1 || row == 3 || row == 4 || row >= 7)
                                     << QString::fromLatin1(languages[row]);
    }

    void languagesOpenAndCloseTheMarkupTools()
    {
        QFETCH(int, row);
        QFETCH(bool, open);
        WindowBench bench;
        frmmain &window = bench.start();
        bench.find<QComboBox>(u"cboLang"_s)->setCurrentIndex(row == 0 ? 1 : 0);
        bench.find<QComboBox>(u"cboLang"_s)->setCurrentIndex(row);
        QCOMPARE(bench.find<QMenu>(u"Tags"_s)->isEnabled(), open);
        QCOMPARE(bench.find<QMenu>(u"Tags"_s)->menuAction()->isEnabled(), open);
        QTEST(window.rt().language(), "language");
        const QList<QAction *> buttons = bench.find<QToolBar>(u"Toolbar1"_s)->actions();
        QVERIFY(buttons.size() >= 15);
        QCOMPARE(buttons[0]->isEnabled(), open); // Bold.
        QVERIFY(buttons[14]->isEnabled());       // Revert works on any text.
    }

    void theVisualMenusStartClosed()
    {
        WindowBench bench;
        bench.start();
        for (const QString &name : {u"View"_s, u"Insert"_s, u"Format"_s, u"Table"_s}) {
            QVERIFY2(!bench.find<QMenu>(name)->isEnabled(), qPrintable(name));
            QVERIFY2(!bench.find<QMenu>(name)->menuAction()->isEnabled(), qPrintable(name));
        }
    }

    void openEditSaveKeepsEveryOtherByte_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("crlf") << QByteArray("a\r\nb\r\n") << QByteArray("X\r\nYa\r\nb\r\n");
        QTest::newRow("lf") << QByteArray("a\nb\n") << QByteArray("X\nYa\nb\n");
        QTest::newRow("cr") << QByteArray("a\rb\r") << QByteArray("X\rYa\rb\r");
        QTest::newRow("utf-8 mark") << QByteArray("\xEF\xBB\xBF\xC3\xA9\n") << QByteArray("\xEF\xBB\xBFX\nY\xC3\xA9\n");
        QTest::newRow("windows-1252") << QByteArray("\xE9\x81\x80\n") << QByteArray("X\nY\xE9\x81\x80\n");
        QTest::newRow("utf-16") << QByteArray("\xFF\xFE"
                                              "a\0\n\0",
                                              6)
                                << QByteArray("\xFF\xFEX\0\n\0Y\0a\0\n\0", 12);
        QTest::newRow("binary") << QByteArray("\0\xFF\x01\n\0", 5) << QByteArray("X\nY\0\xFF\x01\n\0", 8);
    }

    void openEditSaveKeepsEveryOtherByte()
    {
        QFETCH(QByteArray, before);
        WindowBench bench;
        const QString file = bench.write(u"täglich \"neu\".txt"_s, before);
        frmmain &window = bench.start(file);
        QVERIFY(window.doSave());
        QCOMPARE(WindowBench::read(file), before);
        window.rt().select({0, 0, 0, 0});
        window.rt().setSelText(u"X\r\nY"_s);
        QVERIFY(window.docModified());
        bench.choose(u"save"_s);
        QVERIFY(!window.docModified());
        QTEST(WindowBench::read(file), "after");
    }

    void aQuickTagGoesIntoTheText()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.rt().setText(u"cell"_s);
        window.rt().executeCmd(EditorCommand::SelectAll);
        bench.click(u"Toolbar_3"_s, u"td"_s);
        QCOMPARE(window.rt().text(), u"<td>cell</td>"_s);
        bench.click(u"Toolbar_7"_s, 18);
        QCOMPARE(window.rt().text(), u"<td>cell</td><input type=\"reset\">"_s);
        QVERIFY(window.docModified());
        QCOMPARE(bench.panel(9), QString::number(window.rt().text().size()));
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"<td>cell</td>"_s);
    }

    void theToolbarsUndoSaysWhenNothingIsLeft()
    {
        WindowBench bench;
        bench.start();
        bench.prompts.expectTell(u"Sorry, there is nothing left to UNDO"_s, u"UNDO"_s);
        bench.click(u"tBar"_s, u"undo"_s);
    }

    void theStylePropertyNoteLeadsToTheFirstCustomTab()
    {
        WindowBench bench;
        bench.start();
        bench.prompts.expect(
            {u"By default, the first custom tab was shipped with a CSS Prop index file. You will now be taken "
             u"to the tab"_s,
             {},
             Question::Icon::None,
             Question::Buttons::Ok},
            Answer::Ok);
        bench.click(u"Toolbar_4"_s, u"prop"_s);
        QCOMPARE(bench.find<QTabBar>(u"Frame1"_s)->currentIndex(), 6);
    }

    void closingAsks()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        window.rt().setSelText(u"text"_s);
        const Question prompt{u"Document: \n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel};
        bench.prompts.expect(prompt, Answer::Cancel);
        QVERIFY(!window.close());
        QCOMPARE(bench.ended, 0);
        QVERIFY(!bench.settings.values.contains(u"zephira/frmmain/Top"_s));
        bench.prompts.expect(prompt, Answer::No);
        QVERIFY(window.close());
        QCOMPARE(bench.ended, 1);
        QVERIFY(bench.settings.values.size() > 5);
    }

    void exitAsksNothingAndSavesNothing()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.rt().setSelText(u"text"_s);
        const auto settings = bench.settings.values;
        bench.choose(u"exit"_s);
        QCOMPARE(bench.ended, 1);
        QVERIFY(bench.settings.values == settings);
    }

    void updateEndsInAnyCase()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        window.rt().setSelText(u"text"_s);
        bench.prompts.expect({u"Document: \n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                             Answer::Cancel);
        bench.choose(u"mnuupdate"_s);
        QCOMPARE(bench.ended, 1);
        QCOMPARE(QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files).size(), 1);
        QVERIFY(bench.shell.started.front() == (FakeShell::Start{bench.appPath() + u"/update.exe"_s, {}}));
        QVERIFY(!bench.settings.values.contains(u"zephira/frmmain/Top"_s));
    }

    void fileExistsByName()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        for (const auto &[path, there] : {std::pair{bench.write(u"a.txt"_s, "a"), true},
                                          {bench.folder(), false},
                                          {bench.folder() + u"/none"_s, false}}) {
            bool exists = !there;
            QVERIFY(QMetaObject::invokeMethod(&window, "FileExists", Q_RETURN_ARG(bool, exists), Q_ARG(QString, path)));
            QCOMPARE(exists, there);
        }
    }

    void aSecondWindowIsASecondProcess()
    {
        WindowBench bench;
        bench.start();
        bench.choose(u"mnunewwindow"_s);
        QVERIFY(bench.shell.started.front() == (FakeShell::Start{u"/opt/zephira/zephira"_s, {u"/nodialog"_s}}));
    }

    void aDroppedFileBecomesTheDocument()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        const QString file = bench.write(u"drop/a page.css"_s, "p { }\n");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file), QUrl::fromLocalFile(u"/second"_s)});
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        static_cast<QObject &>(window).event(&drop);
        QCOMPARE(window.docPath(), file);
        QCOMPARE(window.rt().text(), u"p { }\r\n"_s);
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentIndex(), 8);
    }

    void aDropOnTheWindowKeepsTheDesignersWork()
    {
        WindowBench bench;
        const QString page = bench.write(u"page.html"_s, "<p>old</p>");
        frmmain &window = bench.start(page);
        auto *workspace = bench.find<QTabBar>(u"workspace"_s);
        workspace->setCurrentIndex(2);
        bench.webViews.designer.html = u"<p>designed</p>"_s;
        bench.webViews.designer.dirty = true;
        bench.prompts.expect({u"Document: "_s + page + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                             Answer::Yes);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(bench.write(u"drop/a.css"_s, "p { }"))});
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        static_cast<QObject &>(window).event(&drop);
        QCOMPARE(WindowBench::read(page), QByteArray("<p>designed</p>"));
        QCOMPARE(workspace->currentIndex(), 0);
        QCOMPARE(window.rt().text(), u"p { }"_s);
    }

    void anImageOfThePaneBecomesALink()
    {
        WindowBench bench;
        const QString page = bench.write(u"site/a.html"_s, "");
        const QByteArray gif = QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///ywAAAAAAQABAAACAUwAOw==");
        bench.write(u"site/good.gif"_s, gif);
        const QString bad = bench.write(u"site/bad.gif"_s, gif.first(12));
        frmmain &window = bench.start(page);
        auto *list = bench.find<QListWidget>(u"ListFiles"_s);
        list->setCurrentItem(list->findItems(u"good.gif"_s, Qt::MatchExactly).value(0));
        window.OpenAFile();
        const QString link = u"<img src=\"good.gif\" width=\"1\" height=\"1\" alt=\"\" Border=\"0\">"_s;
        QCOMPARE(window.rt().text(), link);
        // A truncated picture doesn't count as a picture.
        list->setCurrentItem(list->findItems(u"bad.gif"_s, Qt::MatchExactly).value(0));
        bench.prompts.expect(
            {u"An error has occured.\r\nThe picture %1 can't be shown: Unable to read image data.\r\n"_s.arg(bad)
                 + u"The routine will now reset itself..."_s,
             {},
             Question::Icon::Critical,
             Question::Buttons::Ok},
            Answer::Ok);
        window.OpenAFile();
        QCOMPARE(window.rt().text(), link);
    }

    void aRecoveryCopyStaysWhereASaveFailedAtTheClose()
    {
        WindowBench bench;
        const QString file = bench.write(u"ro/a.txt"_s, "old");
        frmmain &window = bench.start(file);
        window.show();
        window.rt().setSelText(u"new "_s);
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
        bench.prompts.expect({u"Document: "_s + file + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                             Answer::Yes);
        bench.prompts.expectTell(u"The file \"%1\" could not be saved: it is read-only."_s.arg(file), {},
                                 Question::Icon::Exclamation);
        QVERIFY(window.close());
        const QStringList copies = QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files);
        QCOMPARE(copies.size(), 1);
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/"_s + copies.front()), QByteArray("new old"));
        QCOMPARE(WindowBench::read(file), QByteArray("old"));
    }

    void aRecoveryCopyStaysWhereASaveFailedBeforeTheTextIsReplaced()
    {
        WindowBench bench;
        const QString file = bench.write(u"ro/a.txt"_s, "old");
        frmmain &window = bench.start(file);
        window.rt().setSelText(u"new "_s);
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
        bench.prompts.expect({u"Document: "_s + file + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::None, Question::Buttons::YesNoCancel},
                             Answer::Yes);
        bench.prompts.expectTell(u"The file \"%1\" could not be saved: it is read-only."_s.arg(file), {},
                                 Question::Icon::Exclamation);
        window.doNew();
        QCOMPARE(window.rt().text(), QString());
        const QStringList copies = QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files);
        QCOMPARE(copies.size(), 1);
        QVERIFY(copies.front().startsWith(u"open-")); // The next start reports it.
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/"_s + copies.front()), QByteArray("new old"));
    }

    void aFailedSaveAsIsTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isThere");
        QTest::addColumn<bool>("isFull");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing folder") << u"%1/none/a.txt"_s << false << false << u"its folder does not exist"_s;
        QTest::newRow("read-only file") << u"%1/ro/a.txt"_s << true << false << u"it is read-only"_s;
        QTest::newRow("full disk") << u"%1/a.txt"_s << false << true << u"the disk is full"_s;
        QTest::newRow("no disk") << u"/dev/full"_s << true << false << u"it is not a regular file"_s;
    }

    /// And the close that comes after it goes on, with a copy of the text.
    void aFailedSaveAsIsTold()
    {
        QFETCH(QString, name);
        QFETCH(bool, isThere);
        QFETCH(bool, isFull);
        QFETCH(QString, reason);
        WindowBench bench;
        const QString locked = bench.write(u"ro/a.txt"_s, "old");
        QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner));
        frmmain &window = bench.start();
        window.show();
        window.rt().setSelText(u"text"_s);
        const QString path = name.contains(u'%') ? name.arg(bench.folder()) : name;
        bench.calls.intervene = [&](int, FileSystemCalls::Call call) {
            return isFull && call == FileSystemCalls::Call::Write ? ENOSPC : 0;
        };
        const auto expectFailure = [&](const ScriptedPrompts::During &during) {
            bench.prompts.expectFile({u"Save a document..."_s, u"Text Files|*.txt|All Files|*.*"_s,
                                      window.context().document.projectPath(), true},
                                     path);
            if (isThere)
                bench.prompts.expect(
                    {u"File: "_s + path + u"\n\nThe file you have entered\nalready exists. Overwrite?"_s,
                     u"Overwrite?"_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                    Answer::Yes);
            bench.prompts.expect({u"The file \"%1\" could not be saved: "_s.arg(path) + reason + u'.',
                                  {},
                                  Question::Icon::Exclamation,
                                  Question::Buttons::Ok},
                                 Answer::Ok, during);
        };
        expectFailure({});
        bench.choose(u"saveas"_s);
        QVERIFY(bench.prompts.verify());
        QVERIFY(window.docModified());
        QVERIFY(!window.docHasFile());
        QCOMPARE(window.rt().text(), u"text"_s);

        bench.prompts.expect({u"Document: \n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                             Answer::Yes);
        expectFailure([&] { isFull = false; });
        QVERIFY(window.close());
        QVERIFY(bench.prompts.verify());
        const QStringList copies = QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files);
        QCOMPARE(copies.size(), 1);
        QVERIFY2(copies.front().startsWith(u"open-"), qPrintable(copies.front())); // The next start tells of it.
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/"_s + copies.front()), QByteArray("text"));
        QCOMPARE(WindowBench::read(locked), QByteArray("old"));
        QVERIFY(!QFile::exists(bench.folder() + u"/a.txt"_s));
    }

    /// The system ends the process: the typed text is saved in a copy at once, and nothing is asked.
    void aForcedEndKeepsWhatIsUnsaved()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        const auto copies = [&] { return QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files); };
        window.windowEnd().endNow();
        QCOMPARE(bench.ended, 1);
        QCOMPARE(copies(), QStringList());
        window.rt().setSelText(u"typed"_s);
        window.windowEnd().endNow();
        QCOMPARE(bench.ended, 2);
        QCOMPARE(copies().size(), 1);
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/"_s + copies().front()), QByteArray("typed"));
    }

    void theEndOfTheSessionAsksWhereItMay()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        const auto copies = [&] { return QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files); };
        QVERIFY(window.windowEnd().agreesToSessionEnd(true));
        window.rt().setSelText(u"typed"_s);
        const Question prompt{u"Document: \n\nThis document has been modified.\nDo you wish to save?"_s,
                              u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel};
        bench.prompts.expect(prompt, Answer::Cancel);
        QVERIFY(!window.windowEnd().agreesToSessionEnd(true));
        QCOMPARE(copies(), QStringList());
        QVERIFY(window.windowEnd().agreesToSessionEnd(false));
        QCOMPARE(copies().size(), 1);
        QCOMPARE(bench.ended, 0); // The session manager ends the program.
    }

    /// What the session tells an application at its end would by itself close the windows, and so ask again.
    void theEndOfTheSessionAsksOnce()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        const SessionEnd sessionEnd(*qApp, window.windowEnd());
        const auto copies = [&] { return QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files); };
        window.rt().setSelText(u"typed"_s);
        QVERIFY(window.windowEnd().agreesToSessionEnd(false));
        window.rt().setSelText(u" later"_s);
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        QCOMPARE(bench.ended, 1);
        QCOMPARE(copies().size(), 1);
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/"_s + copies().front()), QByteArray("typed later"));
        QVERIFY(!bench.settings.values.empty());
        // The application is told again when its last window goes.
        QCoreApplication::sendEvent(qApp, &quit);
        QCOMPARE(bench.ended, 1);
    }

    /// Without the window: nothing is asked for, shown or waited for.
    void aSuddenEndLeavesACopy()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        const auto copies = [&] { return QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files); };
        window.windowEnd().keepAtSuddenEnd();
        QCOMPARE(copies(), QStringList());
        window.rt().setSelText(u"typed"_s);
        window.windowEnd().keepAtSuddenEnd();
        QCOMPARE(copies().size(), 1);
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/"_s + copies().front()), QByteArray("typed"));
        QCOMPARE(bench.ended, 0);
    }

    void textsThatACrashLeftAreOfferedAboveTheText()
    {
        WindowBench bench;
        const QString page = bench.write(u"recovery/open-20240229-120000-000-1-page.html"_s, "<p>lost</p>");
        const QString notes = bench.write(u"recovery/open-20240301-120000-000-1-notes.txt"_s, "lost notes");
        frmmain &window = bench.start();
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto *bar = bench.find<RecoveryBar>(u"recoveryBar"_s);
        QVERIFY(bar->isVisible());
        QVERIFY(bar->geometry().bottom() < bench.find<QStackedWidget>(u"views"_s)->geometry().top());
        QVERIFY(window.rt().hasFocus());
        QVERIFY(
            bench.find<QLabel>(u"recoveryText_0"_s)->text().startsWith(u"notes.txt was not saved when the program"));
        QVERIFY(
            bench.find<QLabel>(u"recoveryText_1"_s)->text().startsWith(u"page.html was not saved when the program"));

        bench.find<QPushButton>(u"recoveryShow_1"_s)->click();
        QCOMPARE(window.rt().text(), u"<p>lost</p>"_s);
        QVERIFY(window.docModified());
        QVERIFY(!window.docHasFile());
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentText(), u"HTML"_s);
        QVERIFY(QFile::exists(page)); // Showing a copy doesn't remove it.
        QCOMPARE(bar->copies().size(), 2);

        bench.find<QPushButton>(u"recoveryDelete_1"_s)->click();
        QVERIFY(!QFile::exists(page));
        QVERIFY(QFile::exists(notes));
        QVERIFY(bar->isVisible());
        bench.find<QPushButton>(u"recoveryKeep_0"_s)->click();
        QVERIFY(!bar->isVisible());
        QVERIFY(!QFile::exists(notes));
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/kept-20240301-120000-000-1-notes.txt"_s),
                 QByteArray("lost notes"));
    }

    void theReportOfACrashIsNamedAboveTheText()
    {
        WindowBench bench;
        const QString copy = bench.write(u"recovery/open-20240229-120000-000-1-page.html"_s, "<p>lost</p>");
        const QString first = bench.write(u"recovery/crash-20240229-120000-000-1.txt"_s, "first");
        const QString second = bench.write(u"recovery/crash-20240301-120000-000-1.txt"_s, "second");
        frmmain &window = bench.start();
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto *bar = bench.find<RecoveryBar>(u"recoveryBar"_s);
        QVERIFY(bar->isVisible());
        QVERIFY(window.rt().hasFocus());
        const auto text = [&](int line) { return bench.find<QLabel>(u"recoveryText_%1"_s.arg(line))->text(); };
        QVERIFY(text(0).startsWith(u"page.html was not saved"));
        QCOMPARE(text(1), u"The program crashed. Report: "_s + second);
        QCOMPARE(text(2), u"The program crashed. Report: "_s + first);
        QVERIFY(bench.find<QLabel>(u"recoveryText_1"_s)->toolTip().contains(second));
        QVERIFY(bench.find<QLabel>(u"recoveryText_1"_s)->toolTip().contains(u"sent nowhere"));
        QCOMPARE(bench.find<QPushButton>(u"recoveryShow_1"_s)->accessibleName(),
                 u"Show crash-20240301-120000-000-1.txt"_s);

        bench.find<QPushButton>(u"recoveryShow_1"_s)->click();
        QCOMPARE(window.rt().text(), u"second"_s);
        QCOMPARE(window.docPath(), second);
        QVERIFY(!window.docModified());
        QCOMPARE(bar->reports().size(), 2);

        bench.find<QPushButton>(u"recoveryKeep_1"_s)->click();
        QVERIFY(!QFile::exists(second));
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/kept-crash-20240301-120000-000-1.txt"_s),
                 QByteArray("second"));
        QCOMPARE(bar->reports().size(), 1);
        bench.find<QPushButton>(u"recoveryDelete_1"_s)->click();
        QVERIFY(!QFile::exists(first));
        QCOMPARE(bar->reports().size(), 0);
        QVERIFY(bar->isVisible());
        QVERIFY(QFile::exists(copy));

        // Another window may have been faster.
        QVERIFY(QFile::remove(copy));
        bench.find<QPushButton>(u"recoveryKeep_0"_s)->click();
        QVERIFY(!bar->isVisible());
    }

    void theBarTellsOfManyOneAfterAnother()
    {
        WindowBench bench;
        for (int i = 0; i < RecoveryBar::lines + 2; ++i)
            bench.write(u"recovery/open-20240229-12000%1-000-1-a.txt"_s.arg(i), "x");
        bench.start().show();
        auto *bar = bench.find<RecoveryBar>(u"recoveryBar"_s);
        for (int left = RecoveryBar::lines + 2; left > 0; --left) {
            QVERIFY(bar->isVisible());
            QCOMPARE(bar->copies().size(), left);
            QVERIFY(!bench.window->findChild<QPushButton *>(u"recoveryDelete_%1"_s.arg(RecoveryBar::lines)));
            bench.find<QPushButton>(u"recoveryDelete_0"_s)->click();
        }
        QVERIFY(!bar->isVisible());
    }

    void theWindowFitsALowScreen_data()
    {
        QTest::addColumn<int>("scale");
        QTest::addColumn<QSize>("frame"); // As large as the scale leaves room for.
        QTest::newRow("1") << 1 << QSize(16, 48);
        QTest::newRow("2") << 2 << QSize(16, 48);
        QTest::newRow("3") << 3 << QSize(16, 9);
    }

    /// At the first start, on a screen of 1366 × 768 pixels, minus the window frame, whatever the panels show.
    void theWindowFitsALowScreen()
    {
        QFETCH(int, scale);
        QFETCH(QSize, frame);
        WindowBench bench;
        bench.write(u"recovery/open-20240229-120000-000-1-page.html"_s, "lost");
        frmmain &window = bench.start();
        const QSize room = QSize(1366 / scale, 768 / scale) - frame;
        for (const bool isLong : {false, true}) {
            for (const int panel : {2, 4, 9, 10})
                bench.find<QLabel>(u"stBar_%1"_s.arg(panel))->setText(isLong ? u"12345678901234567890"_s : u"1"_s);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            const QSize least = window.minimumSizeHint();
            QVERIFY2(least.width() <= room.width() && least.height() <= room.height(),
                     qPrintable(u"%1 x %2"_s.arg(least.width()).arg(least.height())));
        }
    }

    void nothingIsOfferedWithoutACrash()
    {
        WindowBench bench;
        bench.write(u"recovery/open-20240229-120000-000-%1-mine.txt"_s.arg(QCoreApplication::applicationPid()), "x");
        bench.start().show();
        QVERIFY(!bench.find<RecoveryBar>(u"recoveryBar"_s)->isVisible());
    }

    void thePathShowsWhatIsUnsaved()
    {
        WindowBench bench;
        const QString file = bench.write(u"a.txt"_s, "old");
        frmmain &window = bench.start(file);
        const auto *panel = bench.find<QLabel>(u"stBar_10"_s);
        QVERIFY(!panel->font().bold());
        window.rt().setSelText(u"new "_s);
        QVERIFY(panel->font().bold());
        QVERIFY(!panel->accessibleDescription().isEmpty());
        QCOMPARE(panel->text(), file);
        QVERIFY(window.doSave());
        QVERIFY(!panel->font().bold());
        QCOMPARE(panel->accessibleDescription(), QString());
    }

    /// Of a path that is too long for its panel, the beginning and the end are visible; the text itself stays complete.
    void aLongPathIsCutInItsMiddle()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        auto *panel = bench.find<QLabel>(u"stBar_10"_s);
        const auto picture = [&](const QString &path) {
            bench.window->panels().setText(StatusPanels::FileName, path);
            return panel->grab().toImage();
        };
        const QString path = u'/' + QString(500, u'm') + u"/a.txt"_s;
        const QImage one = picture(path);
        QCOMPARE(panel->text(), path);
        QCOMPARE(panel->toolTip(), path);
        QVERIFY(one != picture(u'/' + QString(500, u'm') + u"/b.txt"_s));
        QVERIFY(one != picture(u"/l"_s + QString(499, u'm') + u"/a.txt"_s));
        // The middle of the path isn't visible.
        QCOMPARE(one, picture(u'/' + QString(250, u'm') + u'x' + QString(249, u'm') + u"/a.txt"_s));
    }

    void theOpenFilesRowIsSelected()
    {
        WindowBench bench;
        bench.write(u"site/a.html"_s, "a");
        const QString page = bench.write(u"site/m.html"_s, "m");
        bench.write(u"site/z.html"_s, "z");
        frmmain &window = bench.start(page);
        const auto *list = bench.find<QListWidget>(u"ListFiles"_s);
        QCOMPARE(list->currentItem()->text(), u"m.html"_s);
        // A file that is created by saving is selected as soon as it is in the list.
        const QString made = bench.folder() + u"/site/new.html"_s;
        bench.prompts.expectFile({u"Save a document..."_s,
                                  u"HTML Files|*.html|ASP File|*.asp|VBScript File|*.vbs|All Files|*.*"_s,
                                  window.context().document.projectPath(), true, page},
                                 made);
        bench.choose(u"saveas"_s);
        QTRY_COMPARE(list->currentItem()->text(), u"new.html"_s);
    }

    void aFileThatChangedOnDiskIsKeptBeforeASave()
    {
        WindowBench bench;
        const QString file = bench.write(u"a.txt"_s, "mine");
        frmmain &window = bench.start(file);
        bench.write(u"a.txt"_s, "somebody else's");
        window.rt().setSelText(u"still "_s);
        QVERIFY(window.doSave());
        QCOMPARE(WindowBench::read(file), QByteArray("still mine"));
        const QStringList copies = QDir(bench.folder() + u"/recovery"_s).entryList(QDir::Files);
        QCOMPARE(copies.size(), 1);
        QCOMPARE(WindowBench::read(bench.folder() + u"/recovery/"_s + copies.front()), QByteArray("somebody else's"));
    }
};

ZEPHIRA_TEST(TstFrmmain)
#include "tst_frmmain.moc"
