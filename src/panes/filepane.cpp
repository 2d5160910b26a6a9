// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/filepane.h"

#include "controls/prompts.h"
#include "ui_filepane.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace zephira {

FilePane::FilePane(Prompts &prompts, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::FilePane>()), m_prompts(prompts), m_file(this)
{
    m_ui->setupUi(this);
    m_file.setObjectName(u"file"_s);
    m_ui->fileSplitter->setStretchFactor(0, 1);
    m_ui->fileSplitter->setStretchFactor(1, 1);
    fillDrives();
    connect(m_ui->DRV, &QComboBox::activated, this, [this] { setFolder(m_ui->DRV->currentText()); });
    connect(m_ui->cmdprojpath, &QToolButton::clicked, this, &FilePane::chooseProjectPath);
    connect(m_ui->PrjPath, &QLineEdit::textChanged, this, [this](const QString &text) {
        setFolder(text);
        listFolder();
    });
    connect(m_ui->DIR, &FolderTree::folderSelected, this, &FilePane::listFolder);
    connect(m_ui->ListFiles, &QListWidget::currentTextChanged, this,
            [this](const QString &name) { m_file.setFileName(name); });
    connect(m_ui->ListFiles, &QListWidget::itemDoubleClicked, this, &FilePane::fileActivated);
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

void FilePane::setFolder(const QString &folder)
{
    if (folder.isEmpty() || !QDir(folder).exists())
        return;
    if (m_rootSelect)
        m_ui->DIR->setRootFolder(folder);
    else
        m_ui->DIR->setSelectedFolder(folder);
}

void FilePane::listFolder()
{
    const QString folder = m_ui->DIR->selectedFolder();
    if (folder.isEmpty())
        return;
    m_file.setPath(folder);
    m_file.setFileName({});
    const QStringList names = m_file.entries();
    m_ui->ListFiles->clear();
    m_ui->ListFiles->addItems(names);
    if (!names.isEmpty())
        m_ui->ListFiles->setCurrentRow(0);
}

void FilePane::fillDrives()
{
    QStringList mounts;
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        // Pseudo file systems have no size and hold nothing to edit.
        const QString mount = volume.rootPath();
        if (volume.isReady() && volume.bytesTotal() > 0 && mount != QDir::rootPath() && QFileInfo(mount).isDir())
            mounts.append(mount);
    }
    mounts.sort();
    mounts.removeDuplicates();
    m_ui->DRV->addItem(QDir::rootPath());
    m_ui->DRV->addItems(mounts);
}

void FilePane::chooseProjectPath()
{
    const auto folder = m_prompts.folder(u"Please choose the folder of your project"_s, projectPath());
    if (!folder || folder->isEmpty())
        return;
    m_ui->PrjPath->setText(folder->endsWith(u'/') ? *folder : *folder + u'/');
}

} // namespace zephira
