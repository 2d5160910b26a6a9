// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "views/workspaceviews.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The window as the views see it. It records its calls and which view is shown.
struct FakeWindow final : WorkspaceWindow {
    bool modified = false;
    /// The result of doSave(); true also clears the modified flag.
    bool savingWorks = true;
    int saves = 0;
    QString previewTarget;
    QStringList notices;
    /// A view that is unavailable.
    std::optional<WorkspaceView> missing;
    WorkspaceView shown = WorkspaceView::Code;
    bool sourceMenus = true;
    bool visualMenus = false;
    bool waiting = false;
    WorkspaceViews *views = nullptr;
    FakeDesigner *designer = nullptr;
    int tab = 0;

    bool docModified() const override { return modified; }
    void markModified() override { modified = true; }
    bool doSave() override
    {
        ++saves;
        if (savingWorks)
            modified = false;
        return savingWorks;
    }
    void setPreviewTarget(const QString &target) override { previewTarget = target; }
    QString scratchFolder() const override { return u"/scratch"_s; }
    int document = 0;
    int documentNumber() const override { return document; }
    bool remoteShown = false;
    void showRemoteAllowed(bool allowed) override { remoteShown = allowed; }
    void notice(const QString &sentence) override { notices.append(sentence); }
    bool prepare(WorkspaceView view) override { return view != missing; }
    void showControls(WorkspaceView view) override
    {
        shown = view;
        designer->showing = view == WorkspaceView::Visual;
    }
    void setSourceMenusEnabled(bool enabled) override { sourceMenus = enabled; }
    void setVisualMenusEnabled(bool enabled) override { visualMenus = enabled; }
    void setWaiting(bool on) override { waiting = on; }
    void selectTab(WorkspaceView view) override
    {
        tab = static_cast<int>(view);
        views->select(view);
    }
};

struct Bench {
    TestContext world;
    FakeBrowser browser;
    FakeWindow window;
    WorkspaceViews views{world, browser, window};

    Bench()
    {
        window.views = &views;
        window.designer = &world.designer;
        world.editor.onChange = [this] { window.modified = true; };
        world.document.row = 1;
    }

    /// Opens an HTML document that is in a file and isn't modified.
    void openFile(const QString &path, const QString &text)
    {
        world.files.contents[path] = text.toUtf8();
        world.editor.setText(text);
        world.document.dialogFile = path;
        window.modified = false;
    }

    void select(WorkspaceView view) { window.selectTab(view); }
    QByteArray file(const QString &path) const
    {
        const auto entry = world.files.contents.find(path);
        return entry == world.files.contents.end() ? QByteArray("(none)") : entry->second;
    }
};

const Question saveQuestion{
    u"You must save your document in order to use the visual editor, please click OK to continue, or cancel to go back to code view"_s,
    u"Save Work"_s, Question::Icon::Question, Question::Buttons::OkCancel};

Question serverQuestion(const QString &end)
{
    return {
        u"You must save your ASP document to your web servers root directory in order to continue, press OK to save this document to the directory you designated as your LOCAL web server's root directory, with the filename: "_s
            + end,
        {},
        Question::Icon::Question,
        Question::Buttons::OkCancel};
}

const QString takenEnd =
    u"prevzephirafile.asp because a file with a name identical to yours already exists in your root directory"_s;

} // namespace

