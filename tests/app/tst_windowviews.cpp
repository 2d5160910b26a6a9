// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/testregistry.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The window with an HTML document, and fakes instead of browser and designer.
struct ViewBench : WindowBench {
    const QString file = write(u"site/page.html"_s, "<p>old</p>\r\n");
    const QString copy = folder() + u"/site/page.htmltemp.html"_s;

    explicit ViewBench(const std::optional<Error> &loadError = {})
    {
        if (loadError)
            loadWebViews = [loadError]() -> Result<WebViews *> { return *loadError; };
        start(file);
    }

    QTabBar &tabs() const { return *find<QTabBar>(u"workspace"_s); }
    void select(int tab) const { tabs().setCurrentIndex(tab - 1); }
    /// Shows the window and gives it the keyboard focus.
    bool activate() const
    {
        window->show();
        window->activateWindow();
        return QTest::qWaitForWindowActive(window.get());
    }
    QWidget *page() const { return find<QStackedWidget>(u"views"_s)->currentWidget(); }
    FakeDesigner &designer() { return webViews.designer; }
    bool isOpen(const QString &menu) const { return find<QMenu>(menu)->menuAction()->isEnabled(); }

    /// The states of the two source menus, then of the five designer menus: "+" enabled, "-" disabled.
    QString menus() const
    {
        QString text;
        for (const QString &menu : {u"tools"_s, u"Tags"_s, u"View"_s, u"Insert"_s, u"Format"_s, u"Table"_s, u"d2d"_s})
            text += isOpen(menu) ? u'+' : u'-';
        return text;
    }
};

const Question saveQuestion{
    u"You must save your document in order to use the visual editor, please click OK to continue, or cancel to go back to code view"_s,
    u"Save Work"_s, Question::Icon::Question, Question::Buttons::OkCancel};

} // namespace

