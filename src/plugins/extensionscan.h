// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace zephira {

class ExtensionFolder;
class Prompts;

// Looks through the modules. The first one that fails ends the search; what was added before stays. The user isn't
// told. What is returned says why the search ended early, for those who want to know; it is empty if it didn't.

/// Calls `add` for each plug-in of the files, in their order, with its title and the name of its object. Afterwards
/// `describe` gets its title, version and description in one text.
QString scanPlugins(ExtensionFolder &folder, const QStringList &files,
                    const std::function<void(const QString &caption, const QString &tag)> &add,
                    const std::function<void(const QString &text)> &describe);

/// Calls `insertAtTop` for each wizard of the files, in their order, with the key and the text of its row, which is to
/// stand above the rows before it.
QString scanWizards(ExtensionFolder &folder, const QStringList &files, Prompts &prompts,
                    const std::function<void(const QString &key, const QString &text)> &insertAtTop);

/// The name of a wizard's file up to its first dot. For "*.html" the message "Insert Template" is shown instead, and
/// the name is empty.
QString wizardBaseName(const QString &fileName, Prompts &prompts);

} // namespace zephira
