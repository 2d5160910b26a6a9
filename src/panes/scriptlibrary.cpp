// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/scriptlibrary.h"

#include "core/appcontext.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/itemroles.h"
#include "core/pasteitem.h"
#include "core/refusals.h"
#include "files/textfile.h"
#include "panes/foldertree.h"
#include "widgets/filelistbox.h"
#include "widgets/itemchoice.h"
#include "widgets/themeicon.h"

#include <QListWidget>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace zephira {

ScriptLibrary::ScriptLibrary(const AppContext &context, QWidget *parent)
    : QGroupBox(u"Script Library"_s, parent)
    , m_context(context)
    , m_folders(new FolderTree)
    , m_scripts(new QListWidget)
    , m_files(new FileListBox(this))
{
    setObjectName(u"frmscripts"_s);
    m_folders->setObjectName(u"scriptfolder"_s);
    m_folders->setAccessibleName(u"Script folders"_s);
    m_scripts->setObjectName(u"scriptlist"_s);
    m_scripts->setAccessibleName(u"Scripts"_s);
    m_scripts->setUniformItemSizes(true);
    m_files->setObjectName(u"scriptfilelist"_s);
    m_files->setPattern(u"*.spt"_s);

    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_folders);
    splitter->addWidget(m_scripts);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter);

    connect(m_folders, &FolderTree::folderSelected, this, &ScriptLibrary::listFolder);
    onItemChosen(*m_scripts, this, [this](const QModelIndex &index) { paste(index.data(KeyRole).toString()); });
}

void ScriptLibrary::setRootFolder(const QString &folder)
{
    m_folders->setRootFolder(folder, u"Scripts"_s);
    listFolder(m_folders->selectedFolder());
}

void ScriptLibrary::listFolder(const QString &folder)
{
    constexpr int endingLength = 4;
    m_files->setPath(folder);
    m_scripts->clear();
    const QIcon picture = themeIcon(u"dialog-scripts"_s);
    const QStringList names = m_files->entries();
    for (const QString &name : names) {
        auto *item = new QListWidgetItem(picture, name.chopped(endingLength), m_scripts);
        item->setData(KeyRole, name);
    }
}

void ScriptLibrary::paste(const QString &fileName)
{
    if (isRefused(Refusal::CodeView, m_context.designer, m_context.prompts))
        return;
    Result<QByteArray> bytes = m_context.files.read(m_files->path() + u'/' + fileName);
    if (bytes)
        pasteBehindSelection(m_context, QString::fromUtf8(decodeText(std::move(bytes).value()).utf8));
    else
        tellError(m_context.prompts, bytes.error());
}

} // namespace zephira
