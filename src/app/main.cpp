// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandline.h"
#include "app/frmmain.h"
#include "app/program.h"
#include "desktop/webenginestart.h"

#include <QFileInfo>

#include <csignal>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    // Exceeding the file size limit makes a save fail instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);

    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    const QString argument = words.join(u' ');
    if (const auto answer = zephira::informationFor(argument)) {
        std::fputs(answer->toUtf8().constData(), stdout);
        return EXIT_SUCCESS;
    }

    if (const auto fault =
            zephira::optionFault(argument, [](const QString &name) { return QFileInfo::exists(name); })) {
        constexpr int wrongUse = 2;
        std::fputs(fault->toLocal8Bit().constData(), stderr);
        return wrongUse;
    }

    QCoreApplication::setApplicationName(u"zephira"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(ZEPHIRA_VERSION));
    const std::unique_ptr<QApplication> application = zephira::makeApplication(argc, argv);
    QGuiApplication::setDesktopFileName(u"org.zephira.Zephira"_s);
    return zephira::runProgram(*application, argument);
}
