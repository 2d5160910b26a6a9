// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/texttools.h"

#include "app/commandpalette.h"
#include "app/focusring.h"
#include "app/livedock.h"
#include "app/windowkeys.h"
#include "assist/breadcrumb.h"
#include "assist/textfunctions.h"
#include "commands/menus.h"
#include "commands/texttable.h"
#include "core/appcontext.h"
#include "core/designer.h"
#include "core/settings.h"
#include "editor/codemax.h"
#include "search/searchpage.h"
#include "views/workspaceviews.h"
#include "widgets/toolpanel.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QMainWindow>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString searchPage = u"SearchPage"_s;

} // namespace

TextTools::TextTools(const Parts &parts)
    : m_parts(parts), m_panel(new ToolPanel(parts.window)), m_helpers(parts.rt, parts.context, *m_panel)
{
    TextServices services = parts.services;
    services.showCode = [this] { showCode(); };
    m_helpers.setServices(std::move(services));
    m_panel->leave = [&rt = parts.rt] { rt.setFocus(); };
    m_panel->addPage(searchPage, QCoreApplication::translate("ToolPanel", "Search"), [this](QWidget *parent) {
        return new SearchPage({m_parts.rt, m_parts.context, [this] { showCode(); }}, parent);
    });
}

TextTools::~TextTools() = default;

void TextTools::start()
{
    m_parts.menus.addTextMenus(m_parts.rt);
    m_parts.keys.addTextMenus();
    m_parts.rt.extendMenu = [this](QMenu &menu) { m_parts.menus.offerTextMenus(menu); };
    m_helpers.start();
    showSwitches();
    showBreadcrumb(wholeNumber(m_parts.context.settings, UserSetting::Breadcrumb) != 0);
}

void TextTools::showCode()
{
    m_parts.views.selectTab(WorkspaceView::Code);
    m_parts.context.designer.finishLeaving();
}

void TextTools::languageChanged()
{
    m_helpers.languageChanged();
    if (m_breadcrumb)
        m_breadcrumb->takeLanguage();
}

void TextTools::showBreadcrumb(bool on)
{
    m_parts.menus.setChecked(textname::breadcrumb, on);
    if (on && !m_breadcrumb) {
        m_breadcrumb = new Breadcrumb(m_parts.rt, m_parts.document.parentWidget());
        m_parts.document.addWidget(m_breadcrumb);
        if (m_ring)
            m_ring->add({m_breadcrumb});
    }
    if (m_breadcrumb)
        m_breadcrumb->setOn(on);
}

void TextTools::showSwitches()
{
    for (const MenuItem &menu : textMenuTable()) {
        for (const MenuItem &entry : menu.children) {
            const auto *const command = std::get_if<TextCommand>(&entry.command.effect);
            if (const std::optional<bool> on = command ? isSwitchedOn(m_helpers, *command) : std::nullopt)
                m_parts.menus.setChecked(entry.name, *on);
        }
    }
}

void TextTools::attach(FocusRing &ring)
{
    m_ring = &ring;
    m_parts.live.attach(ring);
    m_panel->made = [&ring](QWidget &panel) { ring.add({&panel}); };
}

void TextTools::findInProject()
{
    static_cast<SearchPage *>(m_panel->enter(searchPage))->bring();
}

void TextTools::runTextCommand(TextCommand command)
{
    if (command == TextCommand::CommandPalette) {
        m_parts.commands.open();
        return;
    }
    if (command == TextCommand::FindInProject) {
        findInProject();
        return;
    }
    if (command == TextCommand::LivePage) {
        m_parts.live.toggle();
        return;
    }
    if (command == TextCommand::ShowBreadcrumb) {
        const bool on = !m_breadcrumb || !m_breadcrumb->isOn();
        writeSwitch(m_parts.context.settings, UserSetting::Breadcrumb, on);
        showBreadcrumb(on);
        return;
    }
    if (const TextFunction run = textFunction(command))
        run(m_helpers);
    if (isSwitchedOn(m_helpers, command))
        showSwitches();
}

} // namespace zephira
