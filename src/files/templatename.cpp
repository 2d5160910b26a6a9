// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/templatename.h"

#include "core/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

Result<void> checkTemplateName(const QString &name)
{
    const auto isControl = [](QChar each) { return each.category() == QChar::Other_Control; };
    if (name.isEmpty())
        return Error{Error::Code::Refused, u"A template must have a name."_s};
    // Before the folder, whose message repeats the name.
    if (std::ranges::any_of(name, isControl))
        return Error{Error::Code::Refused,
                     u"A template's name can't contain a line end, a tab or any other control character."_s};
    if (fileTitleOf(name) != name || name == u"."_s || name == u".."_s)
        return Error{Error::Code::Refused, u"A template's name can't contain a folder: %1"_s.arg(name)};
    return {};
}

} // namespace zephira
