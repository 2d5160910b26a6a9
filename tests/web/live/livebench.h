// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/diskfilestore.h"
#include "web/live/livepagewidget.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QWebEngineScript>
#include <QWebEngineView>

namespace zephira {

/// A visible live page, and a site below a temporary folder.
struct LiveBench {
    /// Time-out in milliseconds for showing a page, long enough for a busy machine.
    static constexpr int patience = 60000;

    LiveBench();
    Q_DISABLE_COPY_MOVE(LiveBench)

    QString write(const QString &name, const QByteArray &content) const;

    /// Shows a page and waits for it.
    bool show(const QString &html);

    /// The result of a script in the page, as text; of a script in the world of ours.
    QString ask(const QString &script, quint32 world = QWebEngineScript::MainWorld) const;
    QString html() const { return ask(QStringLiteral("document.documentElement.outerHTML")); }
    /// Clicks at the middle of the element that a selector names.
    void click(const QString &selector, Qt::MouseButton button = Qt::LeftButton) const;
    QWidget &keyboard() const;

    QTemporaryDir folder;
    QString file = folder.path() + QStringLiteral("/page.html");
    DiskFileStore files;
    LivePageWidget live{files};
    int shown = 0;
    int lost = 0;
    std::vector<std::pair<qsizetype, bool>> clicks;
    std::vector<std::pair<qsizetype, bool>> scrolls;
    QStringList sheets;
    QStringList refused;
};

} // namespace zephira
