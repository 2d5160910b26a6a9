// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/templates.h"

#include "controls/files/filestore.h"
#include "controls/files/lineends.h"
#include "controls/files/textfile.h"

#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Page = TemplatePage;

/// Rows of the language list.
namespace row {
enum : int { text, html, cCpp, perl, xml, basic, pascal, javaScript, styleSheets };
}

constexpr std::array buttons = {
    TemplateButton{Page::Html, u"Command2", u"Blank Page", u"blank.html", row::html},
    TemplateButton{Page::Html, u"Command3", u"F.A.Q. Page", u"faq.html", row::html},
    TemplateButton{Page::Html, u"Command4", u"Feedback Page", u"feedback.html", row::html},
    TemplateButton{Page::Html, u"Command5", u"About Page", u"about.html", row::html},
    TemplateButton{Page::Html, u"Command6", u"2 Column Article Page", u"2columnbody.html", row::html},
    TemplateButton{Page::Html, u"Command7", u"Redirection Page", u"redirect.html", row::html},
    TemplateButton{Page::Html, u"Command8", u"2 Column Staggered ", u"staggeredbody.html", row::html},
    TemplateButton{Page::Html, u"Command9", u"Table of Contents ", u"toc.html", row::html},
    TemplateButton{Page::Html, u"Command11", u"One Center Column", u"onecolumn.html", row::html},
    TemplateButton{Page::Html, u"Command12", u"Confirmation Page", u"confirm.html", row::html},
    TemplateButton{Page::Frames, u"Command16", u"", u"footer.html", row::html},
    TemplateButton{Page::Frames, u"Command17", u"", u"scframe.html", row::html},
    TemplateButton{Page::Frames, u"Command18", u"", u"schframe.html", row::html},
    TemplateButton{Page::Frames, u"Command19", u"", u"linkheaderframe.html", row::html},
    TemplateButton{Page::Frames, u"Command20", u"", u"schfframe.html", row::html},
    TemplateButton{Page::Frames, u"Command21", u"", u"123topframe.html", row::html},
    TemplateButton{Page::Frames, u"Command22", u"", u"slhcframe.html", row::html},
    TemplateButton{Page::Frames, u"Command23", u"", u"5050.html", row::html},
    TemplateButton{Page::Css, u"Command13", u"Cool Blue", u"coolblue.css", row::styleSheets},
    TemplateButton{Page::Css, u"Command15", u"Street Style", u"street.css", row::styleSheets},
    TemplateButton{Page::Css, u"Command24", u"RGB", u"redgreenblue.css", row::styleSheets},
    TemplateButton{Page::Css, u"Command25", u"Neon", u"neon.css", row::styleSheets},
    TemplateButton{Page::Css, u"Command26", u"Mellow Yellow", u"mellowyellow.css", row::styleSheets},
    TemplateButton{Page::Css, u"Command27", u"Explore", u"explorer.css", row::styleSheets},
    TemplateButton{Page::Web, u"Command36", u"CGI Script", u"cgi.cgi", row::perl},
    TemplateButton{Page::Web, u"Command33", u"Warranty Disclaimer", u"warranty.html", row::html},
    TemplateButton{Page::Web, u"Command14", u"Javascript Source", u"js.js", row::javaScript},
    TemplateButton{Page::Web, u"Command29", u"Robot Exclusion", u"robots.txt", row::text},
    TemplateButton{Page::Web, u"Command30", u"Java Program", u"java.java", row::javaScript},
    TemplateButton{Page::Web, u"Command31", u"Company © Notice", u"copyright.html", row::html},
    TemplateButton{Page::Web, u"Command32", u"Mission Statement", u"mission.html", row::html},
    TemplateButton{Page::Win32, u"Command28", u"C File", u"", row::cCpp},
    TemplateButton{Page::Win32, u"Command34", u"Basic File", u"", row::basic},
    TemplateButton{Page::Win32, u"Command35", u"Pascal File", u"", row::pascal},
};

struct Ending {
    QStringView tail;
    int language;
    QStringView editorLanguage = u"";
};

/// Shorter tails first. SQL and Java sources aren't told by their names here.
constexpr Ending endings[] = {
    {u".c", row::cCpp, u"c/c++"}, {u".h", row::cCpp, u"c/c++"}, {u".pl", row::perl}, {u".js", row::javaScript},
    {u".txt", row::text}, {u".ini", row::text}, {u".log", row::text}, {u".htm", row::html}, {u".asp", row::html},
    {u".vbs", row::html}, {u".cpp", row::cCpp}, {u".cgi", row::perl}, {u".xml", row::xml}, {u".bas", row::basic},
    {u".frm", row::basic}, {u".vbp", row::basic}, {u".pas", row::pascal}, {u".css", row::styleSheets},
    {u".html", row::html},
};

} // namespace

std::span<const TemplateButton> templateButtons()
{
    return buttons;
}

std::optional<TemplateLanguage> languageOfTemplate(const QString &fileName)
{
    for (const Ending &ending : endings) {
        if (fileName.endsWith(ending.tail, Qt::CaseInsensitive))
            return TemplateLanguage{ending.language, ending.editorLanguage.toString()};
    }
    return {};
}

Result<QString> readTemplate(const FileStore &files, const QString &path)
{
    Result<QByteArray> bytes = files.read(path);
    if (bytes)
        return toCrLf(QString::fromUtf8(decodeText(std::move(bytes).value()).utf8));
    if (bytes.error().code != Error::Code::NotFound)
        return bytes.error();
    const qsizetype separator = path.lastIndexOf(u'/');
    return Error{Error::Code::NotFound, u"The template file \"%1\" was not found in the folder\r\n%2"_s.arg(
                                            path.mid(separator + 1), path.left(separator))};
}

} // namespace zephira
