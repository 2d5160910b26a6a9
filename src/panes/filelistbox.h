// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace zephira {

/// The invisible list behind the file pane: the names in one folder that match one of several patterns.
class FileListBox : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ path WRITE setPath)
    Q_PROPERTY(QString Pattern READ pattern WRITE setPattern)
    Q_PROPERTY(QString FileName READ fileName WRITE setFileName)

public:
    using QObject::QObject;

    QString path() const { return m_path; }
    void setPath(const QString &folder) { m_path = folder; }

    /// Wildcards divided by semicolons, without regard to case. "*.*" matches every name, also one without a dot.
    QString pattern() const { return m_pattern; }
    void setPattern(const QString &pattern) { m_pattern = pattern; }

    QString fileName() const { return m_fileName; }
    void setFileName(const QString &name) { m_fileName = name; }

    /// The names now on disk, sorted without regard to case; empty for a folder that can't be read.
    QStringList entries() const;

private:
    QString m_path;
    QString m_pattern;
    QString m_fileName;
};

} // namespace zephira
