// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/pasteitem.h"

#include "core/appcontext.h"
#include "core/editingcontrol.h"
#include "core/inserter.h"
#include "core/refusals.h"

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
