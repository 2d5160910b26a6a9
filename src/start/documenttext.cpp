// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/documenttext.h"

#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "files/recoverycopies.h"

using namespace Qt::StringLiterals;

namespace zephira {

Result<void> replaceDocumentText(const AppContext &context, RecoveryCopies &recovery, const QString &text)
{
    if (context.document.isModified() && context.editor.textLength() > 0) {
        const QString file = context.document.commonDialogFile();
        const Result<void> kept =
            recovery.keepUnsaved(file.isEmpty() ? u"New Document"_s : file, context.editor.utf8Pieces());
        if (!kept) {
            return Error{kept.error().code,
                         u"The document's text was not replaced, because its unsaved changes could not be backed up. "_s
                             + kept.error().sentence};
        }
    }
    context.editor.setText(text);
    return {};
}

} // namespace zephira
