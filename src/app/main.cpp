// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandline.h"
#include "app/frmmain.h"
#include "app/program.h"
#include "desktop/webenginestart.h"
#include "files/crashreports.h"

#include <QFileInfo>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The exit status if the argument only wants an answer on the terminal, or is wrong, after giving it.
std::optional<int> answered(int argc, char **argv, const QString &argument)
{
    constexpr int wrongUse = 2;
    const auto exists = [](const QString &name) { return QFileInfo::exists(name); };
    if (!zephira::informationFor(argument) && !zephira::optionFault(argument, exists))
        return {};
    // Only now, because a start that shows a window shouldn't wait for this.
    const QCoreApplication application(argc, argv);
    const zephira::Translation translation = zephira::desktopTranslation();
    if (const auto answer = zephira::informationFor(argument)) {
        std::fputs(answer->toUtf8().constData(), stdout);
        return EXIT_SUCCESS;
    }
    std::fputs(zephira::optionFault(argument, exists).value_or(QString()).toLocal8Bit().constData(), stderr);
    return wrongUse;
}

} // namespace

int main(int argc, char **argv)
{
    // Exceeding the file size limit makes a save fail instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
    zephira::forgoCoreFiles();

    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    const QString argument = words.join(u' ');
    if (const auto status = answered(argc, argv, argument))
        return *status;

    QCoreApplication::setApplicationName(u"zephira"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(ZEPHIRA_VERSION));
    const std::unique_ptr<QApplication> application = zephira::makeApplication(argc, argv);
    QGuiApplication::setDesktopFileName(u"org.zephira.Zephira"_s);
    return zephira::runProgram(*application, argument);
}
