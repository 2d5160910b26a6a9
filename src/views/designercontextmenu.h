// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

#include <QList>
#include <QString>

namespace zephira {

/// An entry of the designer's context menu; a separator has no text and no command.
struct DesignerContextEntry {
    QString text = {};
    DesignerCommand command = DesignerCommand::None;
    DesignerMenuState state = DesignerMenuState::Unchecked;

    friend bool operator==(const DesignerContextEntry &, const DesignerContextEntry &) = default;
};

/// The designer's context menu, rebuilt at each right click from the commands that are available there.
class DesignerContextMenu
{
public:
    explicit DesignerContextMenu(Designer &designer) : m_designer(designer) {}

    /// Builds the entries and passes them to the designer.
    void show();
    /// Runs the entry with a 0-based index in the last shown menu; a separator or an invalid index does nothing.
    void run(int index);

    const QList<DesignerContextEntry> &entries() const { return m_entries; }

private:
    void add(const QString &text, DesignerCommand command);
    void addSeparator() { m_entries.append(DesignerContextEntry()); }
    bool isAvailable(DesignerCommand command) const;

    Designer &m_designer;
    QList<DesignerContextEntry> m_entries;
};

} // namespace zephira
