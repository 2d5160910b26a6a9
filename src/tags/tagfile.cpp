// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/tagfile.h"

#include "core/vbtext.h"

namespace zephira {

QStringList tagCaptions(const QStringList &lines)
{
    QStringList captions = lines;
    captions.removeIf([](const QString &line) { return Trim(line).isEmpty(); });
    return captions;
}

} // namespace zephira
