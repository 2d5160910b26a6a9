// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

#include <QList>
#include <QString>

#include <optional>

namespace zephira {

/// The menu Format has this many entries, FormatSub_0 and so on.
constexpr int blockFormatEntries = 16;

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
