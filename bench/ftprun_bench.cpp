// SPDX-License-Identifier: GPL-3.0-or-later
// ftprun_bench HOST PORT REMOTE LOCAL: the FTP window on the screen downloads all files of the folder REMOTE into the
// folder LOCAL, with the progress window over it, and prints how many milliseconds that took from the command to the end
// of both lists.
#include "core/clock.h"
#include "ftp/ftpbench.h"
#include "ftp/ftpdesk.h"
#include "ftp/net/netoperations.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPushButton>

#include <cstdio>

using namespace zephira;
using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 5) {
        std::fputs("usage: ftprun_bench HOST PORT REMOTE LOCAL\n", stderr);
        return 2;
    }
    const SystemClock clock;
    NetOperations operations(clock);
    FtpBench ftp(&operations);
    FtpSession &session = ftp.client->session;
    session.ftpOpenHandle = operations.InternetOpenA(u"ftprun_bench"_s, INTERNET_OPEN_TYPE_DIRECT, {}, {}, 0);
    session.ftpConnectHandle = operations.InternetConnectA(session.ftpOpenHandle, arguments[1], arguments[2].toUShort(),
                                                           {}, {}, INTERNET_SERVICE_FTP, INTERNET_FLAG_PASSIVE, 0);
    const std::unique_ptr<QWidget> window(ftp.catalogue.make(u"frmmainftp"_s, ftp.context, nullptr));
    ftp.world.forms.onOpen = [&](const QString &form) {
        const std::unique_ptr<QWidget> dialog(ftp.catalogue.make(form, ftp.context, window.get()));
        dialog->show();
        QApplication::processEvents();
        ftp.world.prompts.expectTell(u"Data transfer completed."_s);
        dialog->findChild<QPushButton *>(u"Command3"_s)->click();
    };
    window->show();
    window->setProperty("LocalFolder", arguments[4]);
    session.ftpRemoteFolder = arguments[3] + u'/';
    session.ftpSearchPath = session.ftpRemoteFolder + u"*.*"_s;
    dynamic_cast<FtpDesk &>(*window).List();
    window->findChild<QAbstractItemView *>(u"ListView2"_s)->selectAll();
    for (int round = 0; round < 20; ++round)
        QApplication::processEvents();

    QElapsedTimer time;
    time.start();
    window->findChild<QAction *>(u"zRemDown"_s)->trigger();
    QApplication::processEvents();
    std::printf("%.1f\n", static_cast<double>(time.nsecsElapsed()) / 1e6);
    return 0;
}
