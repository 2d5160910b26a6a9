// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

namespace zephira {

/// The markup of the table that the designer inserts, a line to each tag of table, row and cell. Cells hold a line break,
/// so that the caret can stand in them. The attributes go in as they are, the caption as text; an empty one is left out.
/// Empty for a table that has no row or no column, and for one that is too large.
QString insertedTableMarkup(const InsertTableParam &table);

} // namespace zephira
