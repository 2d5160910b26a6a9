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

/// The designer's context menu, built anew at each right click from what can be done there.
class DesignerContextMenu
{
public:
    explicit DesignerContextMenu(Designer &designer) : m_designer(designer) {}

    /// Builds the entries and hands them to the designer.
    void show();
    /// Runs the entry with that 0-based index of the menu that was shown last; a separator, or none, does nothing.
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
