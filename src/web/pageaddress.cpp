// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/pageaddress.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView pageSuffixes[] = {u"htm", u"html", u"xhtml", u"xht", u"shtml"};

} // namespace

bool isNamedAsPage(const QUrl &file)
{
    return std::ranges::find(pageSuffixes, QFileInfo(file.path()).suffix().toLower()) != std::end(pageSuffixes);
}

QUrl pageAddress(const QString &text)
{
    const QString address = text.trimmed();
    if (QDir::isAbsolutePath(text))
        return QUrl::fromLocalFile(text);
    const QUrl url = QUrl::fromUserInput(address);
    return address.isEmpty() || !url.isValid() ? QUrl(u"about:blank"_s) : url;
}

} // namespace zephira
