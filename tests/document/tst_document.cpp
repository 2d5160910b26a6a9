// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/languages.h"
#include "document/document.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

constexpr auto requiredOpenFilter =
    u"All Supported Files|*.vbs;*.asp;*.ini;*.log;*.txt;*.htm;*.html;*.java;*css;*.js;*.c;*.cpp;*.h;*.pl;*.cgi;*.xml;*.pas;"
    u"*.bas;*.frm;*.vbp;*.sql|All Files|*.*|Text / INI / LOG Files|*.txt;*.ini;*.log|Html Files|*.html;*.htm|Java / Script "
    u"Files|*.js;*.java|Style Sheets|*.cs|C/C++ Files|*.c;*.cpp;*.h|Perl Files|*.pl|CGI/Perl Files|*.cgi|XML Files|*.xml|"
    u"Pascal Files|*.pas|Basic Files|*.bas;*.frm;*.vbp|ASP / VBScript Files|*.asp;*.vbs|SQL Files|*.sql";

/// The window as the document sees it.
struct FakeWindow final : DocumentWindow {
    QString caption;
    int count = -1;
    QString pathPanel;
    bool modifiedShown = false;
    QStringList selected;
    QStringList notices;
    int codeTabs = 0;
    int settled = 0;
    int kept = 0;
    int choosers = 0;
    QString file;
    QString folder = u"/site/img"_s;
    QStringList pictures;
    Result<QSize> size = QSize(120, 80);

    void setCaption(const QString &text) override { caption = text; }
    void setCountPanel(int characters) override { count = characters; }
    void setPathPanel(const QString &text) override { pathPanel = text; }
    void showModified(bool modified) override { modifiedShown = modified; }
    void notice(const QString &sentence) override { notices.append(sentence); }
    /// Called when the code view is selected.
    std::function<void()> onCodeTab;
    void selectCodeTab() override
    {
        ++codeTabs;
        if (onCodeTab)
            onCodeTab();
    }
    void documentSettled() override { ++settled; }
    void keepUnsavedText() override { ++kept; }
    void showTemplateChooser() override { ++choosers; }
    QStringList used;
    void fileUsed(const QString &path) override { used.append(path); }
    QString listedFile() const override { return file; }
    QString listedFolder() const override { return folder; }
    void selectListedFile(const QString &path) override { selected.append(path); }
    Result<QSize> pictureSize(const QString &) const override { return size; }
    Result<void> showPicture(const QString &path) override
    {
        pictures.append(path);
        return {};
    }
};

/// A document with fakes for everything around it and the change event connected.
struct Bench {
    TestContext fakes;
    CommonDialog dialog;
    FakeWindow window;
    Document document{fakes, dialog, window};

    Bench()
    {
        fakes.editor.onChange = [this] { document.textChanged(); };
    }

    static Question savePrompt(const QString &title, Question::Icon icon = Question::Icon::Question)
    {
        return {u"Document: "_s + title + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                u"Document Modified."_s, icon, Question::Buttons::YesNoCancel};
    }

    FileRequest openRequest() const
    {
        return {u"Open a document..."_s, QStringView(requiredOpenFilter).toString(), {}, false, dialog.fileName()};
    }

    FileRequest saveRequest(const QString &filter = u"Text Files|*.txt|All Files|*.*"_s,
                            const QString &folder = u"Project Path"_s) const
    {
        return {u"Save a document..."_s, filter, folder, true, dialog.fileName()};
    }

    static Question overwrite(const QString &name)
    {
        return {u"File: "_s + name + u"\n\nThe file you have entered\nalready exists. Overwrite?"_s, u"Overwrite?"_s,
                Question::Icon::Question, Question::Buttons::YesNoCancel};
    }

    void openFile(const QString &path, const QByteArray &content)
    {
        fakes.files.contents[path] = content;
        fakes.prompts.expectFile(openRequest(), path);
        document.open();
    }
};

} // namespace

class TstDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doNewResetsEverything()
    {
        Bench bench;
        bench.openFile(u"/site/page.html"_s, "<html>");
        bench.document.doNew();
        QVERIFY(!bench.document.docModified());
        QVERIFY(!bench.document.docHasFile());
        QCOMPARE(bench.window.used, QStringList{u"/site/page.html"_s});
        QCOMPARE(bench.document.docTitle(), u"New Document"_s);
        QCOMPARE(bench.document.docPath(), QString());
        QCOMPARE(bench.fakes.editor.text(), QString());
        QCOMPARE(bench.fakes.editor.languageName, QString());
        QCOMPARE(bench.fakes.document.row, 0);
        QCOMPARE(bench.window.caption, u"Zephira - [New Document]"_s);
        QCOMPARE(bench.window.pathPanel, u"Untitled"_s);
        QCOMPARE(bench.dialog.fileName(), QString());
    }

    void doNewAsksWithoutAnIcon()
    {
        Bench bench;
        bench.document.doNew();
        bench.fakes.editor.setText(u"x"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s, Question::Icon::None), Answer::Cancel);
        bench.document.doNew();
        QCOMPARE(bench.fakes.editor.text(), u"x"_s);
        QVERIFY(bench.document.docModified());
    }

    void doNewGoesOnAfterACancelledSave()
    {
        Bench bench;
        bench.document.doNew();
        bench.fakes.editor.setText(u"x"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s, Question::Icon::None), Answer::Yes);
        bench.fakes.prompts.expectFile(bench.saveRequest(), std::nullopt);
        bench.document.doNew();
        QCOMPARE(bench.fakes.editor.text(), QString());
        QVERIFY(!bench.document.docModified());
        QCOMPARE(bench.window.kept, 1);
    }

    void openSetsEveryField()
    {
        Bench bench;
        bench.openFile(u"/site/my page.html"_s, "<html>\r\n</html>");
        QCOMPARE(bench.fakes.editor.text(), u"<html>\r\n</html>"_s);
        QVERIFY(bench.document.docHasFile());
        QVERIFY(!bench.document.docModified());
        QCOMPARE(bench.document.docPath(), u"/site/my page.html"_s);
        QCOMPARE(bench.document.docTitle(), u"/site/my page.html"_s);
        QCOMPARE(bench.window.caption, u"Zephira - [/site/my page.html]"_s);
        QCOMPARE(bench.window.pathPanel, u"/site/my page.html"_s);
        QCOMPARE(bench.window.count, 15);
        QCOMPARE(bench.fakes.document.project, u"/site/"_s);
        QCOMPARE(bench.fakes.document.row, 1);
        QCOMPARE(bench.dialog.fileName(), u"/site/my page.html"_s);
        QCOMPARE(bench.window.codeTabs, 1);
        QVERIFY((bench.fakes.editor.commands
                 == std::vector<FakeEditor::ExecutedCommand>{{numberOf(EditorCommand::GoToLine), 0}}));
    }

    void aCancelledOpenChangesNothing()
    {
        Bench bench;
        bench.openFile(u"/site/a.css"_s, "a{}");
        bench.fakes.prompts.expectFile(bench.openRequest(), std::nullopt);
        bench.document.open();
        QCOMPARE(bench.dialog.fileName(), u"/site/a.css"_s);
        QCOMPARE(bench.document.docPath(), u"/site/a.css"_s);
        QCOMPARE(bench.fakes.document.row, 8);
    }

    void openAsksAboutChangesFirst()
    {
        Bench bench;
        bench.openFile(u"/a.txt"_s, "one");
        bench.fakes.editor.setText(u"two"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"/a.txt"_s), Answer::Cancel);
        bench.document.open();
        QCOMPARE(bench.fakes.files.contents[u"/a.txt"_s], QByteArray("one"));

        bench.fakes.prompts.expect(Bench::savePrompt(u"/a.txt"_s), Answer::Yes);
        bench.fakes.prompts.expectFile(bench.openRequest(), std::nullopt);
        bench.document.open();
        QCOMPARE(bench.fakes.files.contents[u"/a.txt"_s], QByteArray("two"));

        bench.fakes.editor.setText(u"three"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"/a.txt"_s), Answer::No);
        bench.fakes.prompts.expectFile(bench.openRequest(), std::nullopt);
        bench.document.open();
        QCOMPARE(bench.fakes.files.contents[u"/a.txt"_s], QByteArray("two"));
    }

    void aFileThatCannotBeReadSetsTheFieldsAllTheSame()
    {
        Bench bench;
        bench.fakes.editor.setText(u"kept"_s);
        bench.document.setModified(false);
        bench.fakes.editor.openError = Error{Error::Code::Unreadable, u"/gone.html can't be read."_s};
        bench.fakes.prompts.expectFile(bench.openRequest(), u"/gone.html"_s);
        bench.document.open();
        QCOMPARE(bench.document.docPath(), u"/gone.html"_s);
        QVERIFY(bench.document.docHasFile());
        QCOMPARE(bench.fakes.editor.text(), u"kept"_s);
        QCOMPARE(bench.window.notices, QStringList{u"/gone.html can't be read."_s});
    }

    void aHugeFileIsRefusedWithAMessage()
    {
        Bench bench;
        bench.fakes.editor.openError = Error{Error::Code::TooLarge, u"/big is too large."_s};
        bench.fakes.prompts.expectFile(bench.openRequest(), u"/big"_s);
        bench.fakes.prompts.expectTell(u"/big is too large."_s, {}, Question::Icon::Exclamation);
        bench.document.open();
    }

    void saveWithoutAFileIsSaveAs()
    {
        Bench bench;
        bench.fakes.editor.setText(u"text"_s);
        bench.fakes.prompts.expectFile(bench.saveRequest(), u"/new.css"_s);
        bench.document.save();
        QCOMPARE(bench.fakes.files.contents[u"/new.css"_s], QByteArray("text"));
        QCOMPARE(bench.fakes.document.row, 8); // The language follows the new extension.
        QCOMPARE(bench.document.docTitle(), u"/new.css"_s);
        QCOMPARE(bench.dialog.fileName(), u"/new.css"_s);
        QCOMPARE(bench.fakes.document.project, u"/"_s);
        QVERIFY(!bench.document.docModified());

        bench.fakes.editor.setText(u"more"_s);
        bench.document.save();
        QCOMPARE(bench.window.used, QStringList{u"/new.css"_s});
        QCOMPARE(bench.fakes.files.contents[u"/new.css"_s], QByteArray("more"));
        QCOMPARE(bench.window.settled, 2);
        QVERIFY(!bench.document.docModified());
    }

    void aFailingSaveIsToldAndKeepsTheState()
    {
        Bench bench;
        bench.openFile(u"/a.txt"_s, "one");
        bench.fakes.editor.setText(u"two"_s);
        bench.fakes.editor.saveError = Error{Error::Code::Unwritable, u"/a.txt can't be written: the disk is full."_s};
        bench.fakes.prompts.expectTell(u"/a.txt can't be written: the disk is full."_s, {},
                                       Question::Icon::Exclamation);
        QVERIFY(!bench.document.doSave());
        QVERIFY(bench.document.docModified());
        QCOMPARE(bench.fakes.files.contents[u"/a.txt"_s], QByteArray("one"));
    }

    void aFailingSaveAsKeepsTheFields()
    {
        Bench bench;
        bench.openFile(u"/a.txt"_s, "one");
        bench.fakes.editor.setText(u"two"_s);
        bench.fakes.editor.saveError = Error{Error::Code::Unwritable, u"no"_s};
        bench.fakes.prompts.expectFile(bench.saveRequest(u"Text Files|*.txt|All Files|*.*"_s, u"/"_s), u"/b.css"_s);
        bench.fakes.prompts.expectTell(u"no"_s, {}, Question::Icon::Exclamation);
        bench.document.saveAs();
        QVERIFY(bench.fakes.prompts.verify());
        QCOMPARE(bench.document.docPath(), u"/a.txt"_s);
        QCOMPARE(bench.dialog.fileName(), u"/a.txt"_s);
        QCOMPARE(bench.window.used, QStringList{u"/a.txt"_s});
        QCOMPARE(bench.fakes.document.row, 0);
        QVERIFY(bench.document.docModified());
        QCOMPARE(bench.window.notices, QStringList());
    }

    void theWindowShowsWhatIsUnsaved()
    {
        Bench bench;
        bench.openFile(u"/a.txt"_s, "one");
        QVERIFY(!bench.window.modifiedShown);
        bench.fakes.editor.setText(u"two"_s);
        QVERIFY(bench.window.modifiedShown);
        QVERIFY(bench.document.doSave());
        QVERIFY(!bench.window.modifiedShown);
        bench.fakes.editor.setText(u"three"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"/a.txt"_s, Question::Icon::None), Answer::No);
        bench.document.doNew();
        QVERIFY(!bench.window.modifiedShown);
    }

    void theFileIsSelectedInItsList()
    {
        Bench bench;
        bench.openFile(u"/a.txt"_s, "one");
        bench.fakes.prompts.expectFile(bench.saveRequest(u"Text Files|*.txt|All Files|*.*"_s, u"/"_s), u"/b.txt"_s);
        bench.document.saveAs();
        bench.document.openFileOrImage(u"/a.txt"_s);
        bench.document.openAtStart(u"/b.txt"_s);
        QCOMPARE(bench.window.selected, (QStringList{u"/a.txt"_s, u"/b.txt"_s, u"/a.txt"_s, u"/b.txt"_s}));
    }

    void aRecoveredTextIsANewChangedDocument()
    {
        Bench bench;
        bench.openFile(u"/a.txt"_s, "one");
        bench.fakes.editor.setText(u"changed"_s);
        bench.fakes.files.contents[u"/recovery/open-1-1-b.css"_s] = "p { }";
        bench.fakes.prompts.expect(Bench::savePrompt(u"/a.txt"_s), Answer::Cancel);
        bench.document.openRecovered(u"/recovery/open-1-1-b.css"_s, u"b.css"_s);
        QCOMPARE(bench.fakes.editor.text(), u"changed"_s);

        bench.fakes.prompts.expect(Bench::savePrompt(u"/a.txt"_s), Answer::No);
        bench.document.openRecovered(u"/recovery/open-1-1-b.css"_s, u"b.css"_s);
        QCOMPARE(bench.fakes.editor.text(), u"p { }"_s);
        QCOMPARE(bench.window.caption, u"Zephira - [New Document]"_s);
        QCOMPARE(bench.window.pathPanel, u"Untitled"_s);
        QCOMPARE(bench.fakes.document.row, 8);
        QCOMPARE(bench.dialog.fileName(), QString());
        QVERIFY(bench.document.docModified());
        QVERIFY(!bench.document.docHasFile());

        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s), Answer::No);
        bench.fakes.editor.openError = Error{Error::Code::Unreadable, u"It is gone."_s};
        bench.fakes.prompts.expectTell(u"It is gone."_s, {}, Question::Icon::Exclamation);
        bench.document.openRecovered(u"/recovery/none"_s, u"c.htm"_s);
        QCOMPARE(bench.fakes.editor.text(), u"p { }"_s);
    }

    void noAtTheOverwritePromptOpensTheDialogAgain()
    {
        Bench bench;
        bench.fakes.editor.setText(u"mine"_s);
        bench.fakes.files.contents[u"/there.txt"_s] = "theirs";
        bench.fakes.prompts.expectFile(bench.saveRequest(), u"/there.txt"_s);
        bench.fakes.prompts.expect(Bench::overwrite(u"/there.txt"_s), Answer::No);
        bench.fakes.prompts.expectFile(bench.saveRequest(), u"/there.txt"_s);
        bench.fakes.prompts.expect(Bench::overwrite(u"/there.txt"_s), Answer::Cancel);
        bench.document.saveAs();
        QCOMPARE(bench.fakes.files.contents[u"/there.txt"_s], QByteArray("theirs"));
        QVERIFY(bench.document.docModified());

        bench.fakes.prompts.expectFile(bench.saveRequest(), u"/there.txt"_s);
        bench.fakes.prompts.expect(Bench::overwrite(u"/there.txt"_s), Answer::Yes);
        bench.document.saveAs();
        QCOMPARE(bench.fakes.files.contents[u"/there.txt"_s], QByteArray("mine"));
    }

    void aBlankNameIsNoName()
    {
        Bench bench;
        bench.fakes.editor.setText(u"x"_s);
        bench.fakes.prompts.expectFile(bench.saveRequest(), u" "_s);
        bench.document.saveAs();
        QVERIFY(bench.fakes.files.contents.empty());
    }

    void aRowOutsideTheTableKeepsTheFilter()
    {
        Bench bench;
        bench.dialog.setFilter(u"Left|*.left"_s);
        bench.fakes.document.row = -1;
        bench.fakes.prompts.expectFile(bench.saveRequest(u"Left|*.left"_s), std::nullopt);
        bench.document.saveAs();
    }

    void theDesignersTextIsCarriedBackFirst()
    {
        Bench bench;
        bench.openFile(u"/a.html"_s, "old");
        bench.fakes.designer.showing = true;
        bench.fakes.designer.html = u"<p>new</p>"_s;
        bench.document.save(); // The designer is visible but unmodified: no text is taken from it.
        QCOMPARE(bench.fakes.files.contents[u"/a.html"_s], QByteArray("old"));
        bench.fakes.designer.dirty = true;
        bench.window.onCodeTab = [&] { bench.fakes.editor.setText(bench.fakes.designer.html); };
        const int tabs = bench.window.codeTabs;
        bench.document.save();
        QCOMPARE(bench.fakes.files.contents[u"/a.html"_s], QByteArray("<p>new</p>"));
        QCOMPARE(bench.window.codeTabs, tabs + 1);
    }

    void newDocumentDeletesThePreviewButSparesAnAddress()
    {
        Bench bench;
        bench.fakes.files.contents[u"/site/page.htmltemp.html"_s] = "preview";
        bench.document.setPreviewTarget(u"/site/page.htmltemp.html"_s);
        bench.document.newDocument();
        QVERIFY(!bench.fakes.files.contents.contains(u"/site/page.htmltemp.html"_s));

        bench.fakes.files.contents[u"/www/a.ASP"_s] = "served";
        bench.document.setPreviewTarget(u"/www/a.ASP"_s);
        bench.document.newDocument();
        QVERIFY(bench.fakes.files.contents.contains(u"/www/a.ASP"_s));
    }

    void theNextPreviewTakesTheCopyOfTheLastAway()
    {
        Bench bench;
        bench.fakes.files.contents = {{u"/site/a.htmltemp.html"_s, "one"}, {u"/site/b.htmltemp.html"_s, "two"}};
        bench.document.setPreviewTarget(u"/site/a.htmltemp.html"_s);
        bench.document.setPreviewTarget(u"/site/a.htmltemp.html"_s);
        QCOMPARE(bench.fakes.files.contents.size(), static_cast<std::size_t>(2));
        bench.document.setPreviewTarget(u"/site/b.htmltemp.html"_s);
        QVERIFY(!bench.fakes.files.contents.contains(u"/site/a.htmltemp.html"_s));
        QVERIFY(bench.fakes.files.contents.contains(u"/site/b.htmltemp.html"_s));
    }

    void aPreviewsCopyThatBecameTheDocumentStays()
    {
        Bench bench;
        const QString copy = u"/site/page.htmltemp.html"_s;
        bench.fakes.files.contents[copy] = "preview";
        bench.document.setPreviewTarget(copy);
        bench.document.openFileOrImage(copy);
        QCOMPARE(bench.document.docPath(), copy);
        bench.document.newDocument();
        QCOMPARE(bench.fakes.files.contents[copy], QByteArray("preview"));
    }

    void fromTemplateShowsTheChooser()
    {
        Bench bench;
        bench.document.newFromTemplate();
        QCOMPARE(bench.window.choosers, 1);
        QCOMPARE(bench.document.docTitle(), u"New Document"_s);
    }

    void anImageBecomesALinkBehindTheSelection_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"HTML", "XML", "Perl"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    void anImageBecomesALinkBehindTheSelection()
    {
        QFETCH(QString, language);
        Bench bench;
        bench.fakes.editor.setText(u"see here"_s);
        QVERIFY(bench.fakes.editor.selectPart(u"here"_s));
        bench.fakes.document.language = language;
        bench.fakes.document.project = u"/site/pages/"_s;
        bench.window.file = u"Logo.GIF"_s;
        bench.document.OpenAFile();
        QCOMPARE(bench.fakes.editor.text(),
                 u"see here<img src=\"../img/Logo.GIF\" width=\"120\" height=\"80\" alt=\"\" Border=\"0\">"_s);
    }

    void anImageWithoutAProjectPathGivesAMessage()
    {
        Bench bench;
        bench.fakes.document.language = u"HTML"_s;
        bench.window.file = u"a.bmp"_s;
        bench.fakes.prompts.expectTell(u"Please enter a Project Path to insert image links"_s, {},
                                       Question::Icon::Exclamation);
        bench.document.OpenAFile();
        QCOMPARE(bench.fakes.editor.text(), QString());
    }

    /// An emptied box isn't the initial one: the link is tried, and fails for want of a base.
    void anImageWithAnEmptyProjectPathFails()
    {
        Bench bench;
        bench.fakes.document.language = u"HTML"_s;
        bench.fakes.document.project.clear();
        bench.window.file = u"a.bmp"_s;
        bench.fakes.prompts.expectTell(
            u"An error has occured.\r\nInvalid procedure call or argument\r\nThe routine will now reset itself..."_s,
            {}, Question::Icon::Critical);
        bench.document.OpenAFile();
        QCOMPARE(bench.fakes.editor.text(), QString());
    }

    void anImageInOtherLanguagesGoesToTheQuickView_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"Text", "C/C++", "Basic", "Pascal", "Java / Script", "Style Sheets", "SQL"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    void anImageInOtherLanguagesGoesToTheQuickView()
    {
        QFETCH(QString, language);
        Bench bench;
        bench.fakes.document.language = language;
        bench.window.file = u"a.jpg"_s;
        bench.document.OpenAFile();
        QCOMPARE(bench.window.pictures, QStringList{u"/site/img/a.jpg"_s});
        QVERIFY(!bench.document.docHasFile());
    }

    void jpegIsText()
    {
        Bench bench;
        bench.fakes.document.language = u"HTML"_s;
        bench.fakes.files.contents[u"/site/img/a.jpeg"_s] = "bytes";
        bench.window.file = u"a.jpeg"_s;
        bench.document.OpenAFile();
        QCOMPARE(bench.document.docPath(), u"/site/img/a.jpeg"_s);
        QCOMPARE(bench.dialog.fileName(), u"/site/img/a.jpeg"_s);
        QCOMPARE(bench.fakes.editor.text(), u"bytes"_s);
        QCOMPARE(bench.fakes.document.project, u"/site/img/"_s);
        QCOMPARE(bench.window.codeTabs, 0); // The view isn't changed.
        QVERIFY((bench.fakes.editor.commands
                 == std::vector<FakeEditor::ExecutedCommand>{{numberOf(EditorCommand::GoToLine), 0}}));
    }

    void errorsOfOpenAFileAreTold()
    {
        Bench bench;
        bench.window.file = u"gone.html"_s;
        bench.fakes.editor.openError = Error{Error::Code::NotFound, u"gone.html was not found."_s};
        bench.fakes.prompts.expect(
            {u"An error has occured.\r\ngone.html was not found.\r\nThe routine will now reset itself..."_s,
             {},
             Question::Icon::Critical,
             Question::Buttons::Ok},
            Answer::Ok);
        bench.document.OpenAFile();
        QVERIFY(!bench.document.docHasFile());
    }

    void revertAsksAndReadsAgain()
    {
        Bench bench;
        bench.document.revert(); // There is no file to revert to.
        bench.openFile(u"/a.html"_s, "saved");
        bench.fakes.editor.setText(u"changed"_s);
        const Question question{
            u"Are you sure you wish to discard changes and revert to last saved copy of this document?"_s,
            {},
            Question::Icon::Question,
            Question::Buttons::YesNo};
        bench.fakes.prompts.expect(question, Answer::No);
        bench.document.revert();
        QCOMPARE(bench.fakes.editor.text(), u"changed"_s);
        bench.fakes.prompts.expect(question, Answer::Yes);
        bench.document.revert();
        QCOMPARE(bench.fakes.editor.text(), u"saved"_s);
        QCOMPARE(bench.fakes.designer.loaded, QStringList{u"/a.html"_s});
        QVERIFY(bench.document.docModified()); // Unchanged.
    }

    void revertWithoutTheFileLeavesBothViews()
    {
        Bench bench;
        bench.openFile(u"/a.html"_s, "saved");
        bench.fakes.editor.setText(u"changed"_s);
        bench.fakes.files.contents.erase(u"/a.html"_s);
        bench.fakes.editor.openError = Error{Error::Code::Unreadable, u"/a.html isn't there."_s};
        bench.fakes.prompts.expect(
            {u"Are you sure you wish to discard changes and revert to last saved copy of this document?"_s,
             {},
             Question::Icon::Question,
             Question::Buttons::YesNo},
            Answer::Yes);
        bench.fakes.prompts.expectTell(u"/a.html isn't there."_s, {}, Question::Icon::Exclamation);
        bench.document.revert();
        QVERIFY(bench.fakes.prompts.verify());
        QCOMPARE(bench.fakes.editor.text(), u"changed"_s);
        QCOMPARE(bench.fakes.designer.loaded, QStringList());
        QVERIFY(bench.document.docModified());
    }

    void saveAsTemplate()
    {
        Bench bench;
        const InputRequest request{u"What do you wish to call this file? (Please Include Extension)"_s,
                                   u"Save as Template"_s};
        bench.fakes.editor.setText(u"tpl"_s);
        bench.fakes.prompts.expectInput(request, u""_s);
        bench.fakes.prompts.expectTell(u"You did not enter a file name, the file will not be saved"_s);
        bench.document.saveAsTemplate();
        bench.fakes.prompts.expectInput(request, std::nullopt);
        bench.fakes.prompts.expectTell(u"You did not enter a file name, the file will not be saved"_s);
        bench.document.saveAsTemplate();
        bench.fakes.files.contents[u"/app/templates/custom/my.html"_s] = "old";
        bench.fakes.prompts.expectInput(request, u"my.html"_s);
        bench.document.saveAsTemplate();
        QCOMPARE(bench.fakes.files.contents[u"/app/templates/custom/my.html"_s], QByteArray("tpl"));
        QVERIFY(bench.document.docModified());
        QVERIFY(!bench.document.docHasFile());
        bench.fakes.prompts.expectInput(request, u"../my.html"_s);
        bench.fakes.prompts.expectTell(u"A template's name can't contain a folder: ../my.html"_s, {},
                                       Question::Icon::Exclamation);
        bench.document.saveAsTemplate();
        bench.fakes.prompts.expectInput(request, u"my\tpage.html"_s);
        bench.fakes.prompts.expectTell(
            u"A template's name can't contain a line end, a tab or any other control character."_s, {},
            Question::Icon::Exclamation);
        bench.document.saveAsTemplate();
        QCOMPARE(bench.fakes.files.contents.size(), 1U);
    }

    void clearClipboard()
    {
        Bench bench;
        const Question question{u"Are you sure you wish to clear the clipboard?"_s, u"Clipboard"_s,
                                Question::Icon::Question, Question::Buttons::YesNo};
        bench.fakes.clipboard.content = u"secret"_s;
        bench.fakes.prompts.expect(question, Answer::No);
        bench.document.clearClipboard();
        QCOMPARE(bench.fakes.clipboard.content, u"secret"_s);
        bench.fakes.prompts.expect(question, Answer::Yes);
        bench.document.clearClipboard();
        QCOMPARE(bench.fakes.clipboard.content, QString());
    }

    void printAsksTheControl()
    {
        Bench bench;
        bench.document.print();
        QCOMPARE(bench.fakes.editor.calls, QStringList{u"print"_s});
    }

    void closing()
    {
        Bench bench;
        QVERIFY(bench.document.askToClose());
        bench.document.doNew();
        bench.fakes.editor.setText(u"x"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s), Answer::Cancel);
        QVERIFY(!bench.document.askToClose());
        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s), Answer::No);
        QVERIFY(bench.document.askToClose());
        QVERIFY(!bench.document.saveFailedAtClose());
        // The answer is Yes, but the save dialog is cancelled: the window closes anyway.
        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s), Answer::Yes);
        bench.fakes.prompts.expectFile(bench.saveRequest(), std::nullopt);
        QVERIFY(bench.document.askToClose());
        QVERIFY(bench.document.saveFailedAtClose());
    }

    void theStartSetsTheFieldsBeforeItReads()
    {
        Bench bench;
        bench.fakes.files.contents[u"/a.h"_s] = "int x;";
        bench.document.openAtStart(u"/a.h"_s);
        QCOMPARE(bench.window.caption, u"Zephira - [/a.h]"_s);
        QCOMPARE(bench.fakes.document.row, 2);
        QCOMPARE(bench.fakes.editor.languageName, u"c/c++"_s);
        QCOMPARE(bench.fakes.editor.text(), u"int x;"_s);
        QVERIFY(!bench.document.docModified());
    }

    void aDroppedImageFollowsTheRuleOfTheFilePane()
    {
        Bench bench;
        bench.document.openFileOrImage(u"/drop/a.gif"_s);
        QCOMPARE(bench.window.pictures, QStringList{u"/drop/a.gif"_s});
        bench.fakes.document.language = u"HTML"_s;
        bench.fakes.document.project = u"/drop/"_s;
        bench.document.openFileOrImage(u"/drop/a.gif"_s);
        QCOMPARE(bench.fakes.editor.text(), u"<img src=\"a.gif\" width=\"120\" height=\"80\" alt=\"\" Border=\"0\">"_s);
        QVERIFY(!bench.document.docHasFile());
    }

    void aFileDroppedOnTheSidePaneBecomesTheDocumentWhateverItIs()
    {
        Bench bench;
        bench.fakes.files.contents[u"/d/a.gif"_s] = "GIF89a";
        QVERIFY(bench.document.openDropped(u"/d/a.gif"_s));
        QCOMPARE(bench.fakes.editor.text(), u"GIF89a"_s);
        QCOMPARE(bench.document.docPath(), u"/d/a.gif"_s);
        QCOMPARE(bench.dialog.fileName(), u"/d/a.gif"_s);
        QCOMPARE(bench.window.caption, u"Zephira - [/d/a.gif]"_s);
        QCOMPARE(bench.window.pathPanel, u"/d/a.gif"_s);
        QCOMPARE(bench.window.count, 6);
        QVERIFY(!bench.document.docModified());
        QCOMPARE(bench.fakes.document.project, u"Project Path"_s);
        // Changes in the designer count like any other change.
        bench.fakes.designer.showing = true;
        bench.fakes.designer.dirty = true;
        bench.window.onCodeTab = [&] { bench.fakes.editor.setText(u"<p>designed</p>"_s); };
        bench.fakes.prompts.expect(Bench::savePrompt(u"/d/a.gif"_s), Answer::Cancel);
        QVERIFY(!bench.document.openDropped(u"/d/b.txt"_s));
        QCOMPARE(bench.fakes.editor.text(), u"<p>designed</p>"_s);
    }

    void aDroppedFileThatCannotBeReadChangesNothing()
    {
        Bench bench;
        bench.openFile(u"/d/a.txt"_s, "a");
        bench.fakes.prompts.expectTell(u"/d/none.txt doesn't exist."_s, {}, Question::Icon::Exclamation);
        QVERIFY(!bench.document.openDropped(u"/d/none.txt"_s));
        QCOMPARE(bench.document.docPath(), u"/d/a.txt"_s);
        QCOMPARE(bench.fakes.editor.text(), u"a"_s);
    }

    void aDroppedFileBecomesTheDocument()
    {
        Bench bench;
        bench.document.doNew();
        bench.fakes.files.contents[u"/d/a.xml"_s] = "<a/>";
        bench.fakes.editor.setText(u"x"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s), Answer::Cancel);
        bench.document.openFileOrImage(u"/d/a.xml"_s);
        QCOMPARE(bench.fakes.editor.text(), u"x"_s);
        bench.fakes.prompts.expect(Bench::savePrompt(u"New Document"_s), Answer::No);
        bench.document.openFileOrImage(u"/d/a.xml"_s);
        QCOMPARE(bench.fakes.editor.text(), u"<a/>"_s);
        QCOMPARE(bench.fakes.document.row, 4);
        QVERIFY(!bench.document.docModified());
    }
};

ZEPHIRA_TEST(TstDocument)
#include "tst_document.moc"
