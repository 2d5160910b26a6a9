// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/localpane.h"

#include "widgets/dirlistbox.h"
#include "widgets/drivebox.h"
#include "widgets/filelistbox.h"
#include "widgets/filelistview.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace zephira {

LocalPane::LocalPane(const Parts &parts, QObject *parent) : QObject(parent), m_parts(parts)
{
    setPattern(u"*.*"_s, true);
    m_parts.list.setDragging(true);
    m_parts.drives.installEventFilter(this);
    connect(&m_parts.drives, &QComboBox::textActivated, this, &LocalPane::driveChosen);
    connect(&m_parts.folders, &DirListBox::pathChanged, this, &LocalPane::folderChosen);
    connect(&m_parts.folders, &DirListBox::listClicked, this, &LocalPane::foldersClicked);
}

FileRows &LocalPane::files()
{
    return m_parts.list;
}

QString LocalPane::folder() const
{
    return m_parts.folders.path();
}

bool LocalPane::setFolder(const QString &path)
{
    // Code that moves the list from here updates the pane itself.
    const QSignalBlocker quiet(&m_parts.folders);
    return m_parts.folders.setPath(path);
}

void LocalPane::refreshLists()
{
    m_parts.drives.refill();
    m_parts.folders.refresh();
    m_parts.names.setPath(m_parts.folders.path());
}

QStringList LocalPane::fileNames() const
{
    return m_parts.names.entries();
}

void LocalPane::setPathText(const QString &text)
{
    m_parts.path.setText(text);
}

void LocalPane::setPattern(const QString &pattern, bool all)
{
    m_parts.names.setPattern(pattern);
    m_parts.allFiles.setChecked(all);
    m_parts.definedTypes.setChecked(!all);
}

bool LocalPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        Q_EMIT drivesClicked();
    return QObject::eventFilter(watched, event);
}

} // namespace zephira
