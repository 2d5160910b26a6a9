// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/designerbarstate.h"

#include "core/designer.h"
#include "views/designercommands.h"

namespace zephira {

namespace {

bool hasValue(int status)
{
    return status == DesignerStatus::Enabled || status == DesignerStatus::On;
}

/// The designer's value at the caret; nothing if the selection has several.
QVariant valueOf(Designer &designer, DesignerCommand query)
{
    return hasValue(designer.queryStatus(query)) ? designer.execCommand(query, DesignerPrompting::DontPromptUser)
                                                 : QVariant();
}

bool isEnabled(int status)
{
    return hasValue(status) || status == DesignerStatus::Mixed;
}

} // namespace

QString currentFontSize(Designer &designer)
{
    const int size = valueOf(designer, DesignerCommand::GetFontSize).toInt();
    return size < 1 ? QString() : QString::number(size);
}

DesignerBarState designerBarState(Designer &designer)
{
    DesignerBarState state;
    for (const DesignerButton &button : designerButtons()) {
        const int status = designer.queryStatus(button.command);
        state.buttons.append({status >= DesignerStatus::Enabled, status == DesignerStatus::On});
    }
    state.font = {valueOf(designer, DesignerCommand::GetFontName).toString(),
                  isEnabled(designer.queryStatus(DesignerCommand::GetFontName))};
    state.size = {currentFontSize(designer), isEnabled(designer.queryStatus(DesignerCommand::GetFontSize))};
    return state;
}

} // namespace zephira
