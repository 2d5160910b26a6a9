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
    /// As wide as an empty box, because a long mount point must not make the pane wider. The box's own policy for that
    /// would make the list, which nobody has opened yet.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace zephira
