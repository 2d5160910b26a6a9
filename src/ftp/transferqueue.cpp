// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/transferqueue.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace zephira {

qint64 TransferQueue::total() const
{
    return std::accumulate(files.begin(), files.end(), static_cast<qint64>(0),
                           [](qint64 sum, const File &file) { return sum + file.size; });
}

QString TransferQueue::countText() const
{
    const QString text = direction == Direction::Download ? u"File:             /"_s : u"File:       /"_s;
    return text + QString::number(files.size());
}

QString TransferQueue::startCaption() const
{
    return direction == Direction::Download ? u"Download"_s : u"Upload"_s;
}

QString TransferQueue::movedCaption() const
{
    return direction == Direction::Download ? u"Bytes received:"_s : u"Bytes send:"_s;
}

} // namespace zephira