/// The views in the real window. The engine is a fake here; TstWebPreview and TstWebDesigner have the real one.
class TstWindowViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsLoadedBeforeAViewIsWanted()
    {
        ViewBench bench;
        QVERIFY(bench.webViews.made.isEmpty());
        bench.select(2);
        QCOMPARE(bench.webViews.made, QStringList{u"browser"_s});
        bench.select(3);
        bench.select(2);
        bench.select(3);
        QCOMPARE(bench.webViews.made, (QStringList{u"browser"_s, u"designer"_s}));
    }

    void thePointerAtTheTabsLoadsTheBrowserAhead()
    {
        ViewBench bench;
        bench.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
        QVERIFY(bench.webViews.made.isEmpty());
        QMouseEvent move(QEvent::MouseMove, {20, 10}, bench.tabs().mapToGlobal(QPointF(20, 10)), Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(&bench.tabs(), &move);
        QTRY_COMPARE(bench.webViews.made, QStringList{u"browser"_s});
        QCOMPARE(bench.webViews.browser.calls, QStringList{u"about:blank"_s});
        QCOMPARE(bench.tabs().currentIndex(), 0);
    }

    void controlsAndMenusOfEachView()
    {
        ViewBench bench;
        QWidget *bar = bench.find<QToolBar>(u"Toolbar2"_s);
        const auto state = [&] { return std::pair(bench.menus(), bar->isHidden()); };
        QCOMPARE(state(), std::pair(u"++-----"_s, true));
        QCOMPARE(bench.page(), bench.find<QWidget>(u"rt"_s));
        bench.select(2);
        QCOMPARE(state(), std::pair(u"++-----"_s, true));
        QVERIFY(bench.page()->isAncestorOf(bench.find<QWidget>(u"ww1"_s)));
        QVERIFY(bench.page()->isAncestorOf(bench.find<QWidget>(u"cbtop"_s)));
        bench.select(3);
        QCOMPARE(state(), std::pair(u"--+++++"_s, false));
        QCOMPARE(bench.page(), bench.find<QWidget>(u"DHTMLEdit1"_s));
        bench.select(2);
        QCOMPARE(state(), std::pair(u"-------"_s, true)); // The source menus are not changed.
        bench.select(1);
        QCOMPARE(state(), std::pair(u"++-----"_s, true));
        QCOMPARE(bench.page(), bench.find<QWidget>(u"rt"_s));
    }

    void theTextsOfTheTabs()
    {
        ViewBench bench;
        const QTabBar &tabs = bench.tabs();
        const struct {
            QString key;
            QString caption;
            QString tip;
        } expected[] = {
            {u"code"_s, u"Code View"_s, u"Click to view / edit your html code"_s},
            {u"preview"_s, u"Preview"_s, u"Preview your document in Zephira's browser"_s},
            {u"wysiwyg"_s, u"WYSIWYG Editor"_s, u"Use this to create your webpage using a visual approach"_s},
        };
        QCOMPARE(tabs.count(), 3);
        for (int tab = 0; tab < 3; ++tab) {
            QCOMPARE(tabs.tabData(tab).toString(), expected[tab].key);
            QCOMPARE(tabs.tabText(tab), expected[tab].caption);
            QCOMPARE(tabs.tabToolTip(tab), expected[tab].tip);
        }
        const auto *reset = bench.find<QPushButton>(u"Command1"_s);
        QCOMPARE(reset->text(), u"Reset"_s);
        QCOMPARE(reset->toolTip(), u"Reset Document to what it was before you entered Visual Mode"_s);
    }

    void theViewsFillTheSameRectangle()
    {
        ViewBench bench;
        bench.window->resize(1100, 800);
        bench.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
        const auto *views = bench.find<QStackedWidget>(u"views"_s);
        for (const int tab : {1, 2, 3}) {
            bench.select(tab);
            QCoreApplication::processEvents();
            QCOMPARE(bench.page()->geometry(), views->rect());
        }
    }

    void aLanguageOpensNoSourceMenuInVisualMode()
    {
        ViewBench bench;
        bench.select(3);
        bench.find<QComboBox>(u"cboLang"_s)->setCurrentIndex(4);
        QCOMPARE(bench.menus(), u"--+++++"_s);
        bench.select(1);
        QCOMPARE(bench.menus(), u"++-----"_s);
    }

    /// The quick tags follow whichever was last, the choice of a language or the return to the code view.
    void theReturnToTheCodeViewOpensTheQuickTagsInAnyLanguage()
    {
        ViewBench bench;
        auto *languages = bench.find<QComboBox>(u"cboLang"_s);
        languages->setCurrentIndex(2);
        QCOMPARE(bench.menus(), u"+------"_s);
        bench.select(3);
        QCOMPARE(bench.menus(), u"--+++++"_s);
        bench.select(1);
        QCOMPARE(bench.menus(), u"++-----"_s);
        languages->setCurrentIndex(5);
        QCOMPARE(bench.menus(), u"+------"_s);
        languages->setCurrentIndex(1);
        QCOMPARE(bench.menus(), u"++-----"_s);
    }

    void theCopyFromBeforeGoesWithTheNextOne()
    {
        ViewBench bench;
        bench.select(2);
        QVERIFY(QFile::exists(bench.copy));
        bench.select(1);
        const QString other = bench.write(u"site/other.html"_s, "<p>other</p>");
        bench.window->document().openFileOrImage(other);
        bench.select(2);
        QCOMPARE(bench.window->previewTarget(), other + u"temp.html"_s);
        QVERIFY(QFile::exists(other + u"temp.html"_s));
        QVERIFY(!QFile::exists(bench.copy));
    }

    void aClickOnATabGivesItTheKeyboard_data()
    {
        QTest::addColumn<QString>("before"); // The widget with the focus.
        QTest::newRow("from the code view") << u"rt"_s;
        QTest::newRow("from the side pane") << u"PrjPath"_s;
        QTest::newRow("from the language list") << u"cboLang"_s;
    }

    void aClickOnATabGivesItTheKeyboard()
    {
        QFETCH(QString, before);
        ViewBench bench;
        QVERIFY(bench.activate());
        bench.find<QWidget>(before)->setFocus();
        QTest::mouseClick(&bench.tabs(), Qt::LeftButton, {}, bench.tabs().tabRect(1).center());
        QTRY_VERIFY(bench.find<QWidget>(u"ww1"_s)->hasFocus());
        QTest::mouseClick(&bench.tabs(), Qt::LeftButton, {}, bench.tabs().tabRect(0).center());
        QTRY_VERIFY(bench.window->rt().hasFocus());
    }

    void theKeyboardLeavesTheDesignersToolbarWithIt()
    {
        ViewBench bench;
        QVERIFY(bench.activate());
        bench.select(3);
        bench.designer().events.displayChanged();
        bench.find<QComboBox>(u"FontCombo"_s)->setFocus();
        bench.choose(u"mnunextview"_s);
        QVERIFY(bench.window->rt().hasFocus());
    }

    void theTabsKeepTheKeyboard()
    {
        ViewBench bench;
        QVERIFY(bench.activate());
        bench.tabs().setFocus();
        QTest::keyClick(&bench.tabs(), Qt::Key_Right);
        QCOMPARE(bench.tabs().currentIndex(), 1);
        QVERIFY(bench.tabs().hasFocus());
    }

    void theNextViewOfTheThirdIsTheFirst()
    {
        ViewBench bench;
        QList<int> way;
        for (int i = 0; i < 4; ++i) {
            bench.choose(u"mnunextview"_s);
            way.append(bench.tabs().currentIndex() + 1);
        }
        QCOMPARE(way, (QList<int>{2, 3, 1, 2}));
    }

    void everyCommandThatSelectsAViewRunsTheChange_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("the preview button") << u"preview"_s;
        QTest::newRow("its pull-down") << u"picb"_s;
    }

    void everyCommandThatSelectsAViewRunsTheChange()
    {
        QFETCH(QString, button);
        ViewBench bench;
        QAction *action = bench.find<QToolBar>(u"Toolbar1"_s)->findChild<QAction *>(button);
        QVERIFY(action->isEnabled());
        action->trigger();
        QCOMPARE(bench.tabs().currentIndex(), 1);
        QCOMPARE(bench.webViews.browser.calls, QStringList{bench.copy});
        bench.window->rt().setText(u"changed"_s);
        action->trigger(); // The tab was selected already.
        QCOMPARE(WindowBench::read(bench.copy), QByteArray("changed"));
        QCOMPARE(bench.webViews.browser.calls.size(), 2);
    }

    void aClickOnTheTabPreviewsAgain()
    {
        ViewBench bench;
        bench.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
        bench.select(2);
        QTest::mouseClick(&bench.tabs(), Qt::LeftButton, {}, bench.tabs().tabRect(1).center());
        QCOMPARE(bench.webViews.browser.calls.count(bench.copy), 2);
        QTest::mouseClick(&bench.tabs(), Qt::LeftButton, {}, bench.tabs().tabRect(0).center());
        QCOMPARE(bench.page(), bench.find<QWidget>(u"rt"_s));
    }

    /// Whoever comes back from the preview goes on where the caret was.
    void thePlaceInTheTextIsKept()
    {
        ViewBench bench;
        bench.window->resize(800, 600);
        bench.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
        CodeMax &rt = bench.window->rt();
        rt.setText(QString(u"<p>some words of a line</p>\r\n"_s).repeated(400));
        rt.select({205, 8, 203, 3});
        rt.engine().send(QsciScintillaBase::SCI_SETFIRSTVISIBLELINE, 190);
        const auto first = [&] { return rt.engine().send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE); };
        const qsizetype firstLine = first();
        QCOMPARE(firstLine, qsizetype{190});
        for (const QKeyCombination &way : {QKeyCombination(Qt::Key_Right), QKeyCombination(Qt::Key_Left)}) {
            bench.tabs().setFocus();
            QTest::keyClick(&bench.tabs(), way.key());
            QCoreApplication::processEvents();
        }
        QCOMPARE(bench.page(), bench.find<QWidget>(u"rt"_s));
        const CodeMaxRange range = rt.selection(false);
        QCOMPARE(QList<int>({range.StartLineNo, range.StartColNo, range.EndLineNo, range.EndColNo}),
                 (QList<int>{205, 8, 203, 3}));
        QCOMPARE(first(), firstLine);
        // The mouse does the same.
        for (const int tab : {1, 0})
            QTest::mouseClick(&bench.tabs(), Qt::LeftButton, {}, bench.tabs().tabRect(tab).center());
        QCoreApplication::processEvents();
        QCOMPARE(rt.selection(false).EndLineNo, 203);
        QCOMPARE(first(), firstLine);
    }

    void thePreviewIsNoSave()
    {
        ViewBench bench;
        bench.window->rt().setText(u"<p>new</p>"_s);
        const QString caption = bench.window->windowTitle();
        bench.select(2);
        QVERIFY(bench.window->docModified());
        QCOMPARE(bench.window->docPath(), bench.file);
        QCOMPARE(bench.window->windowTitle(), caption);
        QCOMPARE(bench.window->previewTarget(), bench.copy);
        QCOMPARE(WindowBench::read(bench.file), QByteArray("<p>old</p>\r\n"));
        QCOMPARE(WindowBench::read(bench.copy), QByteArray("<p>new</p>"));
        QVERIFY(bench.window->rt().canUndo());
        bench.select(1);
        bench.window->rt().undo();
        QCOMPARE(bench.window->rt().text(), u"<p>old</p>\r\n"_s);
    }

    void thePreviewIsDeletedByANewDocument()
    {
        ViewBench bench;
        bench.select(2);
        QVERIFY(QFile::exists(bench.copy));
        bench.choose(u"mnunewdoc"_s);
        QVERIFY(!QFile::exists(bench.copy));
        QCOMPARE(bench.tabs().currentIndex(), 0);
        QCOMPARE(bench.webViews.browser.calls.last(), u"about:blank"_s);
    }

    void thePreviewIsDeletedAtTheEndAndAnotherWindowsIsNot()
    {
        ViewBench other;
        ViewBench bench;
        bench.window->show();
        bench.select(2);
        other.select(2);
        QVERIFY(bench.window->close());
        QVERIFY(!QFile::exists(bench.copy));
        QVERIFY(QFile::exists(other.copy));
    }

    void aStyleSheetIsShownOnTheSamplePage()
    {
        ViewBench bench;
        bench.find<QComboBox>(u"cboLang"_s)->setCurrentIndex(8);
        bench.window->rt().setText(u"p { color: red }"_s);
        bench.select(2);
        QCOMPARE(bench.webViews.browser.calls, QStringList{bench.appPath() + u"/deps/CSSpreview.html"_s});
        QCOMPARE(WindowBench::read(bench.appPath() + u"/deps/style.css"_s), QByteArray("p { color: red }"));
        QVERIFY(WindowBench::read(bench.appPath() + u"/deps/CSSpreview.html"_s).contains("href=\"style.css\""));
        QVERIFY(QFile::exists(bench.appPath() + u"/deps/filenoprev.htm"_s));
    }

    void theAddressBar()
    {
        ViewBench bench;
        bench.select(2);
        auto *address = bench.find<QLineEdit>(u"txturl"_s);
        bench.webViews.browser.location = u"file:///x.html"_s;
        bench.webViews.browser.navigateComplete();
        QCOMPARE(address->text(), u"file:///x.html"_s);
        address->setText(u"example.org"_s);
        bench.find<QPushButton>(u"cmdgo"_s)->click();
        bench.find<QToolBar>(u"toolbarnav"_s)->findChild<QAction *>(u"back"_s)->trigger();
        QCOMPARE(bench.webViews.browser.calls.mid(1), (QStringList{u"example.org"_s, u"back"_s}));
    }

    void visualModeOpensTheFile()
    {
        ViewBench bench;
        bench.select(3);
        QCOMPARE(bench.designer().loaded, QStringList{bench.file});
        QCOMPARE(bench.window->designerBase(), bench.window->context().document.projectPath());
        QVERIFY(!bench.window->docModified());
    }

    void visualModeAsksToSave()
    {
        ViewBench bench;
        bench.window->rt().setText(u"<b>"_s);
        bench.prompts.expect(saveQuestion, Answer::Cancel);
        bench.select(3);
        QCOMPARE(bench.tabs().currentIndex(), 0);
        QCOMPARE(bench.menus(), u"++-----"_s);
        QCOMPARE(bench.window->rt().text(), u"<b>"_s);
        QVERIFY(bench.window->docModified());
        bench.prompts.expect(saveQuestion, Answer::Ok);
        bench.select(3);
        QCOMPARE(bench.tabs().currentIndex(), 2);
        QCOMPARE(WindowBench::read(bench.file), QByteArray("<b>"));
        QCOMPARE(bench.designer().loaded, QStringList{bench.file});
    }

    void aNewDocumentEntersVisualModeByValue()
    {
        ViewBench bench;
        bench.choose(u"mnunewdoc"_s);
        bench.window->rt().setText(u"<i>new</i>"_s);
        bench.prompts.expect(saveQuestion, Answer::Ok);
        bench.prompts.expectFile({u"Save a document..."_s,
                                  u"Text Files|*.txt|All Files|*.*"_s,
                                  bench.window->context().document.projectPath(),
                                  true,
                                  {}},
                                 std::nullopt);
        bench.select(3);
        QCOMPARE(bench.tabs().currentIndex(), 2);
        QVERIFY(bench.designer().loaded.isEmpty());
        QCOMPARE(bench.designer().html, u"<i>new</i>"_s);
    }

    void leavingVisualModeCarriesTheTextBack_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("saved");
        QTest::newRow("the code tab") << u"code"_s << false;
        QTest::newRow("the next view") << u"mnunextview"_s << false;
        QTest::newRow("save") << u"save"_s << true;
    }

    void leavingVisualModeCarriesTheTextBack()
    {
        QFETCH(QString, command);
        QFETCH(bool, saved);
        ViewBench bench;
        bench.select(3);
        bench.designer().html = u"<p>designed</p>"_s;
        bench.designer().dirty = true;
        if (command == u"code")
            bench.select(1);
        else
            bench.choose(command);
        QCOMPARE(bench.tabs().currentIndex(), 0);
        QCOMPARE(bench.window->rt().text(), u"<p>designed</p>"_s);
        QCOMPARE(bench.window->docModified(), !saved);
        QCOMPARE(WindowBench::read(bench.file), saved ? QByteArray("<p>designed</p>") : QByteArray("<p>old</p>\r\n"));
    }

    void aCleanDesignerChangesNothing()
    {
        ViewBench bench;
        bench.select(3);
        bench.designer().html = u"<p>rewritten</p>"_s;
        bench.choose(u"save"_s);
        QCOMPARE(bench.tabs().currentIndex(), 2); // Saving an unmodified page doesn't change the view.
        bench.select(1);
        QCOMPARE(bench.window->rt().text(), u"<p>old</p>\r\n"_s);
        QVERIFY(!bench.window->docModified());
    }

    void closingAsksForTheDesignersWork_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("closed");
        QTest::newRow("yes") << Answer::Yes << QByteArray("<p>designed</p>") << true;
        QTest::newRow("no") << Answer::No << QByteArray("<p>old</p>\r\n") << true;
        QTest::newRow("cancel") << Answer::Cancel << QByteArray("<p>old</p>\r\n") << false;
    }

    void closingAsksForTheDesignersWork()
    {
        QFETCH(Answer, answer);
        QFETCH(bool, closed);
        ViewBench bench;
        bench.window->show();
        bench.select(3);
        bench.designer().html = u"<p>designed</p>"_s;
        bench.designer().dirty = true;
        bench.prompts.expect(
            {u"Document: "_s + bench.file + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
             u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
            answer);
        QCOMPARE(bench.window->close(), closed);
        QTEST(WindowBench::read(bench.file), "file");
        if (!closed)
            QCOMPARE(bench.tabs().currentIndex(), 2);
    }

    void theDesignersWorkIsKeptForRecovery()
    {
        ViewBench bench;
        bench.window->show();
        bench.select(3);
        bench.designer().html = u"<p>designed</p>"_s;
        bench.designer().dirty = true;
        bench.prompts.expect(
            {u"Document: "_s + bench.file + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
             u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
            Answer::Cancel);
        bench.choose(u"mnuupdate"_s); // It ends the process whatever the answer.
        const QDir copies(bench.folder() + u"/recovery"_s);
        QCOMPARE(copies.entryList(QDir::Files).size(), 1);
        QCOMPARE(WindowBench::read(copies.filePath(copies.entryList(QDir::Files).front())),
                 QByteArray("<p>designed</p>"));
    }

    void aDesignersChangeIsKeptInTime()
    {
        ViewBench bench;
        bench.select(3);
        bench.designer().html = u"<p>designed</p>"_s;
        bench.designer().dirty = true;
        bench.designer().events.displayChanged();
        const QDir copies(bench.folder() + u"/recovery"_s);
        QTRY_COMPARE_WITH_TIMEOUT(copies.entryList(QDir::Files).size(), 1, 20000);
        QCOMPARE(WindowBench::read(copies.filePath(copies.entryList(QDir::Files).front())),
                 QByteArray("<p>designed</p>"));
    }

    void resetGoesBackToTheTextFromBefore()
    {
        ViewBench bench;
        bench.select(3);
        bench.designer().events.displayChanged();
        bench.write(u"site/page.html"_s, "changed on the disk");
        bench.designer().html = u"<p>designed</p>"_s;
        bench.find<QPushButton>(u"Command1"_s)->click();
        QCOMPARE(bench.designer().html, u"<p>old</p>\r\n"_s);
        QCOMPARE(bench.tabs().currentIndex(), 2);
    }

    void thePaletteInsertsIntoTheDesigner()
    {
        ViewBench bench;
        bench.select(3);
        bench.click(u"Toolbar_3"_s, u"td"_s);
        QCOMPARE(bench.designer().pasted, QStringList{u"<td></td>"_s});
        QCOMPARE(bench.window->rt().text(), u"<p>old</p>\r\n"_s);
        bench.window->InsertAtCaret(u"<b>"_s);
        QCOMPARE(bench.designer().pasted.last(), u"<b>"_s);
    }

    void aFailingModuleLeadsBackToCode_data()
    {
        QTest::addColumn<int>("tab");
        QTest::newRow("preview") << 2;
        QTest::newRow("visual") << 3;
    }

    void aFailingModuleLeadsBackToCode()
    {
        QFETCH(int, tab);
        ViewBench bench(Error{Error::Code::Failed, u"The module is missing."_s});
        bench.prompts.expectTell(u"The module is missing."_s, {}, Question::Icon::Exclamation);
        bench.select(tab);
        QCOMPARE(bench.tabs().currentIndex(), 0);
        QCOMPARE(bench.page(), bench.find<QWidget>(u"rt"_s));
        QCOMPARE(bench.menus(), u"++-----"_s);
    }

    void theToolbarComesToLifeWithTheFirstChange()
    {
        ViewBench bench;
        bench.select(3);
        const auto *bar = bench.find<QToolBar>(u"Toolbar2"_s);
        auto *bold = bar->findChild<QAction *>(u"Bold"_s);
        auto *font = bench.find<QComboBox>(u"FontCombo"_s);
        auto *size = bench.find<QComboBox>(u"FontSizeCombo"_s);
        QVERIFY(!bold->isEnabled() && !font->isEnabled() && !size->isEnabled());
        FakeDesigner &designer = bench.designer();
        designer.statuses[DesignerCommand::Bold] = DesignerStatus::On;
        designer.statuses[DesignerCommand::Indent] = DesignerStatus::Disabled;
        designer.results[DesignerCommand::GetFontName] = u"Georgia"_s;
        designer.results[DesignerCommand::GetFontSize] = 5;
        designer.events.displayChanged();
        QVERIFY(bold->isEnabled() && bold->isChecked());
        QVERIFY(!bar->findChild<QAction *>(u"Outdent"_s)->isEnabled());
        QVERIFY(bar->findChild<QAction *>(u"Indent"_s)->isEnabled());
        QCOMPARE(font->currentText(), u"Georgia"_s);
        QCOMPARE(size->currentText(), u"5"_s);
        QVERIFY(font->isEnabled() && size->isEnabled());
    }

    void toolbarButtonsAndBoxes()
    {
        ViewBench bench;
        bench.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
        bench.select(3);
        FakeDesigner &designer = bench.designer();
        designer.results[DesignerCommand::GetBlockFormatNames] = QStringList{u"Normal"_s};
        designer.results[DesignerCommand::GetFontSize] = 3;
        designer.events.documentComplete();
        QCOMPARE(bench.find<QComboBox>(u"FontSizeCombo"_s)->currentText(), QString());
        const auto ran = [&](DesignerCommand command, const QVariant &argument = {}) {
            return std::ranges::count(designer.runs, FakeDesigner::Run{command, DesignerPrompting::Default, argument});
        };
        bench.click(u"Toolbar2"_s, u"Indent"_s);
        QCOMPARE(ran(DesignerCommand::Outdent), 1);
        bench.prompts.expectColour(0, 0x0080ff);
        bench.click(u"Toolbar2"_s, u"Color"_s);
        QCOMPARE(ran(DesignerCommand::SetForeColor, u"#FF8000"_s), 1);

        auto *font = bench.find<QComboBox>(u"FontCombo"_s);
        font->setCurrentIndex(4);
        Q_EMIT font->activated(4);
        Q_EMIT font->textActivated(font->itemText(4));
        QCOMPARE(ran(DesignerCommand::SetFontName, u"Verdana"_s), 1);
        font->setEditText(u"Arial"_s); // In the list, but typed.
        QTest::keyClick(font, Qt::Key_Return);
        QCOMPARE(ran(DesignerCommand::SetFontName, u"Arial"_s), 1);

        auto *size = bench.find<QComboBox>(u"FontSizeCombo"_s);
        Q_EMIT size->activated(6);
        QCOMPARE(ran(DesignerCommand::SetFontSize, 7), 1);
        size->setEditText(u"9"_s);
        QTest::keyClick(size, Qt::Key_Return);
        QCOMPARE(size->currentText(), u"3"_s);
        size->setEditText(u"2"_s);
        QTest::keyClick(size, Qt::Key_Enter);
        QCOMPARE(ran(DesignerCommand::SetFontSize, u"2"_s), 1);
        QCOMPARE(std::ranges::count(designer.runs, DesignerCommand::SetFontSize, &FakeDesigner::Run::command), 2);
    }

    void fontsBeforeTheFirstDocumentHaveNoEffect()
    {
        ViewBench bench;
        bench.select(3);
        Q_EMIT bench.find<QComboBox>(u"FontCombo"_s)->textActivated(u"Arial"_s);
        Q_EMIT bench.find<QComboBox>(u"FontSizeCombo"_s)->activated(2);
        QVERIFY(bench.designer().runs.empty());
        QVERIFY(!bench.window->designerReady());
        bench.designer().events.documentComplete();
        QVERIFY(bench.window->designerReady());
        bench.select(1);
        QVERIFY(bench.window->designerReady()); // It stays so in every view.
    }

    void theLossOfTheDesignersProcessIsTold()
    {
        ViewBench bench;
        bench.select(3);
        bench.designer().events.processLost();
        QCOMPARE(bench.window->statusBar()->currentMessage(),
                 u"The designer's process has ended. The page is shown in its last known state."_s);
    }

    void theFormatMenu()
    {
        ViewBench bench;
        bench.select(3);
        FakeDesigner &designer = bench.designer();
        designer.results[DesignerCommand::GetBlockFormatNames] = QStringList{u"Normal"_s, u"Heading 1"_s};
        designer.results[DesignerCommand::GetBlockFormat] = u"Heading 1"_s;
        designer.events.documentComplete();
        designer.results[DesignerCommand::GetBlockFormatNames] = QStringList{u"Another"_s};
        designer.events.documentComplete(); // Only the first one counts.
        Q_EMIT bench.find<QMenu>(u"Format"_s)->aboutToShow();
        QAction *normal = bench.find<QAction>(u"FormatSub_0"_s);
        QAction *heading = bench.find<QAction>(u"FormatSub_1"_s);
        QCOMPARE(normal->text(), u"Normal"_s);
        QCOMPARE(heading->text(), u"Heading 1"_s);
        QVERIFY(!normal->isChecked() && heading->isChecked() && heading->isEnabled());
        QVERIFY(!bench.find<QAction>(u"FormatSub_2"_s)->isVisible());
        // The check marks follow the caret even while the menu is closed.
        designer.results[DesignerCommand::GetBlockFormat] = u"Normal"_s;
        designer.events.displayChanged();
        QVERIFY(normal->isChecked() && !heading->isChecked());
        normal->trigger();
        QVERIFY(
            designer.runs.back()
            == (FakeDesigner::Run{DesignerCommand::SetBlockFormat, DesignerPrompting::DontPromptUser, u"Normal"_s}));
    }

    void theOtherMenus()
    {
        ViewBench bench;
        bench.select(3);
        FakeDesigner &designer = bench.designer();
        designer.selected = u"Control"_s;
        designer.statuses[DesignerCommand::AbsolutePosition] = DesignerStatus::On;
        designer.statuses[DesignerCommand::LockElement] = DesignerStatus::On;
        designer.statuses[DesignerCommand::DeleteRows] = DesignerStatus::Disabled;
        for (const QString &menu : {u"Insert"_s, u"Table"_s, u"d2d"_s})
            Q_EMIT bench.find<QMenu>(menu)->aboutToShow();
        QVERIFY(!bench.find<QAction>(u"InsertButton"_s)->isEnabled());
        QVERIFY(!bench.find<QAction>(u"InsertHTML"_s)->isEnabled());
        QVERIFY(!bench.find<QAction>(u"TableSub_6"_s)->isEnabled());
        QVERIFY(bench.find<QAction>(u"TableSub_2"_s)->isEnabled());
        QCOMPARE(bench.find<QAction>(u"D2DSub_0"_s)->text(), u"Set Position Attribute To 1D"_s);
        QVERIFY(bench.find<QAction>(u"D2DSub_8"_s)->isChecked());
        bench.choose(u"TableSub_2"_s);
        QCOMPARE(designer.commands.back(), 5021);
        bench.choose(u"ViewSub_10"_s);
        QVERIFY(designer.snapping);
        QVERIFY(bench.find<QAction>(u"ViewSub_10"_s)->isChecked());
        bench.choose(u"ViewSub_10"_s);
        QVERIFY(!bench.find<QAction>(u"ViewSub_10"_s)->isChecked());
        designer.selected = u"None"_s;
        Q_EMIT bench.find<QMenu>(u"Insert"_s)->aboutToShow();
        bench.choose(u"InsertButton"_s);
        QCOMPARE(designer.pasted, QStringList{u"<BUTTON TITLE=Button>Button!</BUTTON>"_s});
    }

    void theContextMenuOfATable()
    {
        ViewBench bench;
        bench.select(3);
        FakeDesigner &designer = bench.designer();
        designer.statuses[DesignerCommand::AbsolutePosition] = DesignerStatus::Disabled;
        designer.events.showContextMenu({1, 1});
        QCOMPARE(designer.menuEntries.mid(7),
                 (QStringList{QString(), u"Insert Row"_s, u"Insert Column"_s, QString(), u"Delete Row"_s,
                              u"Delete Column"_s}));
        designer.events.contextMenuAction(11);
        QCOMPARE(designer.commands.back(), 5007);
        designer.statuses[DesignerCommand::InsertRow] = DesignerStatus::Disabled;
        designer.events.showContextMenu({1, 1});
        QCOMPARE(designer.menuEntries.size(), 7);
    }

    void visualModeRefusesWhatNeedsTheCodeView()
    {
        ViewBench bench;
        bench.select(3);
        bench.prompts.expectTell(u"Sorry, these tools can only be used in Code View"_s, u"Feature Limitation"_s);
        bench.choose(u"selectall"_s);
        bench.choose(u"redo"_s);
        bench.click(u"tBar"_s, u"redo"_s);
        QCOMPARE(bench.designer().commands, (std::vector<int>{5033, 5049})); // The button undoes.
    }
};

ZEPHIRA_TEST(TstWindowViews)
#include "tst_windowviews.moc"
