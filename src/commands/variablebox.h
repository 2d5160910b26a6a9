// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace zephira {

class EditingControl;
class Palette;
struct VariableList;

/// A drop-down of variables. Choosing an item, even the current one, replaces the code view's selection by it,
/// whichever view is visible.
class VariableBox final : public QComboBox
{
    Q_OBJECT

public:
    VariableBox(const VariableList &list, EditingControl &editor);

protected:
    void wheelEvent(QWheelEvent *event) override;
};

/// Gives the palette its drop-downs.
void addVariableBoxes(Palette &palette, EditingControl &editor);

} // namespace zephira
