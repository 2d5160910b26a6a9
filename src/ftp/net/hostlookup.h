// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/deadline.h"
#include "ftp/net/socketaddress.h"

#include <QString>

#include <vector>

namespace zephira {

/// The addresses of a server that is named by its name or its address, the preferred ones first; none if it isn't known
/// or the deadline passes.
std::vector<SocketAddress> lookUpHost(const QString &server, quint16 port, Deadline deadline);

} // namespace zephira
