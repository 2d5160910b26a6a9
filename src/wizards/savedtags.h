// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "wizards/metamarkup.h"

#include <QByteArray>
#include <QString>

namespace zephira {

// Saved tags are the facts of a site, kept as a private profile with the extension ".smt" in the folder "Tags" of the
// program. A profile has one line to a value, so line breaks come back as spaces, and of each text at most 999
// characters come back.

/// The extension of saved tags, with its dot.
inline constexpr QStringView savedTagsExtension = u".smt";

/// The folder of all saved tags, without a trailing separator.
QString savedTagsFolder(const QString &appPath);

/// Saves facts under a name, which may be empty; the extension is added to it. Of an existing file only the values of
/// the facts change. If there is no such folder, nothing is saved, and that isn't an error.
Result<void> saveTags(const SiteFacts &facts, const QString &folder, const QString &name);

/// The facts in a file's content. Missing values are empty.
SiteFacts savedTags(const QByteArray &content);

/// Reads a file of saved tags, given by its name with the extension. Fails with Code::NotFound if there is no
/// such file.
Result<SiteFacts> loadTags(const QString &folder, const QString &fileName);

} // namespace zephira
