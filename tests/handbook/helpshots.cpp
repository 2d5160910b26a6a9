// SPDX-License-Identifier: GPL-3.0-or-later
// helpshots DIR     saves the pictures of the handbook in DIR, each under the name of its page: of each form, of the main
//                   window and of its parts. scripts/help-pictures runs it.
#include "app/webbench.h"
#include "colour/colourportal.h"
#include "colour/fakescreen.h"
#include "colour/frmcolorspy.h"
#include "colour/registerforms.h"
#include "commands/icons.h"
#include "core/editorcommand.h"
#include "desktop/webenginestart.h"
#include "editor/codemax.h"
#include "forms/allforms.h"
#include "handbook/helptable.h"
#include "panes/filepane.h"
#include "panes/sidepane.h"
#include "panes/sidetabbar.h"
#include "support/eventwait.h"
#include "support/fakes.h"
#include "views/live/livepane.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <map>
#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr QSize windowSize(640, 440);
/// Wider pictures are made smaller, because the column of a page is not wider than this.
constexpr int widest = 736;
/// In milliseconds.
constexpr int timeToPaint = 200;

bool save(QWidget &widget, const QDir &folder, QStringView page)
{
    QTest::qWait(timeToPaint);
    QPixmap picture = widget.grab();
    if (picture.width() > widest)
        picture = picture.scaledToWidth(widest, Qt::SmoothTransformation);
    const QString file = folder.filePath(page.toString() + u".png"_s);
    if (picture.save(file))
        return true;
    QTextStream(stderr) << file << " can't be written\n";
    return false;
}

/// The document in the pictures of the main window.
constexpr const char *document = R"(<!DOCTYPE html>
<html lang="en">
<head>
  <title>Walks in Kent</title>
  <link rel="stylesheet" href="walks.css">
</head>
<body>
  <h1>Walks in Kent</h1>
  <p>Three walks for a <em>windy</em> day, none longer than ten miles.</p>
  <table border="1">
    <tr><th>Walk</th><th>Miles</th></tr>
    <tr><td><a href="wye.html">Wye Downs</a></td><td>7</td></tr>
    <tr><td><a href="dover.html">White cliffs</a></td><td>9</td></tr>
  </table>
  <img src="images/wye.jpg" alt="The chalk hill above Wye">
</body>
</html>
)";

/// The tab of the side pane on which a part is, or an empty text.
QString sideTabOf(const QString &part)
{
    static const std::map<QString, QString> tabs{{u"FilePane"_s, u"fileman"_s},
                                                 {u"asptags"_s, u"asp"_s},
                                                 {u"TRV"_s, u"html"_s},
                                                 {u"ihtmltags"_s, u"ihtml"_s},
                                                 {u"TreeView1"_s, u"documenttree"_s},
                                                 {u"frmscripts"_s, u"scripts"_s},
                                                 {u"c1"_s, u"c1"_s}};
    const auto tab = tabs.find(part);
    return tab == tabs.end() ? QString() : tab->second;
}

/// The pictures of the main window and of its parts, and of the editing control's dialogs.
class WindowPictures
{
public:
    explicit WindowPictures(const QDir &folder) : m_folder(folder), m_bench(u"walks.html"_s, document)
    {
        m_bench.window->resize(windowSize);
        // The tree begins with the project, so that nothing else of this machine shows.
        m_bench.window->filePane().setRootSelect(true);
        auto *project = m_bench.find<QLineEdit>(u"PrjPath"_s);
        project->setText(m_bench.appPath() + u'/');
        project->setText(QFileInfo(m_bench.file).path() + u'/');
        m_bench.write(u"app/ldtemp.html"_s, document);
        // This one isn't installed.
        QFile::remove(m_bench.appPath() + u"/CMakeLists.txt"_s);
    }

