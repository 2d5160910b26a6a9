// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/livepage.h"

#include <QTimer>
#include <QUrl>
#include <QVariantMap>
#include <QWebEngineProfile>
#include <QWidget>

#include <memory>
#include <optional>

class QWebEngineView;

namespace zephira {

class FileStore;
class LiveBrowserPage;
class ScriptMessageBar;

/// The live page as a widget. One text is on its way into the page at a time. A page that doesn't answer because of an
/// endless script is ended with its process; nothing else waits for it.
class LivePageWidget final : public QWidget, public LivePage
{
    Q_OBJECT

public:
    /// `files` must outlive the widget.
    explicit LivePageWidget(const FileStore &files, QWidget *parent = nullptr);
    ~LivePageWidget() override;

    void show(const QString &html, const QString &file) override;
    void reload() override;
    void showCaret(const std::vector<qsizetype> &places, bool bringsIntoSight) override;
    void follow(qsizetype place, bool toEnd) override;
    void sheetSaved(const QString &file) override;
    void setColourScheme(ColourScheme scheme) override;
    void setZoom(qreal factor) override;
    void setProjectFolder(const QString &folder) override;
    void setRemoteAllowed(bool allowed) override;
    void setEvents(LivePageEvents events) override { m_events = std::move(events); }

    QWebEngineView &view() { return *m_view; }
    /// How many times a page was loaded.
    int loads() const { return m_load; }
    /// How long a page may take to answer before it counts as hanging, in milliseconds, apart from its size and
    /// the start of its process.
    void setPatience(int patience) { m_patience = patience; }

private:
    enum class State {
        Empty,    ///< nothing was shown yet, or the page was lost
        Loading,  ///< a page is being read
        Starting, ///< it is being compared with its source
        Shown,
        Changing, ///< another text is on its way into it
    };

    void next();
    void load(const QVariant &kept);
    void started(const QVariantMap &answer);
    void change();
    void changed(const QVariantMap &answer);
    void takeReport(const QVariantMap &report);
    void lookForPage();
    void write(const QString &text);
    void ready();
    void settle(const QVariantMap &answer);
    void takeSheets(const QVariantMap &told);
    void wait(int more = 0);
    void endHanging();
    void takeLoss();
    bool isShown() const { return m_state == State::Shown || m_state == State::Changing; }

    struct Text {
        QString html;
        QString file;
    };

    ScriptMessageBar *m_messages = nullptr;
    QWebEngineProfile m_profile;
    /// Deleted before the profile, which must outlive it.
    std::unique_ptr<QWebEngineView> m_view;
    LiveBrowserPage *m_page = nullptr;
    LivePageEvents m_events;
    State m_state = State::Empty;
    /// The text that is shown or on its way, and the one to come after it.
    Text m_text;
    std::optional<Text> m_next;
    bool m_isLoadWanted = false;
    int m_load = 0;
    int m_sheet = 0;
    QVariant m_kept;
    QString m_mark;
    QString m_marked;
    /// The page that is too large to be given as a whole, until it is written.
    QString m_unwritten;
    QString m_scheme;
    ColourScheme m_colours = ColourScheme::Desktop;
    QTimer m_hanging;
    QTimer m_look;
    int m_patience = 3000;
    QStringList m_sheets;
    /// The number of the newest answer or report about the sheets of this load.
    int m_sheetsTold = 0;
};

} // namespace zephira
