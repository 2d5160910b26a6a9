// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

/// A list of wildcards divided by semicolons, "*.htm;*.css": "*" stands for any characters, "?" for one, everything else
/// for itself, without regard to case. Blanks around a wildcard don't count. "*.*" means every name, also one without a
/// dot, and so does a list that holds no wildcard at all. As everywhere on the desktop, a name that begins with a dot is
/// hidden: only a wildcard that begins with one finds it.
class FilePatterns
{
public:
    explicit FilePatterns(const QString &list);

    bool match(const QString &name) const;

private:
    /// In folded case.
    QStringList m_patterns;
};

/// Names of the files in a folder that match one of the patterns, in alphabetical order without regard to case. Empty for
/// a folder that can't be read, and for an empty path. Folders, links that lead nowhere, devices and names that are no
/// valid text are left out.
QStringList fileNames(const QString &folder, const QString &patterns);

} // namespace zephira