    bool take()
    {
        for (const HelpChapter &chapter : helpChapters()) {
            for (const HelpPage &page : chapter.pages) {
                if (page.window == u"frmmain" && !takePart(page))
                    return false;
            }
        }
        return takeForms() && takeDialog(u"find", u"FindDialog"_s, EditorCommand::FindReplaceDialog)
            && takeDialog(u"go-to-line", u"GoToDialog"_s, EditorCommand::GoToLine)
            && takeDialog(u"editor-properties", u"PropertiesDialog"_s, EditorCommand::PropertiesDialog);
    }

private:
    /// The forms as they appear when they are opened over this document.
    bool takeForms()
    {
        for (const HelpChapter &chapter : helpChapters()) {
            for (const HelpPage &page : chapter.pages) {
                const std::unique_ptr<QWidget> form = makeForm(page.window.toString());
                if (!form)
                    continue;
                form->show();
                if (!QTest::qWaitForWindowExposed(form.get()) || !save(*form, m_folder, page.name))
                    return false;
            }
        }
        return true;
    }

    /// Two forms need something that the window alone doesn't have: a misspelt word, and a screen.
    std::unique_ptr<QWidget> makeForm(const QString &name)
    {
        TestContext &world = m_world;
        std::unique_ptr<QWidget> form;
        if (name == u"SpellChecker1") {
            form.reset(m_forms.make(name, world, nullptr));
        } else if (name == u"frmZoom") {
            m_screen->pixels = m_bench.window->grab().toImage();
            m_screen->place = m_screen->pixels.rect().center();
            FormCatalogue catalogue;
            colour::registerForms(catalogue, {m_screen, [] { return nullptr; }});
            form.reset(catalogue.make(name, world, nullptr));
        } else if (m_bench.catalogue.contains(name)) {
            form.reset(m_bench.catalogue.make(name, m_bench.window->context(), nullptr));
        }
        if (form && name == u"oebrowser")
            form->findChild<QAbstractButton *>(u"objectshow"_s)->click();
        return form;
    }

    bool takePart(const HelpPage &page)
    {
        const QString part = page.parts.toString().section(u' ', 0, 0);
        if (page.name == u"preview")
            return m_bench.preview(u"Walks in Kent"_s) && save(*m_bench.window, m_folder, page.name);
        if (page.name == u"designer") {
            const bool taken = m_bench.design() && save(*m_bench.window, m_folder, page.name);
            m_bench.select(1);
            return taken;
        }
        if (part == u"pickPopup") {
            m_bench.choose(u"textCommandPalette"_s);
            const bool taken = save(*m_bench.find<QWidget>(part), m_folder, page.name);
            m_bench.find<QLineEdit>(u"txtpick"_s)->clearFocus();
            return taken;
        }
        if (part == u"List1")
            return takeSelectors(page.name);
        if (part == u"rt" || part.isEmpty())
            return save(*m_bench.window, m_folder, page.name);
        if (part == u"breadcrumb")
            return takeBreadcrumb(page.name);
        if (part == u"liveDock")
            return takeLivePage(page.name);
        if (part == u"SearchPage")
            return takeSearch(page.name);
        if (part == u"ProblemsPage")
            return takeProblems(page.name);
        if (part == u"toolpane")
            return save(*m_bench.find<QWidget>(u"paletteBar"_s), m_folder, page.name);
        selectSideTab(sideTabOf(part));
        return save(m_bench.window->sidePane(), m_folder, page.name);
    }

    /// The caret is in a cell of the table.
    void goToCell() const { m_bench.window->rt().select({10, 20, 10, 20}); }

    bool takeBreadcrumb(QStringView page)
    {
        auto *action = m_bench.find<QAction>(u"textBreadcrumb"_s);
        action->trigger();
        goToCell();
        const bool taken = save(*m_bench.find<QWidget>(u"breadcrumb"_s)->parentWidget(), m_folder, page);
        action->trigger();
        return taken;
    }

    bool takeLivePage(QStringView page)
    {
        auto *action = m_bench.find<QAction>(u"textLivePage"_s);
        action->trigger();
        auto *pane = m_bench.find<LivePane>(u"livePane"_s);
        bool shown = false;
        QObject context;
        QObject::connect(pane, &LivePane::shown, &context, [&shown] { shown = true; });
        goToCell();
        const bool taken =
            waitUntil([&] { return shown; }, WebBench::patience) && save(*m_bench.window, m_folder, page);
        action->trigger();
        return taken;
    }

