// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace zephira {

/// The address in a `src` attribute at a byte of a line of text; empty if the byte isn't in one.
QByteArrayView sourceAt(QByteArrayView line, qsizetype offset);

/// The file that an address of a page means on this machine: relative to the folder of the page, or below the project if it
/// begins with a slash. Empty for an address elsewhere, and if the folder that it needs isn't known.
QString pictureFile(const QString &address, const QString &pageFolder, const QString &projectFolder);

} // namespace zephira
