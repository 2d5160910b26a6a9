// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command.h"

#include <QSet>
#include <QToolBar>

namespace zephira {

class FormOpener;
struct ToolBarTable;
struct ToolButton;

/// A toolbar made from a table. Its actions bear their keys as objectName, and so do the entries of the pull-downs, which
/// are actions of their button's menu.
class CommandToolBar : public QToolBar
{
    Q_OBJECT

public:
    CommandToolBar(const ToolBarTable &table, QWidget *parent = nullptr);

    /// The button or pull-down entry of a key, or nullptr.
    QAction *action(const QString &key) const;

    /// Opens or closes the buttons at the positions first to last, 1-based with separators counted. What isn't available
    /// yet stays closed.
    void setPositionsEnabled(int first, int last, bool enabled);
    /// The formatting toolbar's rule for the document's language: all of 1 to 15 open, or only 13 to 15.
    void setMarkupOpen(bool open);

    /// Disables what needs a form that can't be opened yet and says so in its tool tip.
    void applyAvailability(const FormOpener &forms);
    /// The same for one button or pull-down entry, and for the button of a pull-down of which nothing is left.
    void close(const QString &key);

Q_SIGNALS:
    /// A button, or an entry of a pull-down, was clicked.
    void chosen(const zephira::Command &command);

private:
    void addButton(const ToolButton &button);

    const ToolBarTable &m_table;
    QSet<const QAction *> m_unavailable;
};

} // namespace zephira
