// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace zephira {

/// The drives by their mount points, as they are mounted whenever the list opens.
class DriveBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DriveBox(QWidget *parent = nullptr);

    /// Reads the drives again. The current one stays, or gives way to the root if it isn't mounted any more.
    void refill();
    void showPopup() override;
};

} // namespace zephira
