// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Shows a file in a window of its own, without opening it as the document. A second file replaces the first.
class QuickViewer
{
public:
    virtual ~QuickViewer() = default;

    /// Shows a picture if the name ends in "jpg", "gif" or "bmp" (not case-sensitive), otherwise text.
    virtual void showFile(const QString &path) = 0;
    virtual void showPicture(const QString &path) = 0;
    virtual void showText(const QString &path) = 0;
};

} // namespace zephira
