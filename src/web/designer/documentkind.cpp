// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/documentkind.h"

namespace zephira {

DocumentKind documentKind(const QString &fileName)
{
    const FileType *type = fileTypeOf(fileName);
    return type ? type->kind : DocumentKind::Markup;
}

} // namespace zephira
