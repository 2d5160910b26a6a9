// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Text of the project folder box while no project is set.
inline constexpr QStringView noProjectPath = u"Project Path";

/// The forms' interface to the window's document and its project.
class DocumentHost
{
public:
    virtual ~DocumentHost() = default;

    /// The selected row of the language list, 0 to 9, and its text.
    virtual int languageRow() const = 0;
    virtual QString languageText() const = 0;
    virtual void setLanguageRow(int row) = 0;

    /// Text of the project folder box, whatever it is; hasProject() says whether it names a folder.
    virtual QString projectPath() const = 0;
    virtual void setProjectPath(const QString &path) = 0;

    /// The common dialog's file name: the document's full path, or empty.
    virtual QString commonDialogFile() const = 0;

    /// Whether the text has changes that aren't saved.
    virtual bool isModified() const = 0;

    /// Opens a file as the window's document, after asking about unsaved changes. What can't be read is reported.
    virtual void openFile(const QString &path) = 0;
};

/// Whether the box holds another text than its initial one, be it an empty one.
inline bool hasProjectText(const DocumentHost &host)
{
    return host.projectPath() != noProjectPath;
}

/// Whether the user has set a project folder. The folder needn't exist.
inline bool hasProject(const DocumentHost &host)
{
    return hasProjectText(host) && !host.projectPath().isEmpty();
}

} // namespace zephira
