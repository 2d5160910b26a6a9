// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/windowbench.h"

#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QToolBar>

namespace zephira {

/// The visible window with the real web engine and a document in a folder of its own.
struct WebBench : WindowBench {
    /// Time-out in milliseconds for starting the engine and showing a page, long enough for a busy machine.
    static constexpr int patience = 60000;

    /// Opens the file site/NAME with this content; an empty document if there is no name.
    explicit WebBench(const QString &name = QStringLiteral("page.html"), const QByteArray &content = "<p>old</p>\r\n");

    QTabBar &tabs() const { return *find<QTabBar>(QStringLiteral("workspace")); }
    void select(int tab) const { tabs().setCurrentIndex(tab - 1); }
    QObject &browser() const { return *find<QObject>(QStringLiteral("ww1")); }
    QObject &designer() const { return *find<QObject>(QStringLiteral("DHTMLEdit1")); }

    /// Selects the preview and waits until it shows the page with this title.
    bool preview(const QString &title);
    /// Waits until the preview shows a page with this title.
    bool showsPage(const QString &title) const;
    QString pageTitle() const;
    /// Selects visual mode and waits until the page can be edited.
    bool design();
    QString html() const { return designer().property("DocumentHTML").toString(); }
    void paste(const QString &markup) const;
    void run(DesignerCommand command, const QVariant &argument = {}) const;
    int status(DesignerCommand command) const;
    /// The widget that receives keys and mouse events in the view of this name.
    QWidget *keyboardOf(const QString &view) const;

    /// How far the page in the view of this name is scrolled.
    QPointF scrollOf(const QString &view) const;

    QString file;
};

} // namespace zephira
