// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"

#include <QHash>
#include <QVariantMap>

namespace zephira {

/// Identifies a report: its page, and its number among the page's reports.
struct DesignerStamp {
    /// The prefix of the page's marks.
    QString page;
    /// From 1; a higher number is newer.
    qint64 number = 0;

    static DesignerStamp fromPage(const QVariantMap &report)
    {
        return {report.value(QStringLiteral("page")).toString(), report.value(QStringLiteral("number")).toLongLong()};
    }
    bool isOf(const QString &wantedPage) const { return page == wantedPage; }
};

/// The engine's text of a page, kept in case the page is lost.
struct DesignerCopy {
    DesignerStamp stamp;
    QString text;
    /// The number of changes that it includes; see DesignerState::changes.
    qint64 changes = 0;

    bool isThere() const { return stamp.number > 0; }
    static DesignerCopy fromPage(const QVariantMap &copy)
    {
        return {DesignerStamp::fromPage(copy), copy.value(QStringLiteral("text")).toString(),
                copy.value(QStringLiteral("changes")).toLongLong()};
    }
};

/// The page's last reported state, so that reading it costs nothing.
struct DesignerState {
    DesignerStamp stamp;
    QHash<DesignerCommand, int> statuses;
    QString selectionType = QStringLiteral("None");
    QString fontName;
    /// 1 to 7, or 0 if there is none.
    int fontSize = 0;
    QString blockFormat;
    bool isDirty = false;
    /// The number of changes since the page was loaded, including undo.
    qint64 changes = 0;
    /// The number of key presses that the page has handled.
    int keys = 0;
    QVariantMap place;

    /// Members that are missing or of the wrong type are read as empty.
    static DesignerState fromPage(const QVariantMap &report)
    {
        DesignerState state;
        state.stamp = DesignerStamp::fromPage(report);
        const QVariantMap statuses = report.value(QStringLiteral("statuses")).toMap();
        for (auto entry = statuses.begin(); entry != statuses.end(); ++entry)
            state.statuses.insert(DesignerCommand{entry.key().toInt()}, entry->toInt());
        state.selectionType = report.value(QStringLiteral("selection")).toString();
        state.fontName = report.value(QStringLiteral("fontName")).toString();
        state.fontSize = report.value(QStringLiteral("fontSize")).toInt();
        state.blockFormat = report.value(QStringLiteral("blockFormat")).toString();
        state.isDirty = report.value(QStringLiteral("dirty")).toBool();
        state.changes = report.value(QStringLiteral("changes")).toLongLong();
        state.keys = report.value(QStringLiteral("keys")).toInt();
        state.place = report.value(QStringLiteral("place")).toMap();
        return state;
    }
};

} // namespace zephira