class TstWorkspaceViews final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsWhileTheDesignerIsLeft_data()
    {
        QTest::addColumn<bool>("asks");
        QTest::addColumn<int>("next");
        QTest::newRow("nothing") << false << 0;
        QTest::newRow("a command on the way to code") << true << 0;
        QTest::newRow("a command on the way to the preview") << true << 1;
    }

    /// finishLeaving() while the designer's text is being transferred completes the change of view, and what is done then
    /// isn't overwritten. Asking whether visual mode is showing only gives an answer.
    void commandsWhileTheDesignerIsLeft()
    {
        QFETCH(bool, asks);
        QFETCH(int, next);
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"old"_s);
        bench.select(WorkspaceView::Visual);
        bench.world.designer.dirty = true;
        bench.world.designer.html = u"new"_s;
        bench.world.designer.meanwhile = [&] {
            QVERIFY(bench.window.waiting);
            QVERIFY(bench.world.context.designer.isShowing());
            QCOMPARE(bench.world.editor.text(), u"old"_s);
            if (!asks)
                return;
            bench.views.finishLeaving();
            QVERIFY(!bench.window.waiting);
            QVERIFY(!bench.world.designer.showing);
            QCOMPARE(bench.world.editor.text(), u"new"_s);
            bench.world.editor.setText(u"newer"_s);
        };
        bench.select(WorkspaceView(next));
        QCOMPARE(bench.world.editor.text(), asks ? u"newer"_s : u"new"_s);
        QVERIFY(bench.window.modified);
        QCOMPARE(static_cast<int>(bench.window.shown), next);
        QVERIFY(!bench.window.waiting);
        const int selected = bench.window.tab;
        bench.views.finishLeaving();
        QCOMPARE(bench.window.tab, selected);
        QCOMPARE(static_cast<int>(bench.window.shown), next);
    }

    void aPageThatIsWrittenAsAWholeIsTold_data()
    {
        QTest::addColumn<bool>("isDirty");
        QTest::addColumn<WholePage>("whole");
        QTest::addColumn<QStringList>("notices");
        QTest::newRow("what was touched") << true << WholePage::No << QStringList();
        QTest::newRow("too large")
            << true << WholePage::TooLarge
            << QStringList{u"This page is very large: it was written anew as a whole, not only what was changed."_s};
        QTest::newRow("not found")
            << true << WholePage::NotFound
            << QStringList{u"The page was written anew as a whole: the place of the changes was not found in time."_s};
        QTest::newRow("nothing written") << false << WholePage::TooLarge << QStringList();
    }

    void aPageThatIsWrittenAsAWholeIsTold()
    {
        QFETCH(bool, isDirty);
        QFETCH(WholePage, whole);
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"old"_s);
        bench.select(WorkspaceView::Visual);
        bench.world.designer.dirty = isDirty;
        bench.world.designer.html = u"new"_s;
        bench.world.designer.whole = whole;
        bench.select(WorkspaceView::Code);
        QTEST(bench.window.notices, "notices");
        QCOMPARE(bench.world.editor.text(), isDirty ? u"new"_s : u"old"_s);
    }

    void theLossOfAProcessIsTold()
    {
        Bench bench;
        bench.browser.processLost();
        bench.views.designerLost();
        QCOMPARE(bench.window.notices.size(), 2);
        QVERIFY(bench.window.notices[0] != bench.window.notices[1]);
    }

    void bothViewsKnowTheProject()
    {
        Bench bench;
        bench.openFile(u"/site/pages/page.html"_s, u"old"_s);
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.browser.projectFolder, QString());
        bench.select(WorkspaceView::Code);
        bench.world.document.project = u"/site/"_s;
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.browser.projectFolder, u"/site/"_s);
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.world.designer.projectFolder, u"/site/"_s);
    }

    void permissionForOtherMachines_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("otherProject");
        QTest::addColumn<QString>("otherName");
        QTest::addColumn<bool>("atOnce");       // Whether the other document is allowed as well.
        QTest::addColumn<bool>("afterRestart"); // Whether the first one still is.
        QTest::newRow("a page beside it in the project")
            << u"/site/"_s << u"/site/a.html"_s << u"/site"_s << u"/site/sub/b.html"_s << true << true;
        QTest::newRow("another project") << u"/site/"_s << u"/site/a.html"_s << u"/other/"_s << u"/other/a.html"_s
                                         << false << true;
        QTest::newRow("a project whose name begins the same")
            << u"/site"_s << u"/site/a.html"_s << u"/site2"_s << u"/site2/a.html"_s << false << true;
        QTest::newRow("a page elsewhere")
            << u"/site/"_s << u"/site/a.html"_s << u"/site/"_s << u"/b.html"_s << false << true;
        QTest::newRow("without a project")
            << u"Project Path"_s << u"/site/a.html"_s << u"Project Path"_s << u"/site/b.html"_s << false << false;
        QTest::newRow("outside of the project")
            << u"/site/"_s << u"/a.html"_s << u"/site/"_s << u"/site/a.html"_s << false << false;
        QTest::newRow("without a file") << u"Project Path"_s << u""_s << u"Project Path"_s << u""_s << false << false;
    }

    /// A document in the project is allowed with all of the project, and for good; another one alone, while the program runs.
    void permissionForOtherMachines()
    {
        QFETCH(QString, project);
        QFETCH(QString, name);
        Bench bench;
        bench.world.document.project = project;
        bench.world.document.dialogFile = name;
        bench.select(WorkspaceView::Preview);
        QVERIFY(!bench.browser.isRemoteAllowed);
        QVERIFY(!bench.world.designer.isRemoteAllowed);
        bench.browser.calls.clear();
        bench.views.allowRemote();
        QVERIFY(bench.browser.isRemoteAllowed);
        QVERIFY(bench.world.designer.isRemoteAllowed);
        QCOMPARE(bench.browser.calls, QStringList{u"refresh"_s});
        bench.select(WorkspaceView::Preview);
        QVERIFY(bench.browser.isRemoteAllowed);
        QVERIFY(bench.window.remoteShown);

        // Taken back and given again.
        bench.browser.calls.clear();
        bench.views.forbidRemote();
        QVERIFY(!bench.browser.isRemoteAllowed);
        QVERIFY(!bench.world.designer.isRemoteAllowed);
        QVERIFY(!bench.window.remoteShown);
        QCOMPARE(bench.browser.calls, QStringList{u"refresh"_s});
        {
            WorkspaceViews later(bench.world, bench.browser, bench.window);
            later.select(WorkspaceView::Preview);
            QVERIFY(!bench.browser.isRemoteAllowed);
        }
        bench.views.allowRemote();

        WorkspaceViews restarted(bench.world, bench.browser, bench.window);
        restarted.select(WorkspaceView::Preview);
        QTEST(bench.browser.isRemoteAllowed, "afterRestart");

        QFETCH(QString, otherProject);
        QFETCH(QString, otherName);
        bench.world.document.project = otherProject;
        bench.world.document.dialogFile = otherName;
        ++bench.window.document;
        bench.select(WorkspaceView::Preview);
        QTEST(bench.browser.isRemoteAllowed, "atOnce");
        QTEST(bench.world.designer.isRemoteAllowed, "atOnce");
    }

    /// Going back to the designer before it has been left keeps it selected.
    void goingBackToTheDesignerMeanwhile()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"old"_s);
        bench.select(WorkspaceView::Visual);
        bench.world.designer.dirty = true;
        bench.world.designer.meanwhile = [&] { bench.select(WorkspaceView::Visual); };
        bench.select(WorkspaceView::Code);
        QCOMPARE(bench.window.shown, WorkspaceView::Visual);
        QCOMPARE(bench.world.editor.text(), u"old"_s);
        QVERIFY(!bench.window.waiting);
    }

    void controlsAndMenus_data()
    {
        QTest::addColumn<QList<int>>("way"); // Views selected one after the other: 0 code, 1 preview, 2 visual.
        QTest::addColumn<bool>("sourceMenus");
        QTest::addColumn<bool>("visualMenus");
        QTest::newRow("code") << QList<int>{} << true << false;
        QTest::newRow("code to preview") << QList<int>{1} << true << false;
        QTest::newRow("code to visual") << QList<int>{2} << false << true;
        QTest::newRow("preview to code") << QList<int>{1, 0} << true << false;
        QTest::newRow("preview to visual") << QList<int>{1, 2} << false << true;
        QTest::newRow("visual to code") << QList<int>{2, 0} << true << false;
        QTest::newRow("visual to preview: the source menus are not changed") << QList<int>{2, 1} << false << false;
        QTest::newRow("round") << QList<int>{2, 1, 0} << true << false;
    }

    void controlsAndMenus()
    {
        QFETCH(QList<int>, way);
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<p>"_s);
        for (const int view : std::as_const(way))
            bench.select(WorkspaceView(view));
        QCOMPARE(static_cast<int>(bench.window.shown), way.isEmpty() ? 0 : way.last());
        QCOMPARE(static_cast<int>(bench.views.current()), way.isEmpty() ? 0 : way.last());
        QTEST(bench.window.sourceMenus, "sourceMenus");
        QTEST(bench.window.visualMenus, "visualMenus");
    }

    void previewByLanguage_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("saved");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QString>("target");
        const QString copy = u"/site/page.htmltemp.html"_s;
        const QStringList none{u"/app/deps/filenoprev.htm"_s};
        QTest::newRow("Text") << 0 << QString() << none << QString();
        QTest::newRow("HTML") << 1 << copy << QStringList{copy} << copy;
        QTest::newRow("C/C++") << 2 << QString() << none << QString();
        QTest::newRow("Perl") << 3 << QString() << none << QString();
        QTest::newRow("XML") << 4 << copy << QStringList{copy} << copy;
        QTest::newRow("Basic") << 5 << QString() << none << QString();
        QTest::newRow("Pascal") << 6 << QString() << none << QString();
        QTest::newRow("Java / Script") << 7 << copy << QStringList{copy} << copy;
        QTest::newRow("Style Sheets") << 8 << u"/app/deps/style.css"_s << QStringList{u"/app/deps/CSSpreview.html"_s}
                                      << QString();
        QTest::newRow("SQL") << 9 << QString() << QStringList() << QString();
        QTest::newRow("no row") << -1 << QString() << QStringList() << QString();
    }

    void previewByLanguage()
    {
        QFETCH(QString, saved);
        QFETCH(int, row);
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"old"_s);
        bench.world.editor.setText(u"text"_s);
        bench.world.document.row = row;
        bench.select(WorkspaceView::Preview);
        QTEST(bench.browser.calls, "shown");
        QTEST(bench.window.previewTarget, "target");
        if (!saved.isEmpty())
            QCOMPARE(bench.file(saved), QByteArray("text"));
        QCOMPARE(bench.world.files.log, saved.isEmpty() ? QStringList() : QStringList{u"write "_s + saved});
        // A preview doesn't count as a save.
        QVERIFY(bench.window.modified);
        QCOMPARE(bench.window.saves, 0);
        QCOMPARE(bench.file(u"/site/page.html"_s), QByteArray("old"));
        QCOMPARE(bench.world.document.dialogFile, u"/site/page.html"_s);
    }

    void onlyTheHtmlRowIsAPageByAnyName_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("isPage");
        QTest::newRow("HTML") << 1 << true;
        QTest::newRow("XML") << 4 << false;
        QTest::newRow("Java / Script") << 7 << false;
        QTest::newRow("Style Sheets") << 8 << false;
    }

    void onlyTheHtmlRowIsAPageByAnyName()
    {
        QFETCH(int, row);
        QFETCH(bool, isPage);
        Bench bench;
        bench.openFile(u"/site/page.vbs"_s, u"text"_s);
        bench.world.document.row = row;
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.browser.homeKind == FileKind::Page, isPage);
    }

    void aStyleSheetLeavesThePreviewTarget()
    {
        Bench bench;
        bench.openFile(u"/site/a.css"_s, u"p { }"_s);
        bench.world.document.row = 8;
        bench.window.previewTarget = u"/site/page.htmltemp.html"_s;
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.window.previewTarget, u"/site/page.htmltemp.html"_s);
    }

    void previewCopyNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("copy");
        QTest::newRow("html") << u"/site/page.html"_s << u"/site/page.htmltemp.html"_s;
        QTest::newRow("js") << u"/a.js"_s << u"/a.jstemp.js"_s;
        QTest::newRow("two dots") << u"/a.b.xml"_s << u"/a.b.xmltemp.xml"_s;
        QTest::newRow("capitals") << u"/A.HTM"_s << u"/A.HTMtemp.HTM"_s;
        QTest::newRow("no extension") << u"/site.v1/page"_s << u"/site.v1/pagetemp."_s;
        QTest::newRow("backslash") << u"C:\\v.1\\page"_s << u"C:\\v.1\\pagetemp."_s;
    }

    void previewCopyNames()
    {
        QFETCH(QString, name);
        QTEST(previewCopyName(name), "copy");
    }

    void aDocumentWithoutAFileGoesToTheProject()
    {
        const QTemporaryDir project;
        Bench bench;
        bench.world.editor.setText(u"new"_s);
        bench.world.document.project = project.path() + u'/';
        bench.select(WorkspaceView::Preview);
        const QString copy = project.path() + u"/zephiratempfile.htm"_s;
        QCOMPARE(bench.window.previewTarget, copy);
        QCOMPARE(bench.file(copy), QByteArray("new"));
        QCOMPARE(bench.browser.calls, QStringList{copy});
    }

    void aDocumentWithoutAFileOrProjectGoesToTheScratchFolder_data()
    {
        QTest::addColumn<QString>("project");
        QTest::newRow("not set") << u"Project Path"_s;
        QTest::newRow("not there") << u"/nowhere/at/all/"_s;
    }

    void aDocumentWithoutAFileOrProjectGoesToTheScratchFolder()
    {
        QFETCH(QString, project);
        Bench bench;
        bench.world.editor.setText(u"new"_s);
        bench.world.document.project = project;
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.window.previewTarget, u"/scratch/temp.html"_s);
        QCOMPARE(bench.browser.calls, QStringList{u"/scratch/temp.html"_s});
        QVERIFY(bench.window.modified);
    }

    void previewingTwiceWritesTheSameFile()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"one"_s);
        bench.select(WorkspaceView::Preview);
        bench.world.editor.setText(u"two"_s);
        bench.select(WorkspaceView::Preview); // This tab was selected already.
        const QString copy = u"/site/page.htmltemp.html"_s;
        QCOMPARE(bench.browser.calls, (QStringList{copy, copy}));
        QCOMPARE(bench.file(copy), QByteArray("two"));
        QCOMPARE(bench.browser.home, copy);
    }

    void aCopyThatCannotBeWrittenIsOnlyNoted()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"text"_s);
        const QString copy = u"/site/page.htmltemp.html"_s;
        bench.world.files.unwritable[copy] = {Error::Code::Unwritable, u"It is read-only."_s};
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.browser.calls, QStringList{copy});
        QCOMPARE(bench.window.notices, QStringList{u"It is read-only."_s});
        QCOMPARE(static_cast<int>(bench.window.shown), 1);
    }

    void asp_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("taken");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("copy");
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("target");
        const QString other = u"prevzephirafile.asp"_s;
        QTest::newRow("free") << u"/site/a.asp"_s << QString() << false << true << u"a.asp"_s << u"/www/a.asp"_s
                              << u"http://localhost/a.asp"_s << u"http://localhost/a.asp"_s;
        QTest::newRow("capitals") << u"/site/A.ASP"_s << QString() << false << true << u"A.ASP"_s << u"/www/A.ASP"_s
                                  << u"http://localhost/A.ASP"_s << u"http://localhost/A.ASP"_s;
        QTest::newRow("free, refused") << u"/site/a.asp"_s << QString() << false << false << u"a.asp"_s << QString()
                                       << QString() << QString();
        QTest::newRow("taken") << u"/site/a.asp"_s << QString() << true << true << takenEnd << u"/www/"_s + other
                               << u"http://localhost/prevzephirafile.asp"_s << QString();
        QTest::newRow("taken, refused") << u"/site/a.asp"_s << QString() << true << false << takenEnd << QString()
                                        << QString() << QString();
        QTest::newRow("another server") << u"/site/a.asp"_s << u"http://127.0.0.1:8080"_s << false << true << u"a.asp"_s
                                        << u"/www/a.asp"_s << u"http://127.0.0.1:8080/a.asp"_s
                                        << u"http://127.0.0.1:8080/a.asp"_s;
        QTest::newRow("a blank") << u"/site/a b#.asp"_s << u"http://127.0.0.1:8080/x/"_s << false << true
                                 << u"a b#.asp"_s << u"/www/a b#.asp"_s << u"http://127.0.0.1:8080/x/a%20b%23.asp"_s
                                 << u"http://127.0.0.1:8080/x/a%20b%23.asp"_s;
    }

    void asp()
    {
        QFETCH(QString, name);
        QFETCH(QString, url);
        QFETCH(bool, taken);
        QFETCH(bool, ok);
        QFETCH(QString, question);
        QFETCH(QString, copy);
        QFETCH(QString, address);
        Bench bench;
        bench.world.configuration.put(u"server"_s, u"root"_s, u"/www/"_s);
        bench.world.configuration.put(u"server"_s, u"url"_s, url);
        bench.openFile(name, u"<% x %>"_s);
        if (taken)
            bench.world.files.contents[u"/www/a.asp"_s] = "theirs";
        bench.world.prompts.expect(serverQuestion(question), ok ? Answer::Ok : Answer::Cancel);
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.world.files.log, copy.isEmpty() ? QStringList() : QStringList{u"write "_s + copy});
        if (!copy.isEmpty())
            QCOMPARE(bench.file(copy), QByteArray("<% x %>"));
        if (taken)
            QCOMPARE(bench.file(u"/www/a.asp"_s), QByteArray("theirs"));
        QCOMPARE(bench.browser.calls, address.isEmpty() ? QStringList() : QStringList{address});
        QTEST(bench.window.previewTarget, "target");
        QCOMPARE(static_cast<int>(bench.window.shown), 1); // Also after a refusal.
    }

    void aspWithoutARootIsABareName()
    {
        Bench bench;
        bench.openFile(u"/site/a.asp"_s, u"x"_s);
        bench.world.prompts.expect(serverQuestion(u"a.asp"_s), Answer::Ok);
        bench.select(WorkspaceView::Preview);
        QCOMPARE(bench.world.files.log, QStringList{u"write a.asp"_s});
    }

    void aSavedDocumentIsLoadedFromDisk()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<p>"_s);
        bench.world.document.project = u"/site/"_s;
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.world.designer.loaded, QStringList{u"/site/page.html"_s});
        QCOMPARE(bench.world.designer.html, QString());
        QCOMPARE(bench.views.designerBase(), u"/site/"_s);
        QCOMPARE(bench.browser.calls, QStringList{u"about:blank"_s});
    }

    void aModifiedDocumentIsSavedFirst()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<p>"_s);
        bench.world.editor.setText(u"<b>"_s);
        bench.world.prompts.expect(saveQuestion, Answer::Ok);
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.window.saves, 1);
        QCOMPARE(bench.world.designer.loaded, QStringList{u"/site/page.html"_s});
        QCOMPARE(bench.world.designer.html, QString());
    }

    void refusingTheSaveGoesBackToCode_data()
    {
        QTest::addColumn<int>("from");
        QTest::newRow("code") << 0;
        QTest::newRow("preview") << 1;
    }

    void refusingTheSaveGoesBackToCode()
    {
        QFETCH(int, from);
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<p>"_s);
        bench.world.editor.setText(u"<b>"_s);
        bench.select(WorkspaceView(from));
        bench.world.prompts.expect(saveQuestion, Answer::Cancel);
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.window.tab, 0);
        QCOMPARE(static_cast<int>(bench.window.shown), 0);
        QCOMPARE(bench.window.saves, 0);
        QVERIFY(bench.window.sourceMenus);
        QVERIFY(!bench.window.visualMenus);
        QCOMPARE(bench.world.editor.text(), u"<b>"_s);
        QVERIFY(bench.window.modified);
        QVERIFY(bench.world.designer.loaded.isEmpty());
    }

    void aSaveThatFailsBringsTheTextByValue()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<p>"_s);
        bench.world.editor.setText(u"<b>"_s);
        bench.window.savingWorks = false;
        bench.world.prompts.expect(saveQuestion, Answer::Ok);
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.world.designer.loaded, QStringList{u"/site/page.html"_s});
        QCOMPARE(bench.world.designer.html, u"<b>"_s);
        QVERIFY(bench.window.modified);
    }

    void aDocumentWithoutAFileComesByValue()
    {
        Bench bench;
        bench.world.editor.setText(u"<i>"_s);
        bench.window.savingWorks = false; // The user cancels the save dialog.
        bench.world.designer.base = u"/before.html"_s;
        bench.world.prompts.expect(saveQuestion, Answer::Ok);
        bench.select(WorkspaceView::Visual);
        QVERIFY(bench.world.designer.loaded.isEmpty());
        QCOMPARE(bench.world.designer.base, QString());
        QCOMPARE(bench.world.designer.html, u"<i>"_s);
        QCOMPARE(bench.views.designerBase(), QString());
    }

    void leavingVisualModeCarriesChangesBack_data()
    {
        QTest::addColumn<int>("to");
        QTest::addColumn<bool>("dirty");
        QTest::newRow("to code") << 0 << true;
        QTest::newRow("to preview") << 1 << true;
        QTest::newRow("to code, clean") << 0 << false;
        QTest::newRow("to preview, clean") << 1 << false;
    }

    void leavingVisualModeCarriesChangesBack()
    {
        QFETCH(int, to);
        QFETCH(bool, dirty);
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<P>"_s);
        bench.select(WorkspaceView::Visual);
        bench.world.designer.html = u"<p>new</p>"_s;
        bench.world.designer.dirty = dirty;
        bench.select(WorkspaceView(to));
        QCOMPARE(bench.world.editor.text(), dirty ? u"<p>new</p>"_s : u"<P>"_s);
        QCOMPARE(bench.window.modified, dirty);
        if (to == 1)
            QCOMPARE(bench.file(u"/site/page.htmltemp.html"_s), bench.world.editor.text().toUtf8());
    }

    /// The code view gets the designer's changes where they lead to its text, and otherwise the text.
    void onlyChangesAreCarriedBack_data()
    {
        QTest::addColumn<TextChanges>("changes");
        QTest::addColumn<bool>("asChanges");
        QTest::newRow("of this text") << TextChanges{{1, 2, u"b"_s}} << true;
        QTest::newRow("of another text") << TextChanges{{1, 2, u"c"_s}} << false;
        QTest::newRow("beyond this text") << TextChanges{{1, 200, u"b"_s}} << false;
        QTest::newRow("none") << TextChanges{} << false;
    }
    void onlyChangesAreCarriedBack()
    {
        QFETCH(TextChanges, changes);
        QFETCH(bool, asChanges);
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<P>a"_s);
        bench.select(WorkspaceView::Visual);
        bench.world.designer.dirty = true;
        bench.world.designer.html = u"<b>a"_s;
        bench.world.designer.changes = changes;
        bench.select(WorkspaceView::Code);
        QCOMPARE(bench.world.editor.text(), u"<b>a"_s);
        QVERIFY(bench.window.modified);
        QCOMPARE(bench.world.editor.partChanges, asChanges ? QList{changes} : QList<TextChanges>());
    }

    void visualModeIsNotEnteredTwice()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<p>"_s);
        bench.select(WorkspaceView::Visual);
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.world.designer.loaded.size(), 1); // A second click doesn't lose what was typed there.
    }

    void resetGoesBackToTheTextOfTheCodeView()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"file"_s);
        bench.select(WorkspaceView::Visual);
        bench.world.files.contents[u"/site/page.html"_s] = "changed meanwhile";
        bench.world.designer.html = u"edited"_s;
        bench.views.reset();
        QCOMPARE(bench.world.designer.html, u"file"_s);
        QCOMPARE(static_cast<int>(bench.window.shown), 2);
        QVERIFY(!bench.window.modified);
    }

    void aViewThatCannotBeHadLeadsBackToCode()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"x"_s);
        bench.window.missing = WorkspaceView::Visual;
        bench.select(WorkspaceView::Preview);
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.window.tab, 0);
        QCOMPARE(static_cast<int>(bench.window.shown), 0);
        QVERIFY(bench.world.designer.loaded.isEmpty());
    }

    void aFileThatCannotBeReadComesByValue()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, u"<p>mine</p>"_s);
        bench.world.designer.html = u"another page"_s;
        bench.world.designer.unreadable = true;
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.world.designer.html, u"<p>mine</p>"_s);
        QCOMPARE(bench.world.designer.base, u"/site/page.html"_s);
        QVERIFY(!bench.window.modified);
    }

    void kindsOfFilesInVisualMode_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"/a.htm", "/a.asp", "/a.vbs", "/a.js", "/a.xml", "/a.css", "/a.c", "/a.sql"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void kindsOfFilesInVisualMode()
    {
        QFETCH(QString, name);
        Bench bench;
        bench.openFile(name, u"text"_s);
        bench.select(WorkspaceView::Visual);
        QCOMPARE(bench.world.designer.loaded, QStringList{name});
    }
};

ZEPHIRA_TEST(TstWorkspaceViews)
#include "tst_workspaceviews.moc"
