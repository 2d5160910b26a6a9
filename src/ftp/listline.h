// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/folderlisting.h"

#include <optional>

namespace zephira {

/// An entry from one line of an answer to LIST, without the line's end; nothing for a line that is no entry, such as the
/// total, and for devices, pipes and sockets. `today` dates what has no year, as in readList.
std::optional<ListedEntry> readListLine(QByteArrayView line, QDate today);

} // namespace zephira
