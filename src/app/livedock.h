// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filestore.h"
#include "core/openelements.h"
#include "core/webviews.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class QDockWidget;
class QFileSystemWatcher;
class QMainWindow;

namespace zephira {

struct AppContext;
class CodeMax;
class FocusRing;
class LivePane;
class Menus;

/// The live page beside the text or below it, closed at first: it follows the text, the caret and the scroll bar, and leads
/// back to the text. Nothing of it exists before it is opened for the first time.
class LiveDock final : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        QMainWindow &window;
        CodeMax &rt;
        const AppContext &context;
        Menus &menus;
        WebViewsLoader loadViews;
        /// The folder of the project, or empty, and whether the document's page may load from other machines.
        std::function<std::pair<QString, bool>()> permissions;
        /// The user allows it.
        std::function<void()> allowRemote;
    };

    explicit LiveDock(Parts parts);
    ~LiveDock() override;

    /// Opens or closes it.
    void toggle();
    void attach(FocusRing &ring) { m_ring = &ring; }

private:
    void make();
    void connectText();
    void visibilityChanged();
    void showCaret(bool bringsIntoSight);
    void followText();
    void takeClick(qsizetype place, bool isUsed);
    void takeScroll(qsizetype place, bool isAtEnd);
    void watch(const QStringList &sheets);
    void watchDocument();
    void lookForSaved();
    bool isCurrent() const;
    qsizetype unitsBefore(qsizetype position) const;
    qsizetype positionAt(qsizetype units) const;

    const Parts m_parts;
    FocusRing *m_ring = nullptr;
    QDockWidget *m_dock = nullptr;
    LivePane *m_pane = nullptr;
    OpenElements m_elements;
    QTimer m_caretSoon;
    QTimer m_scrollSoon;
    QTimer m_lookSoon;
    QFileSystemWatcher *m_watcher = nullptr;
    /// The style sheets of the page; and these and the document as they were.
    QStringList m_sheets;
    QHash<QString, FileSignature> m_files;
    /// The state of the text that the page shows.
    quint64 m_shownVersion = 0;
    /// Where the text was scrolled to because the page was.
    int m_followed = -1;
    /// Whether the text was scrolled since the page was last shown.
    bool m_isScrolled = false;
    bool m_isOpen = false;
};

} // namespace zephira
