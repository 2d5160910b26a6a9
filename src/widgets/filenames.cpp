// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/filenames.h"

#include "core/vbtext.h"
#include "core/wildcard.h"

#include <QDirIterator>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

FilePatterns::FilePatterns(const QString &list)
{
    const QStringList parts = list.split(u';');
    for (const QString &part : parts) {
        const QString pattern = Trim(part);
        if (!pattern.isEmpty())
            m_patterns.append(pattern == u"*.*"_s ? u"*"_s : pattern.toCaseFolded());
    }
    if (m_patterns.isEmpty())
        m_patterns.append(u"*"_s);
}

bool FilePatterns::match(const QString &name) const
{
    const bool hidden = name.startsWith(u'.');
    const QString folded = name.toCaseFolded();
    return std::ranges::any_of(m_patterns, [&](const QString &pattern) {
        return hidden == pattern.startsWith(u'.') && matchesWildcard(pattern, folded);
    });
}

QStringList fileNames(const QString &folder, const QString &patterns)
{
    if (folder.isEmpty())
        return {};
    struct Name {
        QString folded;
        QString name;
    };
    std::vector<Name> found;
    const FilePatterns wanted(patterns);
    QDirIterator entries(folder, QDir::Files | QDir::Hidden);
    while (entries.hasNext()) {
        entries.next();
        QString name = entries.fileName();
        if (wanted.match(name))
            found.push_back({name.toCaseFolded(), std::move(name)});
    }
    std::ranges::sort(
        found, [](const Name &a, const Name &b) { return std::tie(a.folded, a.name) < std::tie(b.folded, b.name); });
    QStringList names;
    names.reserve(static_cast<qsizetype>(found.size()));
    for (Name &entry : found)
        names.append(std::move(entry.name));
    return names;
}

} // namespace zephira
