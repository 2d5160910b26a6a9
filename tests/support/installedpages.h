// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

namespace zephira {

/// At most `most` paths of web pages from the documentation that is installed on this machine: those whose content is
/// `wanted`, one of each package in turn, so that no package fills the list while others have pages left. Pages above
/// 200,000 bytes are left out. The same packages give the same list.
QStringList installedPages(qsizetype most, const std::function<bool(const QByteArray &page)> &wanted);

/// The folder of the package's documentation in which such a page lies.
QString packageFolder(const QString &page);

/// Whether a page has both a style sheet and a script.
bool isDressed(const QByteArray &page);

} // namespace zephira
