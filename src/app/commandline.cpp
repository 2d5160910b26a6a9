// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandline.h"

using namespace Qt::StringLiterals;

namespace zephira {

std::optional<QString> informationFor(const QString &argument)
{
    if (argument == u"--version"_s)
        return u"Zephira %1\n"_s.arg(QString::fromLatin1(ZEPHIRA_VERSION));
    if (argument == u"--help"_s) {
        return u"Usage: zephira [FILE | /nodialog | --help | --version]\n"
               u"Zephira is a source editor for people who write web pages.\n"
               u"\n"
               u"  FILE        opens the file; several words are joined by spaces into one name\n"
               u"  /nodialog   starts with an empty document, without the tip and the start dialog\n"
               u"  --help      prints this text and exits\n"
               u"  --version   prints the version and exits\n"_s;
    }
    return std::nullopt;
}

} // namespace zephira
