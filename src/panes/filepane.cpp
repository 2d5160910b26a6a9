// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/filepane.h"

#include "core/documenthost.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "ui_filepane.h"
#include "widgets/filenames.h"

#include <QDir>
#include <QScrollBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int lowestList = 16;

} // namespace

FilePane::FilePane(Prompts &prompts, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::FilePane>())
    , m_prompts(prompts)
    , m_file(new FileListBox(this))
    , m_watch(this)
{
    m_ui->setupUi(this);
    m_ui->PrjPath->setText(noProjectPath.toString());
    m_file->setObjectName(u"file"_s);
    m_file->setToolTip(u"Available Files"_s);
    m_file->setAccessibleName(u"Available Files"_s);
    // On a low screen the lists shrink, so that the window's status bar stays visible.
    m_ui->DIR->setMinimumHeight(lowestList);
    m_ui->ListFiles->setMinimumHeight(lowestList);
    m_ui->fileSplitter->setStretchFactor(0, 1);
    m_ui->fileSplitter->setStretchFactor(1, 1);
    connect(m_ui->DRV, &QComboBox::activated, this, &FilePane::changeDrive);
    connect(m_ui->cmdprojpath, &QToolButton::clicked, this, &FilePane::chooseProjectPath);
    connect(m_ui->PrjPath, &QLineEdit::textChanged, this, &FilePane::showFolder);
    connect(m_ui->DIR, &FolderTree::folderSelected, this, &FilePane::listFolder);
    connect(m_ui->ListFiles, &FileList::opened, this, &FilePane::fileActivated);
    connect(m_ui->ListFiles, &FileList::menuWanted, this, &FilePane::menuWanted);
    connect(&m_watch, &FolderWatch::changed, this, &FilePane::refresh);
}

FilePane::~FilePane() = default;

QString FilePane::projectPath() const
{
    return m_ui->PrjPath->text();
}

void FilePane::setProjectPath(const QString &path)
{
    m_ui->PrjPath->setText(path);
}

QString FilePane::selectedFile() const
{
    const QListWidgetItem *item = m_ui->ListFiles->currentItem();
    return item ? item->text() : QString();
}

void FilePane::selectFile(const QString &name)
{
    const auto row = static_cast<int>(m_ui->ListFiles->names().indexOf(name));
    m_awaited = row < 0 ? name : QString();
    if (row >= 0)
        m_ui->ListFiles->setCurrentRow(row);
}

void FilePane::showFolder(const QString &folder)
{
    setFolder(folder);
    listFolder();
}

void FilePane::setFolder(const QString &folder)
{
    if (!QDir::isAbsolutePath(folder) || !QDir(folder).exists())
        return;
    if (m_rootSelect)
        m_ui->DIR->setRootFolder(folder);
    else
        m_ui->DIR->setSelectedFolder(folder);
}

/// The folder selection changed. "My Computer" is no folder, so the files of the previous folder are listed again.
void FilePane::listFolder()
{
    m_awaited.clear();
    const QString folder = m_ui->DIR->selectedFolder();
    if (!folder.isEmpty())
        m_file->setPath(folder);
    m_listedPattern = m_file->pattern();
    const QStringList names = m_file->entries();
    m_file->setFileName(names.value(0));
    m_ui->ListFiles->setNames(names);
    m_ui->ListFiles->setCurrentRow(0);

    m_watch.clear();
    if (!m_file->path().isEmpty())
        m_watch.add(QDir::cleanPath(m_file->path()));
}

/// Updates the list from the folder on disk and keeps the selection and the scroll position.
void FilePane::refresh()
{
    m_watch.add(QDir::cleanPath(m_file->path())); // One that was made again is a new one.
    FileList &list = *m_ui->ListFiles;
    const QStringList names = fileNames(m_file->path(), m_listedPattern);
    if (names == list.names())
        return;
    if (!names.contains(m_file->fileName()))
        m_file->setFileName(names.value(0));
    const bool hasCome = !m_awaited.isEmpty() && names.contains(m_awaited);
    const QString selected = hasCome ? std::exchange(m_awaited, QString()) : selectedFile();
    const int row = list.currentRow();
    const int place = list.verticalScrollBar()->value();
    list.setNames(names);
    const auto kept = static_cast<int>(names.indexOf(selected));
    list.setCurrentRow(kept >= 0 ? kept : qMin(row, list.count() - 1));
    list.verticalScrollBar()->setValue(place);
}

void FilePane::changeDrive()
{
    const QString drive = m_ui->DRV->currentText();
    if (!QDir(drive).exists()) {
        m_ui->DRV->refill();
        m_prompts.tell(u"The drive %1 is no longer available."_s.arg(drive), {}, Question::Icon::Exclamation);
        return;
    }
    showFolder(drive);
}

void FilePane::chooseProjectPath()
{
    const auto folder = m_prompts.folder(u"Please choose the folder of your project"_s, projectPath());
    if (!folder || folder->isEmpty())
        return;
    m_ui->PrjPath->setText(withSlash(*folder));
}

} // namespace zephira
