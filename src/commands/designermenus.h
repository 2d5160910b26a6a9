// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

#include <QList>
#include <QString>

#include <optional>

namespace zephira {

struct MenuItem;

/// How an entry looks; members without a value stay as they are.
struct DesignerMenuEntry {
    QString name;
    std::optional<bool> enabled = {};
    std::optional<bool> checked = {};
    std::optional<QString> caption = {};

    friend bool operator==(const DesignerMenuEntry &, const DesignerMenuEntry &) = default;
};

/// The entries of one of the designer's menus in the state they should have when it opens, as their commands say.
/// `blockFormats` are the captions of the Format menu; entries beyond them are left out.
QList<DesignerMenuEntry> designerMenuEntries(const MenuItem &menu, Designer &designer, const QStringList &blockFormats);

} // namespace zephira
