// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandline.h"

#include "app/startdecision.h"

using namespace Qt::StringLiterals;

namespace zephira {

std::optional<QString> informationFor(const QString &argument)
{
    if (argument == u"--version"_s)
        return u"Zephira %1\n"_s.arg(QString::fromLatin1(ZEPHIRA_VERSION));
    if (argument == u"--help"_s) {
        return u"Usage: zephira [FILE | /nodialog | --ftp | --help | --version]\n"
               u"Zephira is a source editor for people who write web pages.\n"
               u"\n"
               u"  FILE        opens the file; several words are joined by spaces into one name\n"
               u"  /nodialog   starts with an empty document, without the tip and the start dialog\n"
               u"  --ftp       does the same and opens the file transfer client\n"
               u"  --help      prints this text and exits\n"
               u"  --version   prints the version and exits\n"_s;
    }
    return std::nullopt;
}

std::optional<QString> optionFault(const QString &argument, const std::function<bool(const QString &)> &fileExists)
{
    const bool looksLikeOption = argument.startsWith(u'-') && argument.size() > 1;
    if (!looksLikeOption || startArgument(argument) != StartArgument::File || fileExists(argument))
        return std::nullopt;
    return u"zephira: there is no option %1, and no such file\nTry 'zephira --help' for more information.\n"_s.arg(
        argument);
}

} // namespace zephira
