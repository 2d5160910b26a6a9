// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary arguments: what is wrong with one is told only for an option that is no file.
#include "app/commandline.h"
#include "app/startdecision.h"
#include "fuzz/fuzztarget.h"

using namespace zephira;

FUZZ_TARGET(commandline)
{
    const QString argument = zephira::fuzz::inputText(data, size);
    check(!optionFault(argument, [](const QString &) { return true; }));
    const std::optional<QString> fault = optionFault(argument, [](const QString &) { return false; });
    check(!fault || (argument.startsWith(u'-') && !fault->isEmpty()));
    check(informationFor(argument).has_value() == (argument == u"--help" || argument == u"--version"));
    const StartArgument start = startArgument(argument);
    check((start == StartArgument::None) == argument.isEmpty());
    check(startActions(start, 1, argument).size() <= 4);
    return 0;
}
