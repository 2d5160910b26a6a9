// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/filelistbox.h"

#include "controls/vbtext.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace zephira {

QStringList FileListBox::entries() const
{
    if (m_path.isEmpty())
        return {};
    QStringList patterns = m_pattern.split(u';', Qt::SkipEmptyParts);
    for (QString &pattern : patterns) {
        pattern = Trim(pattern);
        if (pattern == u"*.*"_s)
            pattern = u"*"_s;
    }
    if (patterns.isEmpty())
        patterns = QStringList{u"*"_s};
    return QDir(m_path).entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

} // namespace zephira
