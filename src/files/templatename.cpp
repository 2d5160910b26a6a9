// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/templatename.h"

#include "core/paths.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

Result<void> checkTemplateName(const QString &name)
{
    const auto isControl = [](QChar each) { return each.category() == QChar::Other_Control; };
    if (name.isEmpty())
        return Error{Error::Code::Refused, QCoreApplication::translate("FileErrors", "A template must have a name.")};
    // Before the folder, whose message repeats the name.
    if (std::ranges::any_of(name, isControl))
        return Error{
            Error::Code::Refused,
            QCoreApplication::translate(
                "FileErrors", "A template's name can't contain a line end, a tab or any other control character.")};
    if (fileTitleOf(name) != name || name == u"."_s || name == u".."_s)
        return Error{
            Error::Code::Refused,
            QCoreApplication::translate("FileErrors", "A template's name can't contain a folder: %1").arg(name)};
    return {};
}

} // namespace zephira
