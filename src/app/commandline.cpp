// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandline.h"

#include "app/startdecision.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace zephira {

std::optional<QString> informationFor(const QString &argument)
{
    if (argument == u"--version"_s)
        return u"Zephira %1\n"_s.arg(QString::fromLatin1(ZEPHIRA_VERSION));
    if (argument == u"--help"_s) {
        return QCoreApplication::translate(
            "CommandLine",
            "Usage: zephira [FILE | /nodialog | --ftp | --help | --version]\n"
            "Zephira is a source editor for people who write web pages.\n"
            "\n"
            "  FILE        opens the file; several words are joined by spaces into one name\n"
            "  /nodialog   starts with an empty document, without the tip and the start dialog\n"
            "  --ftp       does the same and opens the file transfer client\n"
            "  --help      prints this text and exits\n"
            "  --version   prints the version and exits\n");
    }
    return std::nullopt;
}

std::optional<QString> optionFault(const QString &argument, const std::function<bool(const QString &)> &fileExists)
{
    const bool looksLikeOption = argument.startsWith(u'-') && argument.size() > 1;
    if (!looksLikeOption || startArgument(argument) != StartArgument::File || fileExists(argument))
        return std::nullopt;
    return QCoreApplication::translate(
               "CommandLine",
               "zephira: there is no option %1, and no such file\nTry 'zephira --help' for more information.\n")
        .arg(argument);
}

} // namespace zephira
