// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>

namespace zephira {

/// A portable program folder of its own: the executable, zephira.ini and the data, in a temporary place, with a home folder
/// for the per-user settings beside it.
class ProgramFolder
{
public:
    ProgramFolder();

    QString path() const { return m_folder.path() + QStringLiteral("/zephira"); }
    QString executable() const { return path() + QStringLiteral("/zephira"); }
    QString ini() const { return path() + QStringLiteral("/zephira.ini"); }
    QString home() const { return m_folder.path() + QStringLiteral("/home"); }

    /// A folder that the program looks for commands in before all others.
    QString tools() const { return m_folder.path() + QStringLiteral("/tools"); }
    /// The recovery copies that are there, by their full paths.
    QStringList recoveryCopies() const;

    /// The full path of a file below the temporary place.
    QString place(const QString &name) const { return m_folder.path() + QLatin1Char('/') + name; }
    /// Writes a file below the temporary place and gives its full path.
    QString write(const QString &name, const QByteArray &content) const;
    static QByteArray read(const QString &path);

    void setIni(const QString &section, const QString &key, const QString &value) const;
    /// The per-user switch of the tips.
    void setTips(bool on) const;

private:
    QTemporaryDir m_folder;
};

} // namespace zephira
