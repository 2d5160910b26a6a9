// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/savedtagslist.h"

#include "widgets/filenames.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace zephira {

SavedTagsList::SavedTagsList(QWidget *parent) : QListWidget(parent)
{
    connect(this, &QListWidget::itemSelectionChanged, this, &SavedTagsList::tell);
    connect(&m_watch, &FolderWatch::changed, this, &SavedTagsList::refresh);
}

void SavedTagsList::setPath(const QString &folder)
{
    m_path = folder;
    m_watch.clear();
    // The folder above is watched for the case that the folder appears only later.
    m_watch.add(QFileInfo(folder).path());
    refresh();
}

QString SavedTagsList::pattern() const
{
    return u"*.smt"_s;
}

QString SavedTagsList::fileName() const
{
    const QList<QListWidgetItem *> selected = selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text();
}

void SavedTagsList::keyPressEvent(QKeyEvent *event)
{
    // While nothing is selected, the first row is merely the one to start from, and the arrow key would leave it out.
    const bool isStart = selectedItems().isEmpty() && event->key() == Qt::Key_Down && count() > 0;
    if (isStart)
        setCurrentRow(0);
    else
        QListWidget::keyPressEvent(event);
}

void SavedTagsList::refresh()
{
    // Watched before it is read, so that no change is missed in between.
    m_watch.add(m_path);
    // Names that begin with a dot are listed, too: an empty name was saved as ".smt".
    const QStringList names = fileNames(m_path, pattern() + u";.smt;.*.smt"_s);
    const QString selected = fileName();
    const QScopedValueRollback refreshing(m_isRefreshing, true);
    clear();
    addItems(names);
    if (const qsizetype row = names.indexOf(selected); row >= 0)
        setCurrentRow(static_cast<int>(row));
}

void SavedTagsList::tell()
{
    if (!m_isRefreshing && !fileName().isEmpty())
        Q_EMIT picked(fileName());
}

} // namespace zephira
