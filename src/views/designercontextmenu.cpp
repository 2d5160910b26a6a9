// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/designercontextmenu.h"

#include "core/errorstyles.h"

using namespace Qt::StringLiterals;

namespace zephira {

bool DesignerContextMenu::isAvailable(DesignerCommand command) const
{
    return m_designer.queryStatus(command) >= DesignerStatus::Enabled;
}

void DesignerContextMenu::add(const QString &text, DesignerCommand command)
{
    m_entries.append({text, command, isAvailable(command) ? DesignerMenuState::Unchecked : DesignerMenuState::Greyed});
}

void DesignerContextMenu::show()
{
    m_entries.clear();
    add(u"Cut"_s, DesignerCommand::Cut);
    add(u"Copy"_s, DesignerCommand::Copy);
    add(u"Paste"_s, DesignerCommand::Paste);
    addSeparator();
    add(u"Select All"_s, DesignerCommand::SelectAll);
    addSeparator();
    add(u"Font..."_s, DesignerCommand::Font);
    if (isAvailable(DesignerCommand::AbsolutePosition)) {
        // An element that can be sent to the back is already positioned.
        const bool isPositioned = isAvailable(DesignerCommand::SendToBack);
        addSeparator();
        add(isPositioned ? u"Make 1D"_s : u"Make 2D"_s, DesignerCommand::AbsolutePosition);
    }
    if (isAvailable(DesignerCommand::InsertRow)) {
        addSeparator();
        add(u"Insert Row"_s, DesignerCommand::InsertRow);
        add(u"Insert Column"_s, DesignerCommand::InsertColumn);
        addSeparator();
        add(u"Delete Row"_s, DesignerCommand::DeleteRows);
        add(u"Delete Column"_s, DesignerCommand::DeleteColumns);
    }

    QStringList texts;
    QList<DesignerMenuState> states;
    for (const DesignerContextEntry &entry : std::as_const(m_entries)) {
        texts.append(entry.text);
        states.append(entry.state);
    }
    m_designer.setContextMenu(texts, states);
}

void DesignerContextMenu::run(int index)
{
    const DesignerCommand command = m_entries.value(index).command;
    if (command != DesignerCommand::None)
        endingQuietly([&] { m_designer.execCommand(command); });
}

} // namespace zephira
