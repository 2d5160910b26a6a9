// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace zephira {

/// Shows a file's properties on desktops without a file manager.
class FilePropertiesWindow final : public QDialog
{
    Q_OBJECT

public:
    FilePropertiesWindow(const QString &path, QWidget *owner);
};

} // namespace zephira
