// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/templates.h"

#include "core/filestore.h"
#include "core/languages.h"
#include "core/paths.h"
#include "files/lineends.h"
#include "files/textfile.h"

#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Page = TemplatePage;
using enum language::Row;

constexpr std::array buttons = {
    TemplateButton{Page::Html, u"Command2", u"Blank Page", u"blank.html", Html},
    TemplateButton{Page::Html, u"Command3", u"F.A.Q. Page", u"faq.html", Html},
    TemplateButton{Page::Html, u"Command4", u"Feedback Page", u"feedback.html", Html},
    TemplateButton{Page::Html, u"Command5", u"About Page", u"about.html", Html},
    TemplateButton{Page::Html, u"Command6", u"2 Column Article Page", u"2columnbody.html", Html},
    TemplateButton{Page::Html, u"Command7", u"Redirection Page", u"redirect.html", Html},
    TemplateButton{Page::Html, u"Command8", u"2 Column Staggered ", u"staggeredbody.html", Html},
    TemplateButton{Page::Html, u"Command9", u"Table of Contents ", u"toc.html", Html},
    TemplateButton{Page::Html, u"Command11", u"One Center Column", u"onecolumn.html", Html},
    TemplateButton{Page::Html, u"Command12", u"Confirmation Page", u"confirm.html", Html},
    TemplateButton{Page::Frames, u"Command16", u"", u"footer.html", Html},
    TemplateButton{Page::Frames, u"Command17", u"", u"scframe.html", Html},
    TemplateButton{Page::Frames, u"Command18", u"", u"schframe.html", Html},
    TemplateButton{Page::Frames, u"Command19", u"", u"linkheaderframe.html", Html},
    TemplateButton{Page::Frames, u"Command20", u"", u"schfframe.html", Html},
    TemplateButton{Page::Frames, u"Command21", u"", u"123topframe.html", Html},
    TemplateButton{Page::Frames, u"Command22", u"", u"slhcframe.html", Html},
    TemplateButton{Page::Frames, u"Command23", u"", u"5050.html", Html},
    TemplateButton{Page::Css, u"Command13", u"Cool Blue", u"coolblue.css", StyleSheets},
    TemplateButton{Page::Css, u"Command15", u"Street Style", u"street.css", StyleSheets},
    TemplateButton{Page::Css, u"Command24", u"RGB", u"redgreenblue.css", StyleSheets},
    TemplateButton{Page::Css, u"Command25", u"Neon", u"neon.css", StyleSheets},
    TemplateButton{Page::Css, u"Command26", u"Mellow Yellow", u"mellowyellow.css", StyleSheets},
    TemplateButton{Page::Css, u"Command27", u"Explore", u"explorer.css", StyleSheets},
    TemplateButton{Page::Web, u"Command36", u"CGI Script", u"cgi.cgi", Perl},
    TemplateButton{Page::Web, u"Command33", u"Warranty Disclaimer", u"warranty.html", Html},
    TemplateButton{Page::Web, u"Command14", u"Javascript Source", u"js.js", JavaScript},
    TemplateButton{Page::Web, u"Command29", u"Robot Exclusion", u"robots.txt", Text},
    TemplateButton{Page::Web, u"Command30", u"Java Program", u"java.java", JavaScript},
    TemplateButton{Page::Web, u"Command31", u"Company © Notice", u"copyright.html", Html},
    TemplateButton{Page::Web, u"Command32", u"Mission Statement", u"mission.html", Html},
    TemplateButton{Page::Win32, u"Command28", u"C File", u"", CCpp},
    TemplateButton{Page::Win32, u"Command34", u"Basic File", u"", Basic},
    TemplateButton{Page::Win32, u"Command35", u"Pascal File", u"", Pascal},
};

} // namespace

std::span<const TemplateButton> templateButtons()
{
    return buttons;
}

Result<QString> readTemplate(const FileStore &files, const QString &path)
{
    Result<QByteArray> bytes = files.read(path);
    if (bytes) {
        const QByteArray utf8 = decodeText(std::move(bytes).value()).utf8;
        if (utf8.contains('\0'))
            return Error{Error::Code::Malformed, u"The template file \"%1\" is not a text file."_s.arg(lastName(path))};
        return toCrLf(QString::fromUtf8(utf8));
    }
    if (bytes.error().code != Error::Code::NotFound)
        return bytes.error();
    return Error{
        Error::Code::NotFound,
        u"The template file \"%1\" was not found in the folder\r\n%2"_s.arg(lastName(path), parentFolder(path))};
}

} // namespace zephira
