// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/visualtools.h"

#include "commands/designerbar.h"
#include "commands/designermenus.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "core/designer.h"
#include "views/designerbarstate.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace zephira {

VisualTools::VisualTools(const AppContext &context, DesignerBar &bar, Menus &menus, QObject *owner)
    : QObject(owner), m_context(context), m_bar(bar), m_menus(menus), m_tools(context), m_contextMenu(context.designer)
{
    connectDesigner();
    connectBar();
    connectMenus();
}

void VisualTools::connectDesigner()
{
    m_context.designer.setEvents({.documentComplete = [this] { documentComplete(); },
                                  .displayChanged =
                                      [this] {
                                          showState();
                                          // Also kept up to date for code that reads the menu without opening it.
                                          updateMenu(blockFormatMenu());
                                          Q_EMIT displayChanged();
                                      },
                                  .showContextMenu = [this](const QPoint &) { m_contextMenu.show(); },
                                  .contextMenuAction = [this](int index) { m_contextMenu.run(index); },
                                  .processLost = [this] { Q_EMIT processLost(); }});
}

void VisualTools::connectBar()
{
    connect(&m_bar, &DesignerBar::buttonClicked, this, [this](DesignerCommand command) {
        m_context.designer.finishLeaving();
        m_tools.click(command);
        showState(); // The click has toggled the button, whether or not the command succeeded.
        Q_EMIT finished();
    });
    connect(&m_bar, &DesignerBar::fontChosen, this, [this](const QString &name) {
        m_context.designer.finishLeaving();
        m_tools.chooseFont(name);
        Q_EMIT finished();
    });
    connect(&m_bar, &DesignerBar::fontSizeChosen, this, [this](int size) {
        m_context.designer.finishLeaving();
        m_tools.chooseFontSize(size);
        Q_EMIT finished();
    });
    connect(&m_bar, &DesignerBar::fontSizeTyped, this, [this](const QString &text) {
        m_context.designer.finishLeaving();
        if (const std::optional<QString> before = m_tools.enterFontSize(text))
            m_bar.showFontSize(*before);
        else
            Q_EMIT finished();
    });
}

void VisualTools::connectMenus()
{
    for (const MenuItem &item : menuBarTable()) {
        if (item.need == Need::VisualView)
            connect(m_menus.menu(item.name), &QMenu::aboutToShow, this, [this, &item] { updateMenu(item); });
    }
}

void VisualTools::updateMenus()
{
    for (const MenuItem &item : menuBarTable()) {
        if (item.need == Need::VisualView)
            updateMenu(item);
    }
}

void VisualTools::documentComplete()
{
    if (!m_tools.documentComplete())
        return;
    const QStringList &formats = m_tools.blockFormats();
    for (const MenuItem &item : blockFormatMenu().children) {
        QAction *entry = m_menus.action(item.name);
        const int number = std::get<SetsBlockFormat>(item.command.effect).number;
        entry->setText(formats.value(number));
        entry->setVisible(number < formats.size());
    }
    showState();
    m_bar.showFontSize({});
}

void VisualTools::showState()
{
    m_bar.showState(designerBarState(m_context.designer));
}

void VisualTools::updateMenu(const MenuItem &menu)
{
    const auto entries = designerMenuEntries(menu, m_context.designer, m_tools.blockFormats());
    for (const DesignerMenuEntry &entry : entries) {
        QAction *action = m_menus.action(entry.name);
        if (entry.enabled)
            action->setEnabled(*entry.enabled);
        if (entry.checked)
            action->setChecked(*entry.checked);
        if (entry.caption)
            action->setText(*entry.caption);
    }
}

} // namespace zephira
