// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/filefilter.h"

#include "core/paths.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zephira {

QStringList nameFilters(const QString &filter)
{
    QStringList filters;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        for (QString &pattern : patterns) {
            pattern = pattern.trimmed();
            if (pattern == u"*.*"_s)
                pattern = u"*"_s;
        }
        filters.append(parts[i] + u" ("_s + patterns.join(u' ') + u')');
    }
    return filters;
}

QString withSuffixOf(const QString &nameFilter, const QString &path)
{
    const QString name = lastName(path);
    if (name.isEmpty() || name.contains(u'.'))
        return path;
    static const QRegularExpression firstPattern(uR"(\(\*(\.[^*?\[\] .)]+)(?: [^(]*)?\)$)"_s);
    return path + firstPattern.match(nameFilter).captured(1);
}

} // namespace zephira
