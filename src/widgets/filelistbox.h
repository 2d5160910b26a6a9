// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

namespace zephira {

/// A file list that is never shown itself: the names in a folder that match one of several patterns. A visible list
/// displays its content.
class FileListBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ path WRITE setPath)
    Q_PROPERTY(QString Pattern READ pattern WRITE setPattern)
    Q_PROPERTY(QString FileName READ fileName WRITE setFileName)

public:
    explicit FileListBox(QWidget *parent = nullptr);

    QString path() const { return m_path; }
    void setPath(const QString &folder) { m_path = folder; }

    /// Wildcards separated by semicolons; see FilePatterns.
    QString pattern() const { return m_pattern; }
    void setPattern(const QString &pattern) { m_pattern = pattern; }

    /// The current entry's name, or empty.
    QString fileName() const { return m_fileName; }
    void setFileName(const QString &name) { m_fileName = name; }

    /// The names currently on disk, in alphabetical order; see fileNames().
    QStringList entries() const;

private:
    QString m_path;
    QString m_pattern;
    QString m_fileName;
};

} // namespace zephira
