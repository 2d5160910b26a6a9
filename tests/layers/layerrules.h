// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace zephira {

/// Facts about the source tree that the rules need, read once. All paths are relative to src/.
struct Layers {
    /// Sources and headers of the targets that link Qt6::Core alone.
    QSet<QString> logicFiles;
    /// Headers of dialogs and main windows.
    QSet<QString> formHeaders;
};

/// Reads the CMake files and the .ui files below a folder.
Layers readLayers(const QString &sourceFolder);

/// Where a source breaks a rule: one sentence each, with the 1-based number of the first line concerned.
QStringList violations(const QString &path, const QString &text, const Layers &layers);

/// The folders below src/, each after those that it may include.
QStringList folders();

/// The folders that `folder` may include besides itself.
QStringList foldersBelow(const QString &folder);

bool mayInclude(const QString &folder, const QString &other);

/// Where a CMake file links a logic library to a library that logic must not use, in the form of violations().
QStringList linkViolations(const QString &path, const QString &cmake);

/// The source without comments and without string and character literals; line ends are kept.
QString codeOf(const QString &text);

/// The string and character literals of a source as they are written, with their quotes. Names of included files are
/// none.
QStringList literalsOf(const QString &text);

constexpr int maximumLines = 1000;
constexpr qsizetype maximumFolderLines = 7500;

} // namespace zephira
