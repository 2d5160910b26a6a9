// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace zephira {

/// What a frame template looks like: a sentence for tool tip and screen reader, and a picture of its frames.
struct FramePicture {
    QString description;
    QIcon icon;
};

/// The picture of a file in the folder `templates`, in the colours of the palette; empty if the file has none.
FramePicture framePicture(const QString &templateFile, const QPalette &palette, QSize size);

} // namespace zephira
