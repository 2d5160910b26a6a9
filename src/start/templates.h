// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

#include <span>

namespace zephira {

class FileStore;

/// The tabs of the start dialog that have template buttons, by index.
enum class TemplatePage { Html, Frames, Css, Web, Win32 };

/// A button that starts a document. One without a file leaves the text as it is and only sets the language.
struct TemplateButton {
    TemplatePage page;
    QStringView name;    ///< objectName of the button
    QStringView caption; ///< "" if the button has a picture
    QStringView file;    ///< in the folder `templates`, or ""
    int language;        ///< row of the language list
};

/// All buttons, page by page in their visual order.
std::span<const TemplateButton> templateButtons();

/// Text of a template file, with CR LF line ends. If the file is missing, the error names file and folder; a file with a
/// NUL character isn't a text and fails, too.
Result<QString> readTemplate(const FileStore &files, const QString &path);

} // namespace zephira
