// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

struct AppContext;
class DocumentHost;

/// Lets the user look up files for the fields of forms, and remembers the folder for the next time.
class FileLookup
{
public:
    /// The full name of the file, or nothing if the user cancelled. The dialog starts in the folder of the file that
    /// was chosen last; before the first choice, in the project's folder. For the filter see FileRequest.
    std::optional<QString> choose(const AppContext &context, const QString &title, const QString &filter);

private:
    QString m_folder;
};

/// How a page of the project refers to a file: relative to the project's folder, or by the full name if there is no
/// project.
QString projectReference(const DocumentHost &document, const QString &file);

} // namespace zephira
