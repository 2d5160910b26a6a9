// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/ftpconnection.h"
#include "ftp/ftpdesk.h"
#include "ftp/ftpwindowcommands.h"
#include "ftp/localcommands.h"
#include "ftp/remotecommands.h"

#include <QElapsedTimer>
#include <QMainWindow>

#include <array>
#include <memory>

class QLabel;

namespace zephira {

namespace Ui {
class frmmainftp;
}

class FileListView;
class FtpMenus;
class LocalPane;
class RemotePane;
struct AppContext;
struct FtpClient;
struct FtpMenuItem;

/// The FTP window: this machine's folders and files on the left, the server's on the right, the session's log below.
/// LocalCommands, RemoteCommands and FtpConnection implement the commands; the window connects them with its controls.
class frmmainftp final : public QMainWindow, public FtpDesk, private FtpWindowCommands
{
    Q_OBJECT
    Q_PROPERTY(QString LocalFolder READ localFolder WRITE setLocalFolder)

public:
    frmmainftp(FtpClient &client, const AppContext &context, QWidget *owner);
    ~frmmainftp() override;

    /// The local folder, with a trailing separator.
    QString localFolder() const;
    /// Shows a local folder. If it doesn't exist, the pane stays as it is.
    void setLocalFolder(const QString &folder);

    Q_INVOKABLE void Help();
    Q_INVOKABLE void About();

    void log(LogEntry entry, const QStringList &parts = {}) override;
    void logSoon(LogEntry entry, const QStringList &parts = {}) override;
    void showLog() override;
    void clearLog() override;
    void setPanel(int panel, const QString &text) override;
    void setBusy(bool busy) override;
    void markTransferType(bool binary) override;
    void markPassive(bool passive) override;
    void clearRemoteTree() override;
    void addRemoteRoot() override;
    Q_INVOKABLE void List() override;
    void openModal(const QString &form) override;
    void refreshLocal() override;
    void refreshRemote() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    class EffectRunner;

    void makePanes();
    void makePanels();
    void connectLocalPane();
    void connectRemotePane();
    void addHelpKeys();
    void run(const FtpMenuItem &item);
    /// Shows errors for which no command has a message, with the procedure's name.
    void guard(const QString &procedure, const std::function<void()> &body);

    // FtpWindowCommands
    void openLogs() override;
    void saveLog() override;
    void chooseSite() override;
    void closeWindow() override;
    void togglePassive() override;
    void toggleToolBar() override;
    void showLocalFiles(FileListMode view) override;
    void showRemoteFiles(FileListMode view) override;

    const std::unique_ptr<Ui::frmmainftp> m_ui;
    FtpClient &m_client;
    const AppContext &m_context;
    FtpConnection m_connection;
    FtpMenus *m_menus = nullptr;
    LocalPane *m_localPane = nullptr;
    RemotePane *m_remotePane = nullptr;
    std::unique_ptr<LocalCommands> m_local;
    std::unique_ptr<RemoteCommands> m_remote;
    std::array<QLabel *, 3> m_panels{};
    QElapsedTimer m_sinceLogPainted;
    /// Log lines that the text box doesn't show yet.
    QString m_comingLog;
};

} // namespace zephira
