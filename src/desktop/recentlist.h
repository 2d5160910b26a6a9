// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace zephira {

/// One use of a file by a program, as the desktop's list of recent files tells it.
struct RecentUse {
    /// The file's address, "file:///home/ann/page.html".
    QString address;
    QString mimeType;
    /// The program's name, and the command that opens the file with it.
    QString program;
    QString command;
    QDateTime time;
};

/// The list (recently-used.xbel, a bookmark file that all programs of the desktop share) with that use. An empty text is a
/// list without entries. What the file's entry says of other programs stays, and all bytes of other files' entries do,
/// but of the entries that are this program's alone, no more than the newest `maximum` are kept.
///
/// Fails with Code::Malformed if the text isn't such a list.
Result<QByteArray> withRecentUse(const QByteArray &list, const RecentUse &use, qsizetype maximum);

} // namespace zephira
