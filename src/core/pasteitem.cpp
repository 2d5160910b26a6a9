// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/pasteitem.h"

#include "core/appcontext.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/inserter.h"
#include "core/refusals.h"

namespace zephira {

void pasteBehindSelection(const AppContext &context, const QString &item)
{
    if (!item.isEmpty())
        context.inserter.InsertAtCaret(context.editor.selText() + item);
}

bool pasteOrTell(const AppContext &context, const Result<QString> &item, const QString &title)
{
    if (!item) {
        tellError(context.prompts, item.error(), title);
        return false;
    }
    pasteBehindSelection(context, item.value());
    return true;
}

void pasteInCodeView(const AppContext &context, const QString &item)
{
    if (!isRefused(Refusal::CodeView, context.designer, context.prompts))
        pasteBehindSelection(context, item);
}

} // namespace zephira
