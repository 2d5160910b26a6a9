// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktopshell.h"

#include "desktop/filemanager.h"
#include "desktop/filepropertieswindow.h"
#include "desktop/findfileswindow.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

Result<QUrl> addressOf(const QString &pathOrUrl)
{
    if (QDir::isAbsolutePath(pathOrUrl)) {
        if (!QFileInfo::exists(pathOrUrl))
            return Error{Error::Code::NotFound,
                         QCoreApplication::translate("Shell", "%1 can't be found.").arg(pathOrUrl)};
        return QUrl::fromLocalFile(pathOrUrl);
    }
    const QUrl url(pathOrUrl, QUrl::StrictMode);
    // A single letter before the colon is a drive letter, not a scheme.
    if (!url.isValid() || url.scheme().size() < 2)
        return Error{Error::Code::Malformed, u"\"%1\" is neither a full path nor an address."_s.arg(pathOrUrl)};
    return url;
}

/// Shows one of our own windows without waiting for it; the window deletes itself when it is closed.
void showBeside(QWidget *window)
{
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

Result<void> DesktopShell::open(const QString &pathOrUrl)
{
    const Result<QUrl> url = addressOf(pathOrUrl);
    if (!url)
        return url.error();
    if (!QDesktopServices::openUrl(url.value()))
        return Error{Error::Code::Failed,
                     QCoreApplication::translate("Shell", "The desktop has no program that opens %1.").arg(pathOrUrl)};
    return {};
}

Result<void> DesktopShell::start(const QString &program, const QStringList &arguments)
{
    const QFileInfo file(program);
    // A bare name would be searched for in PATH, which others may have influenced.
    if (!QDir::isAbsolutePath(program))
        return Error{Error::Code::Refused, u"\"%1\" isn't the full path of a program."_s.arg(program)};
    if (!file.exists())
        return Error{Error::Code::NotFound,
                     QCoreApplication::translate("Shell", "The program %1 can't be found.").arg(program)};
    if (!file.isFile() || !file.isExecutable())
        return Error{Error::Code::Refused, QCoreApplication::translate("Shell", "%1 isn't a program.").arg(program)};

    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setWorkingDirectory(QDir::homePath());
    if (!process.startDetached())
        return Error{
            Error::Code::Failed,
            QCoreApplication::translate("Shell", "%1 can't be started: %2.").arg(program, process.errorString())};
    return {};
}

Result<void> DesktopShell::showProperties(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink())
        return Error{Error::Code::NotFound, QCoreApplication::translate("Shell", "%1 can't be found.").arg(path)};
    if (!showInFileManager(FileManagerView::ItemProperties, path))
        showBeside(new FilePropertiesWindow(path, QApplication::activeWindow()));
    return {};
}

Result<void> DesktopShell::findFiles()
{
    if (!showInFileManager(FileManagerView::Folder, QDir::homePath()))
        showBeside(new FindFilesWindow(QDir::homePath(), QApplication::activeWindow()));
    return {};
}

} // namespace zephira
