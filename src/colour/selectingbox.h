// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace zephira {

/// A text box that selects its whole text whenever it takes the focus, by the mouse as well, and
/// before its menu opens, so that a right click can copy it. It can be marked as
/// holding no value.
class SelectingBox final : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool marked READ isMarked WRITE setMarked)

public:
    explicit SelectingBox(QWidget *parent = nullptr) : QLineEdit(parent) {}

    bool isMarked() const { return m_marked; }
    void setMarked(bool marked);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    bool m_marked = false;
};

} // namespace zephira
