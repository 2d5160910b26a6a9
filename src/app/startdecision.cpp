// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startdecision.h"

using namespace Qt::StringLiterals;

namespace zephira {

StartArgument startArgument(const QString &argument)
{
    if (argument.isEmpty())
        return StartArgument::None;
    if (argument == u"--ftp"_s)
        return StartArgument::FileTransfer;
    return argument == u"/nodialog"_s ? StartArgument::NoDialog : StartArgument::File;
}

std::vector<StartAction> startActions(StartArgument argument, int showTips, const QString &selprj)
{
    if (argument == StartArgument::NoDialog)
        return {};
    if (argument == StartArgument::FileTransfer)
        return {StartAction::ShowFileTransfer};
    const bool startDialog = argument == StartArgument::None && selprj == u"1"_s;
    if (showTips != 1)
        return startDialog ? std::vector{StartAction::ShowStartDialog} : std::vector<StartAction>{};
    if (startDialog)
        return {StartAction::ShowTipOverStartDialog, StartAction::ShowStartDialog, StartAction::CheckViewTip};
    return {StartAction::CheckViewTip, StartAction::ShowTip};
}

} // namespace zephira
