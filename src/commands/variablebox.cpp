// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/variablebox.h"

#include "commands/palette.h"
#include "commands/variablelists.h"
#include "core/editingcontrol.h"

#include <QWheelEvent>

namespace zephira {

VariableBox::VariableBox(const VariableList &list, EditingControl &editor)
{
    const QString caption = list.caption.toString();
    setObjectName(list.name);
    setAccessibleName(caption);
    setToolTip(caption);
    for (const QStringView item : list.items)
        addItem(item.toString());
    setPlaceholderText(caption);
    setCurrentIndex(-1);
    // A click must not take the focus from the text that receives the item.
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QComboBox::textActivated, this, [&editor](const QString &item) { editor.setSelText(item); });
}

void VariableBox::wheelEvent(QWheelEvent *event)
{
    // Otherwise each step of the wheel would insert an item into the text.
    event->ignore();
}

void addVariableBoxes(Palette &palette, EditingControl &editor)
{
    for (const VariableList &list : variableLists())
        palette.addBox(list.toolbar, new VariableBox(list, editor));
}

} // namespace zephira
