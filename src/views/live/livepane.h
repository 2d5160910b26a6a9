// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/livepage.h"
#include "core/webviews.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>

class QComboBox;
class QLabel;
class QSpinBox;

namespace zephira {

class RemoteBar;

/// The live page with its tools: widths, colours, and what it has to say. Its view is made when it is first seen.
class LivePane final : public QWidget
{
    Q_OBJECT

public:
    /// What the pane shows.
    struct Source {
        QString html;
        QString file;
    };

    explicit LivePane(QWidget *parent = nullptr);

    /// Makes the view; called once.
    std::function<LivePageView(QWidget *)> makeView;
    /// The text to be shown; nothing if the document is no page, and then the last one stays.
    std::function<std::optional<Source>()> source;
    /// The text's size in characters, without making it.
    std::function<qsizetype()> size;
    /// What the page may load: the folder of the project, or empty, and whether it may load from other machines.
    std::function<std::pair<QString, bool>()> permissions;
    /// Escape: back to the text.
    std::function<void()> leave;

    /// The text has changed: it will be shown when nothing more comes for a moment.
    void textChanged();
    /// The text is shown now, however large it is.
    void showNow();
    /// The page, or nullptr before it was first seen.
    LivePage *page() const { return m_page; }

Q_SIGNALS:
    /// See LivePageEvents.
    void shown();
    void clicked(qsizetype place, bool isUsed);
    void scrolled(qsizetype place, bool isAtEnd);
    void sheetsChanged(const QStringList &files);
    /// The user allows the page to load from other machines.
    void remoteAllowed();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makePage();
    void update(bool anew);
    void fit();
    void chooseWidth(int choice);
    void setColours();
    void say(const QString &notice);

    QComboBox *m_widths = nullptr;
    QSpinBox *m_width = nullptr;
    QComboBox *m_colours = nullptr;
    QLabel *m_notice = nullptr;
    RemoteBar *m_remoteBar = nullptr;
    QWidget *m_frame = nullptr;
    QWidget *m_view = nullptr;
    LivePage *m_page = nullptr;
    QTimer m_pause;
    bool m_isBehind = true;
};

} // namespace zephira
