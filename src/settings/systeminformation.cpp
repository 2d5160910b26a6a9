// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/systeminformation.h"

#include "core/filestore.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct ToolRow {
    QStringView program;
    QStringView argument = u"";
};

/// Dedicated tools are preferred to the pages of a control centre.
constexpr ToolRow tools[] = {
    {u"/usr/bin/hardinfo2"},
    {u"/usr/bin/hardinfo"},
    {u"/usr/bin/kinfocenter"},
    {u"/usr/bin/mate-system-monitor", u"--show-system-tab"},
    {u"/usr/bin/cinnamon-settings", u"info"},
    {u"/usr/bin/gnome-control-center", u"info-overview"},
};

} // namespace

std::optional<SystemTool> systemInformationTool(const FileStore &files)
{
    for (const ToolRow &tool : tools) {
        const QString program = tool.program.toString();
        if (!files.FileExists(program))
            continue;
        const QString argument = tool.argument.toString();
        return SystemTool{program, argument.isEmpty() ? QStringList() : QStringList(argument)};
    }
    return {};
}

} // namespace zephira
