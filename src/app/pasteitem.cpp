// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pasteitem.h"

#include "app/refusals.h"
#include "controls/appcontext.h"
#include "controls/editingcontrol.h"
#include "controls/inserter.h"

namespace zephira {

void pasteBehindSelection(const AppContext &context, const QString &item)
{
    if (!item.isEmpty())
        context.inserter.InsertAtCaret(context.editor.selText() + item);
}

void pasteInCodeView(const AppContext &context, const QString &item)
{
    if (!isRefused(Refusal::CodeView, context.designer, context.prompts))
        pasteBehindSelection(context, item);
}

} // namespace zephira
