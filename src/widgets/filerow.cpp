// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/filerow.h"

#include <numeric>

namespace zephira {

qint64 totalBytes(const std::vector<FileRow> &rows)
{
    return std::accumulate(rows.begin(), rows.end(), static_cast<qint64>(0),
                           [](qint64 sum, const FileRow &row) { return sum + row.bytes.toLongLong(); });
}

} // namespace zephira
