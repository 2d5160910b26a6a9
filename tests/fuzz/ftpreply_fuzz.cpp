// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary replies of a server: codes and ports are in their ranges, and a folder that a server quotes comes back.
#include "ftp/ftpreply.h"
#include "fuzz/fuzztarget.h"

#include <QList>

using namespace zephira;

FUZZ_TARGET(ftpreply)
{
    const QByteArray input = zephira::fuzz::inputBytes(data, size);
    FtpReplyReader reader;
    for (const QByteArray &line : input.split('\n')) {
        check(!reader.isComplete());
        if (!reader.take(line) || reader.isComplete())
            break;
    }
    const FtpReply &reply = reader.reply();
    if (reader.isComplete()) {
        check(reply.code >= 0 && reply.code <= 999
              && reply.text.startsWith(QByteArray::number(reply.code).rightJustified(3, '0')));
        check(extendedPassivePort(reply).value_or(1) > 0 && passivePort(reply).value_or(1) > 0);
        const std::optional<QByteArray> folder = quotedFolder(reply);
        check(!folder || folder->size() < reply.text.size());
        hasFeature(reply, "MLST");
    }
    QByteArray folder = '/' + input;
    folder.replace('\n', ' ');
    const FtpReply quoting{257, "257 \"" + QByteArray(folder).replace('"', "\"\"") + "\" is current"};
    check(quotedFolder(quoting) == folder);
    return 0;
}
