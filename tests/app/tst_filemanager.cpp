// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "panes/filelist.h"
#include "panes/filepane.h"
#include "panes/foldertree.h"
#include "panes/sidepane.h"
#include "panes/sidetabbar.h"
#include "support/testregistry.h"

#include <QComboBox>
#include <QDropEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The filters that RESET restores.
constexpr auto ownFilters =
    u"*.vbs;*.asp;*.ini;*.log;*.txt;*.htm;*.html;*css;*.js;*.c;*.cpp;*.h;*.pl;*.cgi;*.xml;*.pas;*.bas;*.frm;*.vbp;*.gif;"
    u"*.bmp;*.jpg;*.java;*.sql";

/// The window with a project folder "site" and the folder's files in the list.
class Bench : public WindowBench
{
public:
    /// Shows the window, so that it can be clicked.
    frmmain &start(const QString &argument = u"/nodialog"_s)
    {
        WindowBench::start(argument).show();
        return *window;
    }

    FileList &list() const { return *find<FileList>(u"ListFiles"_s); }
    FolderTree &tree() const { return *find<FolderTree>(u"DIR"_s); }
    QLineEdit &project() const { return *find<QLineEdit>(u"PrjPath"_s); }
    FileListBox &file() const { return *find<FileListBox>(u"file"_s); }
    QString site() const { return folder() + u"/site"_s; }

    void writePicture(const QString &name, const QSize &size) const
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(write(name, {}), "BMP"));
    }

    void setLanguage(const QString &language) const { find<QComboBox>(u"cboLang"_s)->setCurrentText(language); }

    /// Lists "site" without a project path being set.
    void listSite() const { find<FilePane>(u"FilePane"_s)->showFolder(site()); }

    void select(const QString &name) const
    {
        QListWidgetItem *item = list().findItems(name, Qt::MatchExactly).value(0);
        QVERIFY2(item, qPrintable(name));
        list().setCurrentItem(item);
    }

    void doubleClick(const QString &name) const
    {
        select(name);
        const QPoint place = list().visualItemRect(list().currentItem()).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
    }

    /// Opens the list's context menu as a right click does, and closes it.
    void openMenu() const
    {
        QTest::mouseClick(list().viewport(), Qt::RightButton, {}, QPoint(5, 5));
        auto *menu = find<QMenu>(u"mnufilerc"_s);
        QVERIFY(menu->isVisible());
        menu->close();
    }

    void drop(const QStringList &files) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : files)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        static_cast<QObject *>(find<SideTabBar>(u"Frame1"_s))->event(&event);
    }

    static Question savePrompt(const QString &title)
    {
        return {u"Document: "_s + title + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
                u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel};
    }

    InputRequest filtersRequest(const QString &initial) const
    {
        return {
            u"Please enter the extensions of the files you want to show, *.* indicates all, use ; to seperate extensions, "
            u"type RESET (all caps) to reset filters to Application Defaults"_s,
            u"Filters"_s, initial};
    }
};

} // namespace

class TstFileManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTwelveTabs()
    {
        Bench bench;
        bench.start();
        const auto *tabs = bench.find<QTabBar>(u"Frame1"_s);
        QStringList keys;
        QStringList captions;
        for (int i = 0; i < tabs->count(); ++i) {
            keys.append(tabs->tabData(i).toString());
            captions.append(tabs->tabText(i));
            QVERIFY(tabs->isTabEnabled(i));
            QVERIFY(!tabs->tabToolTip(i).isEmpty());
        }
        QCOMPARE(keys,
                 (QStringList{u"fileman"_s, u"asp"_s, u"html"_s, u"ihtml"_s, u"documenttree"_s, u"scripts"_s, u"c1"_s,
                              u"c2"_s, u"c3"_s, u"c4"_s, u"c5"_s, u"c6"_s}));
        QCOMPARE(captions,
                 (QStringList{u"File Manager"_s, u"ASP Codes / Tags"_s, u"HTML Tags"_s, u"IHTML Tags"_s,
                              u"Document Tree"_s, u"Script Library"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    }

    void eachTabShowsItsControlsAlone()
    {
        Bench bench;
        frmmain &window = bench.start();
        const QList<QStringList> controls{{u"DRV"_s, u"cmdprojpath"_s, u"PrjPath"_s, u"DIR"_s, u"ListFiles"_s},
                                          {u"asptags"_s},
                                          {u"TRV"_s},
                                          {u"ihtmltags"_s},
                                          {u"TreeView1"_s},
                                          {u"frmscripts"_s},
                                          {u"c1"_s},
                                          {u"c2"_s},
                                          {u"c3"_s},
                                          {u"c4"_s},
                                          {u"c5"_s},
                                          {u"c6"_s}};
        for (int tab = 0; tab < controls.size(); ++tab) {
            window.sidePane().click(tab);
            for (int other = 0; other < controls.size(); ++other) {
                for (const QString &name : controls[other])
                    QVERIFY2(bench.find<QWidget>(name)->isVisible() == (tab == other),
                             qPrintable(u"%1 on tab %2"_s.arg(name).arg(tab)));
            }
        }
    }

    void theDocumentTreeIsParsedAtEachClick()
    {
        Bench bench;
        frmmain &window = bench.start();
        const auto leaves = [&] {
            const QAbstractItemModel *model = bench.find<QTreeView>(u"TreeView1"_s)->model();
            return model
                ->match(model->index(0, 0), Qt::DisplayRole, u"x.htm"_s, -1, Qt::MatchContains | Qt::MatchRecursive)
                .size();
        };
        window.sidePane().click(4);
        window.rt().setText(u"<a href=\"x.htm\">x</a>"_s);
        QCOMPARE(leaves(), 0);
        window.sidePane().click(4);
        QCOMPARE(leaves(), 1);
    }

    void quickTagsAreTheThirdTab()
    {
        Bench bench;
        frmmain &window = bench.start();
        window.context().document.setLanguageRow(1);
        bench.find<QAction>(u"dqw"_s)->trigger();
        QCOMPARE(bench.find<QTabBar>(u"Frame1"_s)->currentIndex(), 2);
    }

    void theStartReadsTheFilters()
    {
        Bench bench;
        bench.write(u"site/a.one"_s, "");
        bench.write(u"site/a.txt"_s, "");
        QVERIFY(bench.configuration.setValue(Setting::FileFilters, u"*.one"_s));
        bench.start();
        bench.listSite();
        QCOMPARE(bench.list().names(), QStringList{u"a.one"_s});
    }

    void theShippedFiltersShowWhatPagesAreMadeOf()
    {
        Bench bench;
        const QStringList names = {u"a.avif"_s, u"a.css"_s,  u"a.html"_s,  u"a.ico"_s,  u"a.jpeg"_s, u"a.jpg"_s,
                                   u"a.json"_s, u"a.md"_s,   u"a.mjs"_s,   u"a.php"_s,  u"a.png"_s,  u"a.svg"_s,
                                   u"a.ts"_s,   u"a.webp"_s, u"a.woff2"_s, u"a.xhtml"_s};
        for (const QString &name : names)
            bench.write(u"site/"_s + name, "");
        bench.write(u"site/a.zip"_s, "");
        bench.start();
        QVERIFY(bench.file().pattern().startsWith(QStringView(ownFilters)));
        bench.listSite();
        QCOMPARE(bench.list().names(), names);
    }

    void aDoubleClickOpensAFile()
    {
        Bench bench;
        bench.write(u"site/a.css"_s, "p { }\n");
        frmmain &window = bench.start();
        bench.listSite();
        bench.doubleClick(u"a.css"_s);
        const QString path = bench.site() + u"/a.css"_s;
        QCOMPARE(window.rt().text(), u"p { }\r\n"_s);
        QCOMPARE(window.windowTitle(), u"Zephira - ["_s + path + u']');
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentText(), u"Style Sheets"_s);
        QCOMPARE(bench.project().text(), bench.site() + u'/');
        QVERIFY(!window.docModified());
    }

    void aDoubleClickAsksAboutChanges()
    {
        Bench bench;
        bench.write(u"site/a.txt"_s, "new");
        frmmain &window = bench.start(bench.write(u"old.txt"_s, "old"));
        bench.listSite();
        window.rt().setText(u"changed"_s);
        bench.prompts.expect(Bench::savePrompt(bench.folder() + u"/old.txt"_s), Answer::Cancel);
        bench.doubleClick(u"a.txt"_s);
        QCOMPARE(window.rt().text(), u"changed"_s);
        bench.prompts.expect(Bench::savePrompt(bench.folder() + u"/old.txt"_s), Answer::Yes);
        bench.doubleClick(u"a.txt"_s);
        QCOMPARE(window.rt().text(), u"new"_s);
        QCOMPARE(WindowBench::read(bench.folder() + u"/old.txt"_s), QByteArray("changed"));
    }

    void aDoubleClickCarriesTheDesignersWorkBack()
    {
        Bench bench;
        const QString page = bench.write(u"page.html"_s, "<p>old</p>");
        bench.write(u"site/a.txt"_s, "new");
        frmmain &window = bench.start(page);
        bench.listSite();
        auto *workspace = bench.find<QTabBar>(u"workspace"_s);
        workspace->setCurrentIndex(2);
        bench.webViews.designer.html = u"<p>designed</p>"_s;
        bench.webViews.designer.dirty = true;
        bench.prompts.expect(Bench::savePrompt(page), Answer::Yes);
        bench.doubleClick(u"a.txt"_s);
        QCOMPARE(WindowBench::read(page), QByteArray("<p>designed</p>"));
        QCOMPARE(workspace->currentIndex(), 0);
        QCOMPARE(window.rt().text(), u"new"_s);
        QVERIFY(!window.docModified());
    }

    void aDoubleClickDeletesThePreview_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("deleted");
        QTest::newRow("html") << u"preview/p.htmltemp.html"_s << true;
        QTest::newRow("asp") << u"preview/p.asp"_s << false;
        QTest::newRow("asp in capitals") << u"preview/P.ASP"_s << false;
    }

    void aDoubleClickDeletesThePreview()
    {
        QFETCH(QString, name);
        QFETCH(bool, deleted);
        Bench bench;
        bench.write(u"site/a.txt"_s, "a");
        frmmain &window = bench.start();
        bench.listSite();
        const QString preview = bench.write(name, "preview");
        window.document().setPreviewTarget(preview);
        bench.doubleClick(u"a.txt"_s);
        QCOMPARE(QFile::exists(preview), !deleted);
        QCOMPARE(window.rt().text(), u"a"_s);
    }

    void aFileThatVanishedIsTold()
    {
        Bench bench;
        const QString path = bench.write(u"site/a.txt"_s, "a");
        frmmain &window = bench.start();
        bench.listSite();
        window.rt().setText(u"mine"_s);
        window.document().setModified(false);
        bench.select(u"a.txt"_s);
        QVERIFY(QFile::remove(path));
        bench.prompts.expect(
            {u"An error has occured.\r\nThe file \"%1\" could not be read: it does not exist.\r\nThe routine will now reset itself..."_s
                 .arg(path),
             {},
             Question::Icon::Critical,
             Question::Buttons::Ok},
            Answer::Ok);
        // At once, before the list notices the change on the disk.
        Q_EMIT bench.list().doubleClicked(bench.list().currentIndex());
        QCOMPARE(window.rt().text(), u"mine"_s);
    }

    void anImageByLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("link");
        for (const char *language : {"HTML", "XML", "Perl"})
            QTest::newRow(language) << QString::fromLatin1(language) << true;
        for (const char *language : {"Text", "C/C++", "Basic", "Pascal", "Java / Script", "Style Sheets", "SQL"})
            QTest::newRow(language) << QString::fromLatin1(language) << false;
    }

    void anImageByLanguage()
    {
        QFETCH(QString, language);
        QFETCH(bool, link);
        Bench bench;
        bench.writePicture(u"site/img/Red.BMP"_s, {30, 20});
        frmmain &window = bench.start();
        bench.project().setText(bench.site() + u'/');
        bench.tree().setSelectedFolder(bench.site());
        bench.find<FilePane>(u"FilePane"_s)->showFolder(bench.site() + u"/img"_s);
        bench.setLanguage(language);
        window.rt().setText(u"old"_s);
        window.rt().executeCmd(EditorCommand::SelectAll);
        bench.doubleClick(u"Red.BMP"_s);
        auto *viewer = bench.window->findChild<QWidget *>(u"frmqv"_s);
        if (link) {
            // The selected text stays, in front of the image.
            QCOMPARE(window.rt().text(),
                     u"old<img src=\"img/Red.BMP\" width=\"30\" height=\"20\" alt=\"\" Border=\"0\">"_s);
            QVERIFY(!viewer);
        } else {
            QCOMPARE(window.rt().text(), u"old"_s);
            QVERIFY(viewer && viewer->isVisible());
            QCOMPARE(viewer->size(), QSize(30, 73));
        }
    }

    void anImageWithoutAProjectPath()
    {
        Bench bench;
        bench.writePicture(u"site/a.gif"_s, {3, 2});
        frmmain &window = bench.start();
        bench.listSite();
        bench.setLanguage(u"HTML"_s);
        bench.prompts.expectTell(u"Please enter a Project Path to insert image links"_s, {},
                                 Question::Icon::Exclamation);
        bench.doubleClick(u"a.gif"_s);
        QCOMPARE(window.rt().text(), QString());
    }

    void jpegOpensAsText()
    {
        Bench bench;
        bench.write(u"site/a.jpeg"_s, "bytes");
        QVERIFY(bench.configuration.setValue(Setting::FileFilters, u"*.*"_s));
        frmmain &window = bench.start();
        bench.listSite();
        bench.setLanguage(u"HTML"_s);
        bench.doubleClick(u"a.jpeg"_s);
        QCOMPARE(window.rt().text(), u"bytes"_s);
    }

    void theMenuIsOpenForAFile_data()
    {
        QTest::addColumn<QString>("filters");
        QTest::addColumn<bool>("open");
        QTest::newRow("files") << u"*.txt"_s << true;
        QTest::newRow("no match") << u"*.nothing"_s << false;
    }

    void theMenuIsOpenForAFile()
    {
        QFETCH(QString, filters);
        QFETCH(bool, open);
        Bench bench;
        bench.write(u"site/a.txt"_s, "a");
        QVERIFY(bench.configuration.setValue(Setting::FileFilters, filters));
        bench.start();
        bench.listSite();
        bench.openMenu();
        QCOMPARE(bench.find<QMenu>(u"mnufilerc"_s)->title(), u"filerc"_s);
        QCOMPARE(bench.find<QAction>(u"mnuqv"_s)->isEnabled(), open);
        QCOMPARE(bench.find<QAction>(u"mnuinslink"_s)->isEnabled(), open);
        QVERIFY(bench.find<QAction>(u"mnuef"_s)->isEnabled());
    }

    void theMenuOpensAgainWithTheNextFile()
    {
        Bench bench;
        bench.write(u"empty/none"_s, "");
        bench.write(u"site/a.txt"_s, "a");
        bench.start();
        bench.find<FilePane>(u"FilePane"_s)->showFolder(bench.folder() + u"/empty"_s);
        bench.openMenu();
        QVERIFY(!bench.find<QAction>(u"mnuinslink"_s)->isEnabled());
        bench.listSite();
        bench.openMenu();
        QVERIFY(bench.find<QAction>(u"mnuinslink"_s)->isEnabled());
    }

    void insertLink_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("link");
        QTest::newRow("same folder") << u"HOME/site/"_s << u"a.htm"_s << u"a.htm"_s;
        QTest::newRow("folder above") << u"HOME/"_s << u"a.htm"_s << u"site/a.htm"_s;
        QTest::newRow("neighbour") << u"HOME/pages/"_s << u"a.htm"_s << u"../site/a.htm"_s;
        QTest::newRow("blanks and umlauts stay") << u"HOME/site/"_s << u"ä b.htm"_s << u"ä b.htm"_s;
        QTest::newRow("any script") << u"HOME/site/"_s << u"日本.htm"_s << u"日本.htm"_s;
        QTest::newRow("an image too") << u"HOME/site/"_s << u"a.gif"_s << u"a.gif"_s;
    }

    void insertLink()
    {
        QFETCH(QString, base);
        QFETCH(QString, name);
        QFETCH(QString, link);
        Bench bench;
        bench.write(u"pages/p.htm"_s, "");
        bench.write(u"site/"_s + name, "");
        frmmain &window = bench.start();
        bench.project().setText(base.replace(u"HOME"_s, bench.folder()));
        bench.listSite();
        bench.select(name);
        window.rt().setText(u"selected"_s);
        window.rt().executeCmd(EditorCommand::SelectAll);
        bench.choose(u"mnuinslink"_s);
        // The link replaces the selection.
        QCOMPARE(window.rt().text(), u"<a href=\"%1\">%2</a>"_s.arg(link, name));
    }

    void aLinkFromADesktopFolderHasOneSeparator()
    {
        Bench bench;
        bench.write(u"site/a.htm"_s, "");
        frmmain &window = bench.start();
        bench.project().setText(bench.folder() + u'/');
        bench.listSite();
        bench.file().setPath(bench.site() + u'/');
        bench.choose(u"mnuinslink"_s);
        QCOMPARE(window.rt().text(), u"<a href=\"site/a.htm\">a.htm</a>"_s);
    }

    void aLinkWithoutAProjectPath()
    {
        Bench bench;
        bench.write(u"site/a.htm"_s, "");
        frmmain &window = bench.start();
        bench.listSite();
        // The placeholder text in the box has no folder in common with any path, so the path loses its first character.
        bench.choose(u"mnuinslink"_s);
        QCOMPARE(window.rt().text(), u"<a href=\"%1/a.htm\">a.htm</a>"_s.arg(bench.site().mid(1)));
        bench.project().setText({});
        bench.prompts.expect(
            {u"An error has occured at: frmmain in Procedure: mnuinslink_Click\r\nThe error is as follows: "
             u"Invalid procedure call or argument\r\nPlease Report this to the Zephira. team\r\nClick OK to "
             u"continue, Cancel to Exit the current SUB"_s,
             {},
             Question::Icon::Critical,
             Question::Buttons::OkCancel},
            Answer::Ok);
        const QString before = window.rt().text();
        bench.choose(u"mnuinslink"_s);
        QCOMPARE(window.rt().text(), before);
    }

    void commandsWithoutAFile()
    {
        Bench bench;
        frmmain &window = bench.start();
        bench.choose(u"mnuinslink"_s);
        bench.choose(u"mnuqv"_s);
        QCOMPARE(window.rt().text(), QString());
        QVERIFY(!window.findChild<QWidget *>(u"frmqv"_s));
    }

    void quickView()
    {
        Bench bench;
        bench.writePicture(u"site/a.gif"_s, {2000, 1500});
        bench.write(u"site/b.txt"_s, "text");
        frmmain &window = bench.start();
        window.context().document.setLanguageRow(1);
        window.rt().setText(u"document"_s);
        window.document().setModified(false);
        bench.listSite();
        bench.select(u"a.gif"_s);
        bench.choose(u"mnuqv"_s);
        auto *viewer = bench.find<QWidget>(u"frmqv"_s);
        QVERIFY(viewer->isVisible());
        QVERIFY(!viewer->isModal());
        QCOMPARE(viewer->size(), QSize(2000, 1553)); // As large as the picture, whatever the size of the screen.
        QVERIFY(viewer->findChild<QWidget *>(u"Picture1"_s)->isVisible());
        bench.select(u"b.txt"_s);
        bench.choose(u"mnuqv"_s);
        QCOMPARE(bench.window->findChildren<QWidget *>(u"frmqv"_s).size(), 1);
        auto *text = viewer->findChild<CodeMax *>(u"CodeMax1"_s);
        QVERIFY(text->isVisible());
        QVERIFY(!viewer->findChild<QWidget *>(u"Picture1"_s)->isVisible());
        QCOMPARE(text->text(), u"text"_s);
        // None of this touches the document.
        QCOMPARE(window.rt().text(), u"document"_s);
        QVERIFY(!window.docModified());
    }

    void editFilters_data()
    {
        QTest::addColumn<QString>("reply");
        QTest::addColumn<QString>("stored");
        QTest::newRow("cancel") << QString() << u"*.txt"_s;
        QTest::newRow("empty") << u""_s << u"*.txt"_s;
        QTest::newRow("new list") << u"*.htm;*.css"_s << u"*.htm;*.css"_s;
        QTest::newRow("RESET") << u"RESET"_s << QStringView(ownFilters).toString();
        QTest::newRow("reset is a filter") << u"reset"_s << u"reset"_s;
        QTest::newRow("with a blank") << u"RESET "_s << u"RESET "_s;
        QTest::newRow("nonsense") << u"[[;;*;?"_s << u"[[;;*;?"_s;
        QTest::newRow("quotes") << u"\"*.txt\""_s << u"\"*.txt\""_s;
    }

    void editFilters()
    {
        QFETCH(QString, reply);
        QFETCH(QString, stored);
        Bench bench;
        bench.write(u"site/a.txt"_s, "");
        bench.write(u"site/b.htm"_s, "");
        QVERIFY(bench.configuration.setValue(Setting::FileFilters, u"*.txt"_s));
        bench.start();
        bench.listSite();
        bench.prompts.expectInput(bench.filtersRequest(u"*.txt"_s), reply.isNull() ? std::optional<QString>() : reply);
        bench.choose(u"mnuef"_s);
        QCOMPARE(bench.configuration.value(Setting::FileFilters), stored);
        QCOMPARE(bench.file().pattern(), stored);
        QCOMPARE(bench.list().names(), QStringList{u"a.txt"_s}); // Until the next folder is chosen.
    }

    void newFiltersShowWithTheNextFolder()
    {
        Bench bench;
        bench.write(u"site/a.txt"_s, "");
        bench.write(u"site/b.htm"_s, "");
        bench.write(u"other/c.htm"_s, "");
        bench.start();
        bench.listSite();
        bench.prompts.expectInput(bench.filtersRequest(settingRow(Setting::FileFilters).shipped), u"*.htm"_s);
        bench.choose(u"mnuef"_s);
        QCOMPARE(bench.list().names(), (QStringList{u"a.txt"_s, u"b.htm"_s}));
        bench.find<FilePane>(u"FilePane"_s)->showFolder(bench.folder() + u"/other"_s);
        QCOMPARE(bench.list().names(), QStringList{u"c.htm"_s});
        bench.listSite();
        QCOMPARE(bench.list().names(), QStringList{u"b.htm"_s});
    }

    void aDroppedFileBecomesTheDocument()
    {
        Bench bench;
        const QString file = bench.write(u"site/a page.css"_s, "p { }\n");
        const QString second = bench.write(u"other/b.txt"_s, "b");
        frmmain &window = bench.start();
        bench.drop({file, second});
        QCOMPARE(window.rt().text(), u"p { }\r\n"_s);
        QCOMPARE(window.docPath(), file);
        QCOMPARE(window.docTitle(), file);
        QVERIFY(window.docHasFile());
        QVERIFY(!window.docModified());
        QCOMPARE(window.windowTitle(), u"Zephira - ["_s + file + u']');
        QCOMPARE(bench.panel(10), file);
        QCOMPARE(bench.find<QObject>(u"CM"_s)->property("FileName").toString(), file);
        QCOMPARE(bench.tree().selectedFolder(), bench.site());
        QCOMPARE(bench.list().names(), QStringList{u"a page.css"_s});
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentText(), u"Style Sheets"_s);
        QCOMPARE(bench.project().text(), u"Project Path"_s); // The file doesn't set the project.
    }

    void aDroppedImageIsLoadedLikeAnyFile()
    {
        Bench bench;
        const QString file = bench.write(u"site/a.gif"_s, "GIF89a");
        frmmain &window = bench.start();
        bench.setLanguage(u"HTML"_s);
        bench.drop({file});
        QCOMPARE(window.docPath(), file);
        QCOMPARE(window.rt().text(), u"GIF89a"_s);
    }

    void aDropAsksAboutChanges_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("saved");
        QTest::newRow("cancel") << static_cast<int>(Answer::Cancel) << u"changed"_s << QByteArray("old");
        QTest::newRow("no") << static_cast<int>(Answer::No) << u"new"_s << QByteArray("old");
        QTest::newRow("yes") << static_cast<int>(Answer::Yes) << u"new"_s << QByteArray("changed");
    }

    void aDropAsksAboutChanges()
    {
        QFETCH(int, answer);
        Bench bench;
        const QString old = bench.write(u"old.txt"_s, "old");
        const QString dropped = bench.write(u"site/a.txt"_s, "new");
        frmmain &window = bench.start(old);
        window.rt().setText(u"changed"_s);
        bench.prompts.expect(Bench::savePrompt(old), Answer(answer));
        bench.drop({dropped});
        QTEST(window.rt().text(), "text");
        QTEST(WindowBench::read(old), "saved");
        QCOMPARE(window.docModified(), answer == static_cast<int>(Answer::Cancel));
        QCOMPARE(bench.tree().selectedFolder(),
                 answer == static_cast<int>(Answer::Cancel) ? bench.folder() : bench.site());
    }

    void aDropInVisualModeLeadsToTheText()
    {
        Bench bench;
        const QString dropped = bench.write(u"site/a.html"_s, "<p>new</p>");
        frmmain &window = bench.start(bench.write(u"page.html"_s, "<p>old</p>"));
        auto *workspace = bench.find<QTabBar>(u"workspace"_s);
        workspace->setCurrentIndex(2);
        bench.webViews.designer.html = u"<p>old</p>"_s;
        bench.drop({dropped});
        // The designer still holds the previous page, which must not overwrite the new one.
        QCOMPARE(workspace->currentIndex(), 0);
        QCOMPARE(window.rt().text(), u"<p>new</p>"_s);
        QVERIFY(!window.docModified());
    }

    void aDropThatCannotBeReadIsTold()
    {
        Bench bench;
        frmmain &window = bench.start();
        window.rt().setText(u"mine"_s);
        window.document().setModified(false);
        bench.prompts.expectTell(u"The file \"%1\" could not be read: it is a folder."_s.arg(bench.folder()), {},
                                 Question::Icon::Exclamation);
        bench.drop({bench.folder()});
        QCOMPARE(window.rt().text(), u"mine"_s);
        QVERIFY(!window.docHasFile());
    }

    void rootSelectIsRead_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("root");
        QTest::newRow("1") << u"1"_s << true;
        QTest::newRow("2") << u"2"_s << false;
    }

    void rootSelectIsRead()
    {
        QFETCH(QString, value);
        QFETCH(bool, root);
        Bench bench;
        const QString file = bench.write(u"site/a.txt"_s, "a");
        QVERIFY(bench.configuration.setValue(Setting::RootSelection, value));
        bench.start(file);
        QCOMPARE(bench.tree().rootFolder(), root ? bench.site() : QString());
        QCOMPARE(bench.tree().selectedFolder(), bench.site());
        QCOMPARE(bench.list().names(), QStringList{u"a.txt"_s});
    }
};

ZEPHIRA_TEST(TstFileManager)
#include "tst_filemanager.moc"
