// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

#include <span>

namespace zephira {

class FileStore;

/// The tabs of the start dialog that hold template buttons, by their index.
enum class TemplatePage { Html, Frames, Css, Web, Win32 };

/// A button that starts a document. One without a file leaves the text as it is and chooses the language alone.
struct TemplateButton {
    TemplatePage page;
    QStringView name;    ///< objectName of the button
    QStringView caption; ///< "" where the button bears a picture
    QStringView file;    ///< in the folder `templates`, or ""
    int language;        ///< row of the language list
};

/// All buttons, page by page in the order in which they stand.
std::span<const TemplateButton> templateButtons();

/// Text of a template file, with CR LF line ends. The error of a missing file names file and folder.
Result<QString> readTemplate(const FileStore &files, const QString &path);

} // namespace zephira
