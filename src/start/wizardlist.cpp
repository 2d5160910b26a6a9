// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/wizardlist.h"

#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/errorstyles.h"
#include "core/itemroles.h"
#include "plugins/extensionscan.h"
#include "start/documenttext.h"
#include "widgets/filelistbox.h"
#include "widgets/themeicon.h"

#include <QAction>
#include <QDialog>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace zephira {

WizardList::WizardList(const AppContext &context, RecoveryCopies &recovery, FileListBox &files, QListWidget &list,
                       QDialog &dialog)
    : m_context(context)
    , m_recovery(recovery)
    , m_list(list)
    , m_dialog(dialog)
    , m_folder(wizardKind, context.appPath)
    , m_run(m_folder)
{
    fill(files);
    connect(&list, &QListWidget::itemDoubleClicked, this, &WizardList::run);
    connect(&dialog, &QDialog::finished, this, [this] { m_run.abandon(); });

    // The keyboard equivalent of a double click.
    auto *use = new QAction(&list);
    use->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    use->setShortcutContext(Qt::WidgetShortcut);
    list.addAction(use);
    connect(use, &QAction::triggered, this, [this] { run(m_list.currentItem()); });
}

void WizardList::fill(FileListBox &files)
{
    files.setPath(m_folder.path());
    files.setPattern(modulePattern.toString());
    const QIcon picture = themeIcon(u"tools-wizard"_s, QStyle::SP_FileIcon);
    m_reason = scanWizards(m_folder, files.entries(), m_context.prompts, [&](const QString &key, const QString &text) {
        auto *row = new QListWidgetItem(picture, text);
        row->setData(KeyRole, key);
        m_list.insertItem(0, row);
    });
}

void WizardList::run(const QListWidgetItem *row)
{
    if (!row)
        return;
    m_run.run(ExtensionFolder::objectName(row->data(KeyRole).toString()),
              {.useText = [this](const QString &text) { useText(text); },
               .setLanguage = [this](int language) { m_context.document.setLanguageRow(language); },
               .finish = [this] { m_dialog.accept(); }});
}

void WizardList::useText(const QString &text)
{
    const Result<void> put = replaceDocumentText(m_context, m_recovery, text);
    if (!put)
        tellError(m_context.prompts, put.error(), m_dialog.windowTitle(), Question::Icon::Critical);
    orRaise(put);
}

} // namespace zephira
