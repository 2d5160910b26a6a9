// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/documentkind.h"

#include <QFileInfo>

#include <algorithm>

namespace zephira {

namespace {

constexpr QStringView plainExtensions[] = {
    u"bas", u"c",  u"cgi", u"conf", u"cpp", u"css", u"csv", u"frm", u"h",   u"ini", u"java", u"js",   u"json",
    u"log", u"md", u"pas", u"pl",   u"py",  u"sh",  u"sql", u"txt", u"vbp", u"vbs", u"xml",  u"yaml", u"yml",
};

} // namespace

DocumentKind documentKind(const QString &fileName)
{
    const QString extension = QFileInfo(fileName).suffix().toLower();
    const bool isPlain = std::ranges::find(plainExtensions, extension) != std::end(plainExtensions);
    return isPlain ? DocumentKind::PlainText : DocumentKind::Markup;
}

} // namespace zephira
