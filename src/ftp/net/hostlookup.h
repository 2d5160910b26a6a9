// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/deadline.h"
#include "ftp/net/socketaddress.h"

#include <QString>

#include <vector>

namespace zephira {

/// The addresses of a server, given by its name or an address, in order of preference; none if it is unknown or the
/// deadline passes.
std::vector<SocketAddress> lookUpHost(const QString &server, quint16 port, Deadline deadline);

} // namespace zephira
