// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command.h"

#include <QToolBar>

namespace zephira {

enum class Need;
struct ToolBarTable;
struct ToolButton;

/// A toolbar made from a table. The objectName of an action is its key; this holds for the entries of the pull-downs
/// too, which are actions of their button's menu.
class CommandToolBar : public QToolBar
{
    Q_OBJECT

public:
    CommandToolBar(const ToolBarTable &table, QWidget *parent = nullptr);

    /// The button or pull-down entry with a key, or nullptr.
    QAction *action(const QString &key) const;
    /// Names new keys in the tips of the buttons that do what a menu entry does.
    void showKeys(QStringView entry, const QString &keys);

    /// Enables or disables the buttons and separators that need something.
    void setMet(Need need, bool met);

Q_SIGNALS:
    /// A button, or an entry of a pull-down, was clicked.
    void chosen(const zephira::Command &command);

private:
    void addButton(const ToolButton &button);
    void setTip(QAction *action, const QString &tip);

    const ToolBarTable &m_table;
};

} // namespace zephira
