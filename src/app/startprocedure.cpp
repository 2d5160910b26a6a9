// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startprocedure.h"

#include "app/frmmain.h"
#include "app/loadhandler.h"
#include "app/startdecision.h"
#include "commands/commandrouter.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "core/configuration.h"
#include "core/usersettings.h"
#include "desktop/modalformopener.h"
#include "files/appfolder.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

void perform(StartAction action, frmmain &window)
{
    switch (action) {
    case StartAction::ShowStartDialog:
        window.forms().openModal(u"frmselprj"_s);
        break;
    case StartAction::ShowTip:
        window.forms().openModal(u"frmTip"_s);
        break;
    case StartAction::ShowTipOverStartDialog:
        window.forms().openModalOver(u"frmTip"_s, u"frmselprj"_s);
        break;
    case StartAction::CheckViewTip:
        window.menus().setChecked(menuname::tipOfTheDay, true);
        break;
    case StartAction::ShowFileTransfer:
        window.router().run({&PaneCommands::showFtp});
        break;
    }
}

} // namespace

void runStartProcedure(frmmain &window, const QString &argument)
{
    LoadHandler(window, argument).run();

    const auto begin = [&window](const char16_t *step) { window.noteStartStep(QStringView(step).toString()); };
    begin(u"makeScratchFolder");
    [[maybe_unused]] const Result<QString> scratch = scratchFolder();
    begin(u"showWindow");
    window.show();
    begin(u"readShowTips");
    const int showTips = wholeNumber(window.services().settings, UserSetting::ShowTips);
    begin(u"readSelprj");
    const QString selprj = window.services().configuration.value(Setting::StartDialog);
    begin(u"showDialogs");
    for (const StartAction action : startActions(startArgument(argument), showTips, selprj))
        perform(action, window);
}

} // namespace zephira
