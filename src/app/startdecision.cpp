// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startdecision.h"

#include "core/configuration.h"
#include "core/errorstyles.h"
#include "core/vbtext.h"

using namespace Qt::StringLiterals;

namespace zephira {

StartArgument startArgument(const QString &argument)
{
    if (argument.isEmpty())
        return StartArgument::None;
    return argument == u"/nodialog"_s ? StartArgument::NoDialog : StartArgument::File;
}

std::vector<StartAction> startActions(StartArgument argument, int showTips, const QString &selprj)
{
    if (argument == StartArgument::NoDialog)
        return {};
    const bool startDialog = argument == StartArgument::None && selprj == u"1"_s;
    if (showTips != 1)
        return startDialog ? std::vector{StartAction::ShowStartDialog} : std::vector<StartAction>{};
    if (startDialog)
        return {StartAction::ShowTipOverStartDialog, StartAction::ShowStartDialog, StartAction::CheckViewTip};
    return {StartAction::CheckViewTip, StartAction::ShowTip};
}

int requiredNumber(const Configuration &configuration, const QString &section, const QString &key, const QString &file)
{
    const QString text = configuration.value(section, key);
    try {
        return CLng(text);
    } catch (const HandlerError &) {
        const QString problem = text.isEmpty() ? u"is missing"_s : u"isn't a number (\"%1\")"_s.arg(text.left(80));
        throw HandlerError{
            u"Zephira can't start: the key \"%1\" in section [%2] of %3 %4."_s.arg(key, section, file, problem)};
    }
}

} // namespace zephira