    bool takeSelectors(QStringView page)
    {
        auto *selectors = m_bench.find<QWidget>(u"List1"_s);
        selectors->resize(220, 260);
        selectors->show();
        const bool taken = save(*selectors, m_folder, page);
        selectors->hide();
        return taken;
    }

    /// The panel's search, with what it finds in the project.
    bool takeSearch(QStringView page)
    {
        m_bench.find<QAction>(u"textFindInProject"_s)->trigger();
        auto *field = m_bench.find<QComboBox>(u"cboSought"_s);
        field->setEditText(u"walk"_s);
        m_bench.find<QPushButton>(u"cmdSearch"_s)->click();
        QTest::qWait(3 * timeToPaint);
        auto *panel = m_bench.find<QDockWidget>(u"toolPanel"_s);
        const bool taken = save(*panel, m_folder, page);
        panel->close();
        return taken;
    }

    /// The panel's list, with what is wrong with a page.
    bool takeProblems(QStringView page)
    {
        CodeMax &rt = m_bench.window->rt();
        const QString before = rt.text();
        rt.setText(u"<!DOCTYPE html>\n<html>\n<head><title>Walks in Kent</title></head>\n<body>\n<p class=\"note\">To "
                   "<a href=\"#canterbury\">Canterbury</a>\n<img src=\"missing.jpg\">\n<b><i>Mind the mud</b></i>\n"
                   "</body>\n</html>\n"_s);
        m_bench.find<QAction>(u"textListProblems"_s)->trigger();
        auto *panel = m_bench.find<QDockWidget>(u"toolPanel"_s);
        const auto *list = panel->findChild<QTreeView *>(u"treProblems"_s);
        // The document before this one has problems, too.
        const auto isChecked = [list] {
            const QModelIndex first = list->model()->index(0, 1);
            return !list->model()->match(first, Qt::DisplayRole, u"missing.jpg"_s, 1, Qt::MatchContains).isEmpty();
        };
        const bool taken = waitUntil(isChecked, 10000) && save(*panel, m_folder, page);
        panel->close();
        rt.setText(before);
        return taken;
    }

    void selectSideTab(const QString &key)
    {
        QTabBar &tabs = *m_bench.window->sidePane().tabs();
        for (int i = 0; i < tabs.count(); ++i) {
            if (tabs.tabData(i).toString() == key)
                tabs.setCurrentIndex(i);
        }
    }

    /// A dialog of the editing control, which stays open beside the window or is modal.
    bool takeDialog(QStringView page, const QString &name, EditorCommand command)
    {
        bool taken = false;
        QTimer::singleShot(timeToPaint, m_bench.window.get(), [&] {
            const QWidgetList windows = QApplication::topLevelWidgets();
            for (QWidget *window : windows) {
                if (window->objectName() == name && window->isVisible()) {
                    taken = save(*window, m_folder, page);
                    window->close();
                }
            }
        });
        m_bench.window->rt().executeCmd(command);
        QTest::qWait(3 * timeToPaint);
        return taken;
    }

    QDir m_folder;
    WebBench m_bench;
    TestContext m_world;
    FormCatalogue m_forms = allForms();
    std::shared_ptr<FakeScreen> m_screen = std::make_shared<FakeScreen>();
};

void useLightColours()
{
    constexpr QRgb window = 0xFFEFF0F1;
    QPalette palette{QColor(window), QColor(window)};
    palette.setColor(QPalette::Base, Qt::white);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(palette);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "1");
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    useLightColours();
    QApplication::setApplicationName(u"zephira"_s);
    const IconTheme theme(*application);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
        QTextStream(stderr) << "usage: helpshots DIR\n";
        return 2;
    }
    const QDir folder(arguments[1]);
    return WindowPictures(folder).take() ? 0 : 1;
}
