// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

/// A list of wildcards separated by semicolons, "*.htm;*.css": "*" matches any characters, "?" a single one, everything
/// else itself, not case-sensitive. Spaces around a wildcard are ignored. "*.*" matches every name, even one without a
/// dot, and so does an empty list. As everywhere on the desktop, a name that begins with a dot is hidden: only a
/// wildcard that begins with a dot matches it.
class FilePatterns
{
public:
    explicit FilePatterns(const QString &list);

    bool match(const QString &name) const;

private:
    /// Case-folded.
    QStringList m_patterns;
};

/// Names of the files in a folder that match one of the patterns, in alphabetical order, not case-sensitive. Empty if
/// the folder can't be read or the path is empty. Folders, broken links, devices, and names that aren't valid text are
/// left out.
QStringList fileNames(const QString &folder, const QString &patterns);

} // namespace zephira
