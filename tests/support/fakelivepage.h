// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/livepage.h"

#include <utility>

namespace zephira {

/// A live page that notes what it is told, and shows each text at once.
struct FakeLivePage final : LivePage {
    /// What was shown last, and what was called: "show", "reload", "caret", "follow", "sheet".
    QString html;
    QString file;
    QStringList calls;
    std::vector<qsizetype> caret;
    qsizetype followed = -1;
    ColourScheme scheme = ColourScheme::Desktop;
    qreal zoom = 0;
    QString projectFolder;
    bool isRemoteAllowed = false;
    LivePageEvents events;

    void show(const QString &text, const QString &name) override
    {
        html = text;
        file = name;
        calls.append(QStringLiteral("show"));
        if (events.shown)
            events.shown();
    }
    void reload() override { calls.append(QStringLiteral("reload")); }
    void showCaret(const std::vector<qsizetype> &places, bool) override { caret = places; }
    void follow(qsizetype place, bool) override { followed = place; }
    void sheetSaved(const QString &path) override { calls.append(QStringLiteral("sheet ") + path); }
    void setColourScheme(ColourScheme wanted) override { scheme = wanted; }
    void setZoom(qreal factor) override { zoom = factor; }
    void setProjectFolder(const QString &folder) override { projectFolder = folder; }
    void setRemoteAllowed(bool allowed) override { isRemoteAllowed = allowed; }
    void setEvents(LivePageEvents wanted) override { events = std::move(wanted); }
};

} // namespace zephira
