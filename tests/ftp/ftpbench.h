// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/diskfilestore.h"
#include "ftp/ftpclient.h"
#include "ftp/recordingoperations.h"
#include "ftp/registerforms.h"
#include "support/fakes.h"
#include "support/formkit.h"

#include <QDir>
#include <QTemporaryDir>

namespace zephira {

/// The forms of the FTP client with a program folder on the disk and a scripted server, or with real operations.
/// Prompts, shell and form opener are fakes.
struct FtpBench {
    QTemporaryDir folder;
    TestContext world;
    DiskFileStore files;
    AppContext context{world.editor,   world.inserter, world.designer, world.document, world.configuration,
                       world.settings, files,          world.prompts,  world.shell,    world.clipboard,
                       world.clock,    world.forms,    world.keys,     folder.path()};
    RecordingOperations operations;
    std::shared_ptr<FtpClient> client;
    FormCatalogue catalogue;

    explicit FtpBench(InternetOperations *real = nullptr)
        : client(std::make_shared<FtpClient>(FtpClient{real ? *real : operations}))
    {
        ftp::registerForms(catalogue, client);
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    /// Writes a file below the program folder.
    void write(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s can't be written", qPrintable(file.fileName()));
    }
    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    /// Makes the session connected, as if it had logged in.
    void connectSession() const
    {
        client->session.ftpOpenHandle = 901;
        client->session.ftpConnectHandle = 902;
        client->session.ftpRemoteFolder = QStringLiteral("/");
        client->session.ftpSearchPath = QStringLiteral("/*.*");
    }
};

} // namespace zephira
