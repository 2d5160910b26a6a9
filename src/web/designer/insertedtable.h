// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

namespace zephira {

/// The markup of a table that the designer inserts, with a line for each table, row and cell tag. Cells contain a line
/// break, so that the caret can be placed in them. The attributes are inserted as they are, the caption as text; empty
/// ones are omitted. Empty for a table without rows or columns, and for one that is too large.
QString insertedTableMarkup(const InsertTableParam &table);

} // namespace zephira
