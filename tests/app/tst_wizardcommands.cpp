// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Each command that opens a wizard, in the real window: the text comes into the document, and one undo takes it
/// back.
class TstWizardCommands final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWizardWritesAndUndoTakesItBack_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("text");
        const auto row = [](const QString &place, const QString &command, const QString &form, const QString &button,
                            const QString &text) {
            QTest::newRow(qPrintable(place + u' ' + command + u' ' + button))
                << place << command << form << button << text;
        };
        const QString link = u"[old<a href=\"\" target=\"_self\" name=\"\" title=\"\"></a>]"_s;
        const QString image = u"[old\r\n<img src=\"\" width=\"\" height=\"\" alt=\"\" border=\"0\">\r\n]"_s;
        row(u"menu"_s, u"mnuaspredirect"_s, u"frmRedirect"_s, u"Command1"_s,
            u"[old<meta http-equiv=\"refresh\" content=\"0\"; url=\"http://\">]"_s);
        row(u"menu"_s, u"mnuaspredirect"_s, u"frmRedirect"_s, u"Command3"_s, u"[oldResponse.redirect\"http://\"]"_s);
        row(u"menu"_s, u"mnuinsbreakd"_s, u"frminsbreak"_s, u"Command1"_s, u"[old<br clear=\"\" > ]"_s);
        const QString frame =
            u"[old<iframe src=\"\" name=\"\" id=\"\" width=\"\" height=\"\" marginwidth=\"\" marginheight=\"\" align=\"\">"
            "</iframe>]"_s;
        row(u"menu"_s, u"mnuvbsw"_s, u"frmvbwiz"_s, u"Command1"_s, u"[old<% If  =  Then \r\n\r\nEnd If %>\r\n]"_s);
        const QString meta = u"[<META NAME=\"description\" content=\"\"> \r\n<META NAME=\"keywords\" content=\"\">\r\n"
                             "<META NAME=\"author\" content=\"\">\r\n<META NAME=\"Copyright\" content=\"\">]"_s;
        row(u"menu"_s, u"mnumtw"_s, u"frmMeta"_s, u"Command4"_s, meta);
        row(u"Toolbar_1"_s, u"meta"_s, u"frmMeta"_s, u"Command4"_s, meta);
        row(u"menu"_s, u"mnucw"_s, u"frmwizcookie"_s, u"Command1"_s,
            u"[old<%\r\n  Response.Cookies(\"Type\") = \"\"\r\n"
            "  Response.Cookies(\"Type\").Expires = \"10/26/2002\"\r\n  Response.Cookies(\"Type\").Domain =\"\"\r\n"
            " Response.Cookies(\"Type\").Path = \"\"\r\nResponse.Cookies(\"Type\").Secure = FALSE \r\n%>]"_s);
        row(u"menu"_s, u"mnuformwiz"_s, u"FormWizard"_s, u"Command10"_s,
            u"[old<form action=\"action goes here\" method=\"POST\" name=\"Form1\">\r\n"
            "<p>enter your field label name<input type=\"text\" size=\"20\" name=\"T1\"></p>\r\n"
            "<p>enter your field label name<input type=\"text\" size=\"20\" name=\"T2\"></p>\r\n"
            "<p><input type=\"submit\" name=\"B1\" value=\"Submit\">\r\n"
            "<input type=\"reset\"name=\"B2\"value=\"Reset\"></p>\r\n </form>]"_s);
        row(u"menu"_s, u"mnuimw"_s, u"ImageWizard"_s, u"OKButton"_s, image);
        row(u"menu"_s, u"linkwiz"_s, u"frmlinkwiz"_s, u"OKButton"_s, link);
        row(u"Toolbar1"_s, u"links"_s, u"frmlinkwiz"_s, u"OKButton"_s, link);
        row(u"Toolbar_0"_s, u"link"_s, u"frmlinkwiz"_s, u"OKButton"_s, link);
        row(u"Toolbar_1"_s, u"link"_s, u"frmlinkwiz"_s, u"OKButton"_s, link);
        row(u"Toolbar_1"_s, u"picture"_s, u"ImageWizard"_s, u"OKButton"_s, image);
        const QString frames = u"[old"_s + golden(u"frames-defaults"_s) + u']';
        row(u"menu"_s, u"mnuframewiz"_s, u"frmFramesWiz"_s, u"Command1 cmdFinish"_s, frames);
        row(u"Toolbar_5"_s, u"framewiz"_s, u"frmFramesWiz"_s, u"Command1 cmdFinish"_s, frames);
        const QString quick = u"[old"_s + golden(u"simple-defaults"_s) + u']';
        row(u"menu"_s, u"mnutblwiz"_s, u"frmTables"_s, u"cmdCreate"_s, quick);
        row(u"Toolbar_3"_s, u"qtable"_s, u"frmTables"_s, u"cmdCreate"_s, quick);
        row(u"Toolbar_3"_s, u"table"_s, u"frmTable"_s, u"Command1"_s, u"[old"_s + golden(u"plain-defaults"_s) + u']');
        row(u"Toolbar_5"_s, u"iframe"_s, u"frmiframe"_s, u"Command2"_s, frame);
    }

    void aWizardWritesAndUndoTakesItBack()
    {
        QFETCH(QString, place);
        QFETCH(QString, command);
        QFETCH(QString, form);
        QFETCH(QString, button);
        WindowBench bench;
        frmmain &window = open(bench);
        const QString opened = run(bench, place, command, [&button](QWidget &wizard) {
            const QStringList buttons = button.split(u' ');
            for (const QString &name : buttons)
                wizard.findChild<QPushButton *>(name)->click();
        });
        QCOMPARE(opened, form);
        QTEST(window.rt().text(), "text");
        QVERIFY(window.docModified());
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
    }

    /// Images have a page of their own; the other commands open the page that was shown last.
    void theTagEditorOpensOnItsPages()
    {
        WindowBench bench;
        frmmain &window = open(bench);
        QStringList pages;
        const auto build = [&](const QString &button) {
            return [&pages, button](QWidget &editor) {
                pages.append(editor.property("page").toString());
                editor.findChild<QPushButton *>(button)->click();
            };
        };
        QCOMPARE(run(bench, u"menu"_s, u"tagwiz"_s, build(u"cmdOK"_s)), u"frmTagEdit"_s);
        QCOMPARE(window.rt().text(), u"[<a></a>]"_s);
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
        window.rt().select({0, 1, 0, 4});
        QCOMPARE(run(bench, u"menu"_s, u"Image"_s, build(u"Command12"_s)), u"frmTagEdit"_s);
        QCOMPARE(window.rt().text(), u"[<img align=\"Left\">]"_s);
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
        QCOMPARE(runAction(*bench.find<QAction>(u"dtw"_s), build(u"Command18_6"_s)), u"frmTagEdit"_s);
        QCOMPARE(runAction(*bench.find<QAction>(u"dtw"_s),
                           [&](QWidget &editor) {
                               editor.setProperty("page", 15);
                               editor.findChild<QPushButton *>(u"Command5"_s)->click();
                           }),
                 u"frmTagEdit"_s);
        QVERIFY(window.rt().text().contains(u"<tr align=\"Left\" valign=\"Top\">"_s));
        QCOMPARE(run(bench, u"menu"_s, u"tagwiz"_s, build(u"Command18_15"_s)), u"frmTagEdit"_s);
        QCOMPARE(pages, (QStringList{u"0"_s, u"6"_s, u"6"_s, u"15"_s}));
    }

    void savedTagsComeBack()
    {
        WindowBench bench;
        QVERIFY(QDir(bench.appPath()).mkdir(u"Tags"_s));
        frmmain &window = open(bench);
        const auto inCompanion = [](QWidget &wizard, const QString &button, const Work &work) {
            QTimer::singleShot(0, &wizard, [&work] { work(*QApplication::activeModalWidget()); });
            wizard.findChild<QPushButton *>(button)->click();
        };
        run(bench, u"menu"_s, u"mnumtw"_s, [&](QWidget &wizard) {
            QTest::keyClicks(wizard.findChild<QLineEdit *>(u"txtAuthor"_s), u"me"_s);
            inCompanion(wizard, u"Command1"_s, [](QWidget &companion) {
                QCOMPARE(companion.objectName(), u"frmsavetags"_s);
                auto *name = companion.findChild<QLineEdit *>(u"Text1"_s);
                QTest::keyClicks(name, u"shop"_s);
                QTest::keyClick(name, Qt::Key_Return);
            });
            QVERIFY(wizard.isVisible());
        });
        QCOMPARE(WindowBench::read(bench.appPath() + u"/Tags/shop.smt"_s),
                 "[Saved Tags]\r\nDesc=\r\nKeywords=\r\nAuthor=me\r\ncright=\r\n");
        const QString opened = run(bench, u"menu"_s, u"mnumtw"_s, [&](QWidget &wizard) {
            inCompanion(wizard, u"Command2"_s, [](QWidget &companion) {
                QCOMPARE(companion.objectName(), u"frmloadtags"_s);
                auto *list = companion.findChild<QWidget *>(u"File1"_s);
                QTest::keyClick(list, Qt::Key_Down);
                QTest::keyClick(list, Qt::Key_Return);
            });
            QTest::keyClick(wizard.findChild<QLineEdit *>(u"txtCopy"_s), Qt::Key_Return);
        });
        QCOMPARE(opened, u"frmMeta"_s);
        QCOMPARE(window.rt().text(),
                 u"[<META NAME=\"description\" content=\"\"> \r\n<META NAME=\"keywords\" content=\"\">\r\n"
                 "<META NAME=\"author\" content=\"me\">\r\n<META NAME=\"Copyright\" content=\"\">]"_s);
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
    }

    void theDocumentTypeComesFirst()
    {
        WindowBench bench;
        frmmain &window = open(bench);
        const QString opened = run(bench, u"Toolbar_1"_s, u"doctype"_s, [](QWidget &wizard) {
            QTest::keyClick(wizard.findChild<QComboBox *>(u"Combo1"_s), Qt::Key_Down);
            QTest::keyClick(wizard.findChild<QComboBox *>(u"Combo1"_s), Qt::Key_Return);
        });
        QCOMPARE(opened, u"doctype"_s);
        QCOMPARE(window.rt().text(), u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\">\r\n[old]"_s);
        QCOMPARE(window.rt().selText(), u"old"_s);
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
    }

    void scrollingTextIsTyped()
    {
        WindowBench bench;
        frmmain &window = open(bench);
        const QString opened = run(bench, u"menu"_s, u"mnumw"_s, [](QWidget &wizard) {
            QTest::keyClicks(wizard.findChild<QLineEdit *>(u"Text1"_s), u"News"_s);
            QTest::keyClick(wizard.findChild<QLineEdit *>(u"Text1"_s), Qt::Key_Return);
        });
        QCOMPARE(opened, u"frmwizMarquee"_s);
        QCOMPARE(window.rt().text(),
                 u"[old<Marquee align=\"Left\" behavior=\"Scoll\" bgcolor=\"#FFFFFF\" direction=\"Left\" "
                 "scrollamount=\"0\" scrolldelay=\"0\">News</Marquee>]"_s);
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
    }

    void aVariableReplacesTheSelection()
    {
        WindowBench bench;
        frmmain &window = open(bench);
        const auto choose = [](QWidget &wizard) {
            QTest::keyClick(wizard.findChild<QComboBox *>(u"Combo1"_s), Qt::Key_Down);
            QTest::keyClick(&wizard, Qt::Key_Escape);
        };
        QCOMPARE(runAction(*actionWithTip(bench, u"Server Variables"_s), choose), u"frmcsv"_s);
        QCOMPARE(window.rt().text(), u"[ALL_HTTP\t]"_s);
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
    }

    void aMenuTakesItsChoicesFromASecondForm()
    {
        WindowBench bench;
        frmmain &window = open(bench);
        const QString opened = run(bench, u"menu"_s, u"mnuddg"_s, [](QWidget &menu) {
            QTimer::singleShot(0, &menu, [] {
                QWidget *choice = QApplication::activeModalWidget();
                QCOMPARE(choice->objectName(), u"frmaddchoice"_s);
                auto *text = choice->findChild<QLineEdit *>(u"Text1"_s);
                QTest::keyClicks(text, u"One"_s);
                QTest::keyClick(text, Qt::Key_Return);
            });
            menu.findChild<QPushButton *>(u"Command1"_s)->click();
            QTest::keyClicks(menu.findChild<QWidget *>(u"Text1"_s), u"m"_s);
            QTest::keyClick(menu.findChild<QWidget *>(u"Text1"_s), Qt::Key_Return);
        });
        QCOMPARE(opened, u"frmdropdown"_s);
        QCOMPARE(window.rt().text(),
                 u"[old<select size=\"1\" name=\"m\">\r\n  <option>One</option>\r\n</select>\r\n]"_s);
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"[old]"_s);
    }

    /// The image map stays in its own editor, from which it is copied.
    void anImageMapIsDrawnAndCopied()
    {
        WindowBench bench;
        frmmain &window = open(bench);
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::gray);
        const QString file = bench.folder() + u"/map.bmp"_s;
        QVERIFY(image.save(file));
        bench.prompts.expectFile({.filter = u"JPEG files|*.jpg|GIF files|*.GIF|Bitmap files|*.BMP|All Files|*.*"_s,
                                  .initialFolder = window.context().document.projectPath()},
                                 file);
        const QString expected = u"<!-- Created by Zephira -->\r\n<!-- Start of Image Map -->\r\n<IMG SRC=\"%1\" "
                                 "USEMAP=\"#%1\" WIDTH=60 HEIGHT=40 BORDER=0>\r\n<MAP NAME=\"%1\">\r\n"
                                 "<AREA SHAPE=POLY COORDS=\"0,0,10,0,10,1\" HREF = \"a.html\" ALT = \"\">\r\n</MAP>\r\n"
                                 "<!-- End of Image Map -->\r\n"_s.arg(file);
        const QString opened = run(bench, u"Toolbar_0"_s, u"imagemap"_s, [&](QWidget &creator) {
            const auto press = [&creator](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
                QTest::keyClick(creator.focusWidget(), key, modifiers);
            };
            const auto button = [&creator](int number) {
                creator.findChild<QToolBar *>(u"Toolbar1"_s)->actions().at(number - 1)->trigger();
            };
            QVERIFY(QTest::qWaitForWindowActive(&creator));
            press(Qt::Key_O, Qt::ControlModifier);
            press(Qt::Key_Space);
            press(Qt::Key_Right, Qt::ShiftModifier);
            press(Qt::Key_Space);
            press(Qt::Key_Space);
            press(Qt::Key_Down);
            press(Qt::Key_Space);
            button(7);
            creator.findChild<QLineEdit *>(u"Text3_0"_s)->setText(u"a.html"_s);
            button(9);
            QCOMPARE(creator.focusWidget()->objectName(), u"Text6"_s);
            QCOMPARE(creator.focusWidget()->property("Text").toString(), expected);
            press(Qt::Key_A, Qt::ControlModifier);
            press(Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(QGuiApplication::clipboard()->text(), expected);
            press(Qt::Key_X, Qt::ControlModifier);
            QCOMPARE(creator.focusWidget()->property("Text").toString(), QString());
            press(Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(creator.focusWidget()->property("Text").toString(), expected);
        });
        QCOMPARE(opened, u"ImageMap"_s);
        QCOMPARE(window.rt().text(), u"[old]"_s);
        QVERIFY(!window.docModified());
    }

private:
    using Work = std::function<void(QWidget &)>;

    /// The window with a page in which "old" is selected.
    static frmmain &open(WindowBench &bench)
    {
        frmmain &window = bench.start(bench.write(u"page.html"_s, "[old]"));
        window.show();
        window.rt().select({0, 1, 0, 4});
        return window;
    }

    /// The text that a golden case expects.
    static QString golden(const QString &name)
    {
        return QString::fromUtf8(
            WindowBench::read(sourcePath(u"tests/golden/wizards/"_s + name + u"/expected.html"_s)));
    }

    static QAction *actionWithTip(const WindowBench &bench, const QString &tip)
    {
        const QList<QAction *> actions = bench.window->findChildren<QAction *>();
        const auto found = std::ranges::find_if(actions, [&](const QAction *a) { return a->toolTip().contains(tip); });
        if (found == actions.end())
            qFatal("no command has the tip %s", qPrintable(tip));
        return *found;
    }

    /// Runs a command, works the form that it opens, and returns the form's name. A form that is left open is closed.
    static QString run(const WindowBench &bench, const QString &place, const QString &command, const Work &work)
    {
        if (place == u"menu")
            return runAction(*bench.find<QAction>(command), work);
        const QList<QAction *> actions = bench.find<QToolBar>(place)->actions();
        const auto found = std::ranges::find(actions, command, &QAction::objectName);
        if (found == actions.end())
            qFatal("%s has no button %s", qPrintable(place), qPrintable(command));
        return runAction(**found, work);
    }

    static QString runAction(QAction &action, const Work &work)
    {
        QString form;
        QTimer::singleShot(0, &action, [&] {
            auto *wizard = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!wizard)
                return;
            form = wizard->objectName();
            work(*wizard);
            if (wizard->isVisible())
                wizard->reject();
        });
        [&] { QVERIFY2(action.isEnabled(), qPrintable(action.objectName())); }();
        action.trigger();
        return form;
    }
};

ZEPHIRA_TEST(TstWizardCommands)
#include "tst_wizardcommands.moc"
