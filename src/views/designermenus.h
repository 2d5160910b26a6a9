// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

#include <QList>
#include <QString>

#include <optional>

namespace zephira {

/// An entry of the menu View and the switch of the designer that it turns.
struct DesignerSwitch {
    QStringView entry;
    bool (Designer::*get)() const;
    void (Designer::*set)(bool);
};

/// The switch of an entry, or nullptr.
const DesignerSwitch *findDesignerSwitch(QStringView entry);

/// The command of an entry of InsertSub, TableSub or D2DSub, such as "TableSub_2"; None for a separator, and for every
/// other name.
DesignerCommand designerMenuCommand(QStringView entry);

/// The menu Format has this many entries, FormatSub_0 and so on.
constexpr int blockFormatEntries = 16;
/// The 0-based number of such an entry; -1 for any other name.
int blockFormatIndex(QStringView entry);

/// How an entry looks; what isn't named stays as it is.
struct DesignerMenuEntry {
    QString name;
    std::optional<bool> enabled = {};
    std::optional<bool> checked = {};
    std::optional<QString> caption = {};

    friend bool operator==(const DesignerMenuEntry &, const DesignerMenuEntry &) = default;
};

/// The entries of one of the designer's menus as they should look when it opens. `blockFormats` are the captions of the
/// menu Format. Other menus have none.
QList<DesignerMenuEntry> designerMenuEntries(QStringView menu, Designer &designer, const QStringList &blockFormats);

} // namespace zephira
