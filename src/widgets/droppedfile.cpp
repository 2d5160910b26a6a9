// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/droppedfile.h"

#include <QList>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace zephira {

QString droppedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    const auto file = std::ranges::find_if(urls, &QUrl::isLocalFile);
    return file == urls.end() ? QString() : file->toLocalFile();
}

} // namespace zephira
