// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace zephira {

/// A list of the mounted drives by mount point, updated whenever it opens.
class DriveBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DriveBox(QWidget *parent = nullptr);

    /// Reads the drives again. The current one stays selected, or is replaced by the root if it is no longer mounted.
    void refill();
    void showPopup() override;
};

} // namespace zephira
