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
    Q_PROPERTY(QString FileName MEMBER fileName)
    Q_PROPERTY(QString FileTitle READ fileTitle)
    Q_PROPERTY(QString DialogTitle MEMBER title)
    Q_PROPERTY(QString Filter MEMBER filter)
    Q_PROPERTY(QString InitDir MEMBER initialFolder)

public:
    using QObject::QObject;

    /// The file's name without its folder.
    QString fileTitle() const;

    QString fileName;
    QString title;
    QString filter;
    QString initialFolder;
};

} // namespace zephira
