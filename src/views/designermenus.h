// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

#include <QList>
#include <QString>

#include <optional>

namespace zephira {

/// The number of entries of the Format menu, FormatSub_0 and so on.
constexpr int blockFormatEntries = 16;

/// How an entry looks; members without a value stay as they are.
struct DesignerMenuEntry {
    QString name;
    std::optional<bool> enabled = {};
    std::optional<bool> checked = {};
    std::optional<QString> caption = {};

    friend bool operator==(const DesignerMenuEntry &, const DesignerMenuEntry &) = default;
};

/// The entries of one of the designer's menus in the state they should have when it opens. `blockFormats` are the
/// captions of the Format menu. Returns nothing for other menus.
QList<DesignerMenuEntry> designerMenuEntries(QStringView menu, Designer &designer, const QStringList &blockFormats);

} // namespace zephira
