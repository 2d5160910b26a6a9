// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/customtabs.h"

#include "core/appcontext.h"
#include "core/configuration.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/itemroles.h"
#include "core/pasteitem.h"
#include "core/prompts.h"
#include "files/filenumber.h"
#include "files/textfile.h"
#include "panes/customtabfile.h"
#include "widgets/itemchoice.h"

#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In characters. The whole header is measured, and the first line of a file that isn't a snippet file may be very
/// long.
constexpr qsizetype longestHeader = 1000;
/// In characters, for a tool tip.
constexpr qsizetype longestTitle = 100;

} // namespace

CustomTabs::CustomTabs(const AppContext &context, FileNumber &fileNumber, QMenu &menu, QWidget *owner)
    : QObject(owner), m_context(context), m_fileNumber(fileNumber), m_menu(menu), m_lineBuffer(new QListWidget(owner))
{
    m_lineBuffer->setObjectName(u"lsttempc"_s);
    m_lineBuffer->setUniformItemSizes(true);
    m_lineBuffer->hide();
    for (int tab = 1; tab <= count; ++tab)
        m_lists[static_cast<std::size_t>(tab - 1)] = makeList(tab, owner);
}

QTreeWidget *CustomTabs::makeList(int tab, QWidget *owner)
{
    auto *list = new QTreeWidget(owner);
    list->setObjectName(u"c%1"_s.arg(tab));
    list->setAccessibleName(u"Custom tab %1"_s.arg(tab));
    list->setHeaderLabel({});
    list->setRootIsDecorated(false);
    onItemChosen(*list, this,
                 [this](const QModelIndex &index) { pasteInCodeView(m_context, index.data(TagRole).toString()); });
    list->viewport()->installEventFilter(this);
    list->installEventFilter(this);
    return list;
}

bool CustomTabs::eventFilter(QObject *watched, QEvent *event)
{
    // All other events are passed on first, because some come from a list that is being destroyed.
    if (event->type() != QEvent::ContextMenu && event->type() != QEvent::MouseButtonRelease)
        return QObject::eventFilter(watched, event);
    for (int tab = 1; tab <= count; ++tab) {
        QTreeWidget &view = *list(tab);
        if (watched != &view && watched != view.viewport())
            continue;
        if (event->type() == QEvent::ContextMenu) {
            // The keyboard opens the menu here; with the mouse, this event may come before the button is released.
            if (static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard)
                openMenu(tab, view.viewport()->mapToGlobal(view.visualItemRect(view.currentItem()).bottomLeft()));
            return true;
        }
        if (watched == view.viewport() && event->type() == QEvent::MouseButtonRelease) {
            const auto *mouse = static_cast<QMouseEvent *>(event);
            if (mouse->button() == Qt::RightButton)
                openMenu(tab, mouse->globalPosition().toPoint());
        }
    }
    return QObject::eventFilter(watched, event);
}

void CustomTabs::openMenu(int tab, const QPoint &position)
{
    m_menuTab = static_cast<qint16>(tab);
    m_menu.popup(position);
}

QString CustomTabs::filePath(int tab) const
{
    return m_context.appPath + u"/ctabs/"_s + m_context.configuration.value(customTabSetting(tab));
}

QString CustomTabs::title(int tab) const
{
    Result<QByteArray> bytes = m_context.files.read(filePath(tab));
    if (!bytes)
        return {};
    const QString text = QString::fromUtf8(decodeText(std::move(bytes).value()).utf8);
    return text.left(text.indexOf(u'\n')).left(longestTitle).trimmed();
}

void CustomTabs::load(int tab)
{
    LoadCustomTab(filePath(tab), list(tab), m_lineBuffer);
}

void CustomTabs::LoadCustomTab(const QString &filePath, QTreeWidget *listView, QListWidget *lineBuffer)
{
    lineBuffer->clear();
    listView->clear();
    const Result<QStringList> lines = m_fileNumber.linesOf(filePath, 1);
    if (!lines) {
        m_context.prompts.ask(
            {u"An error has occured, the error is most likely due to an empty custom code snips file. "
             "Here is an exact description of the error, please use this description when contacting "
             "support: "_s
             + lines.error().sentence});
        return;
    }
    lineBuffer->addItems(lines.value());
    const CustomTabFile file = parseCustomTab(lines.value());
    listView->setHeaderLabel(file.header.left(longestHeader));
    QList<QTreeWidgetItem *> items;
    for (const CustomTabFile::Entry &entry : file.entries) {
        items.append(new QTreeWidgetItem(QStringList(entry.title)));
        items.last()->setData(0, TagRole, entry.code);
    }
    listView->addTopLevelItems(items);
    lineBuffer->clear();
}

void CustomTabs::addEntry()
{
    const QString code =
        m_context.prompts.input({u"What is the code you wish to add?"_s, u"Add Entry - Code"_s}).value_or(QString());
    const QString title =
        m_context.prompts.input({u"What is the title you wish to give to this entry?"_s, u"Add Entry - Title"_s, code})
            .value_or(QString());
    if (code.isEmpty() || title.isEmpty())
        return;
    // Title and code are written together, so that an entry is never left incomplete.
    const Result<void> added = AppendToFile(m_context.files, filePath(m_menuTab), customTabEntry(title, code));
    if (!added)
        tellError(m_context.prompts, added.error());
}

} // namespace zephira
