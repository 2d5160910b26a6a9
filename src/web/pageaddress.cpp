// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/pageaddress.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace zephira {

QUrl pageAddress(const QString &text)
{
    const QString address = text.trimmed();
    if (QDir::isAbsolutePath(text))
        return QUrl::fromLocalFile(text);
    const QUrl url = QUrl::fromUserInput(address);
    return address.isEmpty() || !url.isValid() ? QUrl(u"about:blank"_s) : url;
}

} // namespace zephira
