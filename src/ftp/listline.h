// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/folderlisting.h"

#include <optional>

namespace zephira {

/// The entry in one line of a LIST answer, given without its line end; nothing for a line that is no entry, such as the
/// total, and for devices, pipes and sockets. `today` completes dates without a year, as in readList.
std::optional<ListedEntry> readListLine(QByteArrayView line, QDate today);

} // namespace zephira
