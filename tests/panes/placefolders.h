// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace zephira {

/// How long a test waits for a change on disk to be noticed, in milliseconds. It is long, because many tests may run at
/// once.
constexpr int patience = 60000;

/// During its lifetime a temporary home folder, with "Desktop" and "Documents" in it, and files and folders that the
/// test creates.
class PlaceFolders
{
public:
    PlaceFolders() : m_home(qgetenv("HOME")), m_config(qgetenv("XDG_CONFIG_HOME"))
    {
        qputenv("HOME", m_folder.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", path(QStringLiteral(".config")).toUtf8());
        for (const QString &name : {QStringLiteral("Desktop"), QStringLiteral("Documents")})
            makeFolder(name);
    }
    ~PlaceFolders()
    {
        qputenv("HOME", m_home);
        qputenv("XDG_CONFIG_HOME", m_config);
    }
    Q_DISABLE_COPY_MOVE(PlaceFolders)

    QString path(const QString &name = {}) const { return name.isEmpty() ? m_folder.path() : m_folder.filePath(name); }

    QString makeFolder(const QString &name) const
    {
        if (!QDir().mkpath(path(name)))
            qFatal("can't make %s", qPrintable(path(name)));
        return path(name);
    }

    QString makeFile(const QString &name, const QByteArray &content = {}) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("can't write %s", qPrintable(path(name)));
        return path(name);
    }

private:
    const QByteArray m_home;
    const QByteArray m_config;
    QTemporaryDir m_folder;
};

} // namespace zephira
