// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace zephira {

class EditingControl;
class Palette;
struct VariableList;

/// A drop-down of variables. Choosing an item, also the one that is chosen already, puts it in the place of the code
/// view's selection, whatever view shows.
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
