// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/texttools.h"

#include "app/focusring.h"
#include "app/windowkeys.h"
#include "assist/textfunctions.h"
#include "commands/menus.h"
#include "editor/codemax.h"
#include "widgets/toolpanel.h"

#include <QMainWindow>

namespace zephira {

TextTools::TextTools(const Parts &parts)
    : m_parts(parts), m_panel(new ToolPanel(parts.window)), m_helpers(parts.rt, parts.context, *m_panel)
{
    m_panel->leave = [&rt = parts.rt] { rt.setFocus(); };
}

TextTools::~TextTools() = default;

void TextTools::start()
{
    m_parts.menus.addTextMenus(m_parts.rt);
    m_parts.keys.addTextMenus();
    m_parts.rt.extendMenu = [this](QMenu &menu) { m_parts.menus.offerTextMenus(menu); };
    m_helpers.start();
}

void TextTools::attach(FocusRing &ring)
{
    m_panel->made = [&ring](QWidget &panel) { ring.add({&panel}); };
}

void TextTools::runTextCommand(TextCommand command)
{
    if (const TextFunction run = textFunction(command))
        run(m_helpers);
}

} // namespace zephira
