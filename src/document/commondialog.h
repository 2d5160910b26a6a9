// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

namespace zephira {

/// The window's common file dialog `CM`. Its file name is a second copy of the document's path: it is set whenever a
/// file is opened, cleared for a new document, and unchanged by a cancelled dialog. Title, filter and folder are kept
/// from one use to the next.
class CommonDialog : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString FileName READ fileName WRITE setFileName)
    Q_PROPERTY(QString FileTitle READ fileTitle)
    Q_PROPERTY(QString DialogTitle READ title WRITE setTitle)
    Q_PROPERTY(QString Filter READ filter WRITE setFilter)
    Q_PROPERTY(QString InitDir READ initialFolder WRITE setInitialFolder)

public:
    using QObject::QObject;

    /// The file's full path; empty for a new document.
    QString fileName() const { return m_fileName; }
    void setFileName(const QString &name) { m_fileName = name; }
    /// The file's name without its folder.
    QString fileTitle() const;
    QString title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString filter() const { return m_filter; }
    void setFilter(const QString &filter) { m_filter = filter; }
    QString initialFolder() const { return m_initialFolder; }
    void setInitialFolder(const QString &folder) { m_initialFolder = folder; }

private:
    QString m_fileName;
    QString m_title;
    QString m_filter;
    QString m_initialFolder;
};

} // namespace zephira
