// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>

namespace zephira {

/// A portable program folder in a temporary folder: the executable, zephira.ini and the data. A home folder for the
/// per-user settings is next to it.
class ProgramFolder
{
public:
    ProgramFolder();

    QString path() const { return m_folder.path() + QStringLiteral("/zephira"); }
    QString executable() const { return path() + QStringLiteral("/zephira"); }
    QString ini() const { return path() + QStringLiteral("/zephira.ini"); }
    QString home() const { return m_folder.path() + QStringLiteral("/home"); }

    /// The folder in which the program looks first for commands.
    QString tools() const { return m_folder.path() + QStringLiteral("/tools"); }
    /// The full paths of the recovery copies.
    QStringList recoveryCopies() const;

    /// The full path of a file below the temporary folder.
    QString place(const QString &name) const { return m_folder.path() + QLatin1Char('/') + name; }
    /// Writes a file below the temporary folder and returns its full path.
    QString write(const QString &name, const QByteArray &content) const;
    static QByteArray read(const QString &path);

    void setIni(const QString &section, const QString &key, const QString &value) const;
    /// Switches the tips on or off in the per-user settings.
    void setTips(bool on) const;

private:
    QTemporaryDir m_folder;
};

} // namespace zephira
