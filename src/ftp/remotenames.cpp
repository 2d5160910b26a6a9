// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/remotenames.h"

#include "files/textfile.h"

namespace zephira {

QString RemoteNames::shown(const QString &folder, const QByteArray &name)
{
    const bool isUtf8 = name.isValidUtf8();
    const QString text = QString::fromUtf8(isUtf8 ? name : windows1252ToUtf8(name));
    if (!isUtf8)
        m_bytes.insert(folder + text, name);
    else if (!m_bytes.isEmpty())
        m_bytes.remove(folder + text);
    return text;
}

QByteArray RemoteNames::sent(const QString &path) const
{
    if (m_bytes.isEmpty())
        return path.toUtf8();
    QByteArray bytes;
    qsizetype begin = 0;
    while (begin <= path.size()) {
        const qsizetype slash = path.indexOf(u'/', begin);
        const qsizetype end = slash < 0 ? path.size() : slash;
        const auto known = m_bytes.constFind(path.first(end));
        bytes += known != m_bytes.constEnd() ? *known : path.sliced(begin, end - begin).toUtf8();
        if (slash >= 0)
            bytes += '/';
        begin = end + 1;
    }
    return bytes;
}

} // namespace zephira
