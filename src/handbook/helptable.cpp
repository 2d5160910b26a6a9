// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/helptable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView mainWindow = u"frmmain";

constexpr HelpPage windowPages[] = {
    {u"main-window", mainWindow},
    {u"code-view", mainWindow, u"rt"},
    {u"breadcrumb", mainWindow, u"breadcrumb"},
    {u"live-page", mainWindow, u"liveDock"},
    {u"preview", mainWindow, u"cbtop ww1"},
    {u"designer", mainWindow, u"Toolbar2 DHTMLEdit1"},
    {u"palette", mainWindow, u"toolpane"},
    {u"style-selectors", mainWindow, u"List1"},
    {u"side-pane", mainWindow, u"Frame1"},
    {u"file-manager", mainWindow, u"FilePane"},
    {u"asp-tags", mainWindow, u"asptags"},
    {u"tag-tree", mainWindow, u"TRV"},
    {u"ihtml-tags", mainWindow, u"ihtmltags"},
    {u"document-tree", mainWindow, u"TreeView1"},
    {u"script-library", mainWindow, u"frmscripts"},
    {u"snippets", mainWindow, u"c1 c2 c3 c4 c5 c6"},
};

constexpr HelpPage documentPages[] = {
    {u"documents"},
    {u"typing"},
    {u"start-dialog", u"frmselprj"},
    {u"find", u"FindDialog"},
    {u"find-in-project", mainWindow, u"SearchPage"},
    {u"problems", mainWindow, u"ProblemsPage"},
    {u"go-to-line", u"GoToDialog"},
    {u"command-palette", mainWindow, u"pickPopup"},
    {u"quick-view", u"frmqv"},
    {u"designer-html", u"InsertHTMLDlg"},
    {u"designer-table", u"InsertTableDlg"},
};

constexpr HelpPage wizardPages[] = {
    {u"table-wizard", u"frmTables"},
    {u"quick-table", u"frmTable"},
    {u"csv-table", u"frmcsv"},
    {u"frames-wizard", u"frmFramesWiz"},
    {u"inline-frame", u"frmiframe"},
    {u"form-wizard", u"FormWizard"},
    {u"drop-down-generator", u"frmdropdown"},
    {u"drop-down-choice", u"frmaddchoice"},
    {u"image-wizard", u"ImageWizard"},
    {u"image-map", u"ImageMap"},
    {u"link-wizard", u"frmlinkwiz"},
    {u"line-break", u"frminsbreak"},
    {u"marquee-wizard", u"frmwizMarquee"},
    {u"document-type", u"doctype"},
    {u"meta-tag-wizard", u"frmMeta"},
    {u"save-meta-tags", u"frmsavetags"},
    {u"load-meta-tags", u"frmloadtags"},
    {u"redirect", u"frmRedirect"},
    {u"cookie-wizard", u"frmwizcookie"},
    {u"vb-statements", u"frmvbwiz"},
};

constexpr HelpPage tagPages[] = {
    {u"tag-editor", u"frmTagEdit"},
    {u"tag-palette", u"frmTags"},
    {u"object-browser", u"oebrowser"},
};

constexpr HelpPage toolPages[] = {
    {u"validator", u"frmvalidate"},      {u"validator-output", u"output"},       {u"spelling", u"SpellChecker1"},
    {u"document-weight", u"frmDocSize"}, {u"link-extractor", u"frmlinkextract"}, {u"text-wizard", u"frmtextthtml"},
    {u"text-file-wizard", u"frmthcon"},  {u"web-viewer", u"frmwebdisp"},
};

constexpr HelpPage colourPages[] = {
    {u"color-picker", u"ColorPick"}, {u"color-spy", u"frmColorSpy"}, {u"color-spy-zoom", u"frmZoom"},
    {u"character-map", u"frmChar"},  {u"key-codes", u"frmascii"},
};

constexpr HelpPage ftpPages[] = {
    {u"ftp", u"frmmainftp"},
    {u"ftp-sites", u"FrmConnect"},
    {u"ftp-transfer", u"frmProg"},
};

constexpr HelpPage settingPages[] = {
    {u"options", u"frmOptions"},
    {u"editor-properties", u"PropertiesDialog"},
    {u"file-associations", u"frmfa"},
    {u"tips", u"frmTip"},
    {u"about", u"frmAbout"},
    {u"files"},
    {u"plugins"},
};

constexpr HelpPage lookUpPages[] = {
    {u"keys"},
    {u"differences"},
    {u"trouble"},
};

constexpr HelpChapter chapters[] = {
    {u"The window", windowPages}, {u"Documents", documentPages},
    {u"Wizards", wizardPages},    {u"Tags", tagPages},
    {u"Tools", toolPages},        {u"Colors and characters", colourPages},
    {u"File transfer", ftpPages}, {u"Settings and files", settingPages},
    {u"To look up", lookUpPages},
};

/// The page about the window, or about the part of it that is named; empty if there is none.
QStringView pageOf(QStringView window, QStringView part)
{
    for (const HelpChapter &chapter : chapters) {
        for (const HelpPage &page : chapter.pages) {
            if (page.window != window || window.isEmpty())
                continue;
            if (part.isEmpty() ? page.parts.isEmpty() : page.parts.split(u' ').contains(part))
                return page.name;
        }
    }
    return {};
}

} // namespace

std::span<const HelpChapter> helpChapters()
{
    return chapters;
}

QString helpFile(QStringView page)
{
    return page.toString() + u".html"_s;
}

QStringView helpPageFor(std::span<const QStringList> windows)
{
    for (const QStringList &names : windows) {
        if (names.isEmpty())
            continue;
        for (const QString &name : names) {
            const QStringView page = name.isEmpty() ? QStringView() : pageOf(names.last(), name);
            if (!page.isEmpty())
                return page;
        }
        if (const QStringView page = pageOf(names.last(), {}); !page.isEmpty())
            return page;
    }
    return contentsPage;
}

} // namespace zephira
