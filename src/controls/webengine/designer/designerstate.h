// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "controls/designer.h"

#include <QHash>
#include <QVariantMap>

namespace zephira {

/// What the designer knows about its page between two reports, so that asking costs nothing.
struct DesignerState {
    QHash<DesignerCommand, int> statuses;
    QString selectionType = QStringLiteral("None");
    QString fontName;
    /// 1 to 7, or 0 where there is none.
    int fontSize = 0;
    QString blockFormat;
    bool isDirty = false;
    /// How many key presses the page has seen.
    int keys = 0;
    QVariantMap place;

    /// Members that are missing or of another kind read as empty.
    static DesignerState fromPage(const QVariantMap &report)
    {
        DesignerState state;
        const QVariantMap statuses = report.value(QStringLiteral("statuses")).toMap();
        for (auto entry = statuses.begin(); entry != statuses.end(); ++entry)
            state.statuses.insert(DesignerCommand{entry.key().toInt()}, entry->toInt());
        state.selectionType = report.value(QStringLiteral("selection")).toString();
        state.fontName = report.value(QStringLiteral("fontName")).toString();
        state.fontSize = report.value(QStringLiteral("fontSize")).toInt();
        state.blockFormat = report.value(QStringLiteral("blockFormat")).toString();
        state.isDirty = report.value(QStringLiteral("dirty")).toBool();
        state.keys = report.value(QStringLiteral("keys")).toInt();
        state.place = report.value(QStringLiteral("place")).toMap();
        return state;
    }
};

} // namespace zephira
