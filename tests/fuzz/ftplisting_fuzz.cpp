// SPDX-License-Identifier: GPL-3.0-or-later
// Listings of servers: reading never fails, and no name gets through that would be harmful as a file name.
#include "ftp/folderlisting.h"
#include "ftp/ftpreply.h"
#include "ftp/remotenames.h"
#include "ftp/safenames.h"
#include "fuzz/fuzztarget.h"

#include <QSet>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void checkEntries(const std::vector<zephira::ListedEntry> &entries)
{
    QSet<QByteArray> names;
    zephira::RemoteNames shown;
    for (const zephira::ListedEntry &entry : entries) {
        if (!zephira::isSafeRemoteName(QByteArrayView(entry.name)) || names.contains(entry.name))
            std::abort();
        names.insert(entry.name);
        // A name that was shown is sent back to the server as the bytes that came from it.
        if (shown.sent(u"/a/"_s + shown.shown(u"/a/"_s, entry.name)) != "/a/" + entry.name)
            std::abort();
    }
}

} // namespace

FUZZ_TARGET(ftplisting)
{
    const QByteArray input = zephira::fuzz::inputBytes(data, size);
    checkEntries(zephira::readList(input, QDate(2024, 3, 10)));
    checkEntries(zephira::readMlsd(input));

    zephira::FtpReplyReader reader;
    for (const QByteArray &line : input.split('\n')) {
        if (!reader.take(line))
            break;
    }
    if (reader.isComplete()) {
        extendedPassivePort(reader.reply());
        passivePort(reader.reply());
        quotedFolder(reader.reply());
        hasFeature(reader.reply(), "MLST");
    }
    return 0;
}
