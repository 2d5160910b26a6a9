// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QWidget>

#include <functional>
#include <optional>

class QKeyEvent;
class QLineEdit;
class QPushButton;
class QToolBar;

namespace zephira {

class Browser;
class RemoteBar;

/// The preview: a browser below its address bar and the question about what a page wants to load from other hosts. The
/// bars exist from the start, the browser is added when needed. While the focus is here, keys that edit the text belong to
/// the page, and F5 reloads it.
class PreviewPane final : public QWidget
{
    Q_OBJECT

public:
    /// The browser must outlive the pane.
    explicit PreviewPane(Browser &browser, QWidget *parent = nullptr);

    /// Whether keys run a command of the window that edits the text; no value if they run none. Without an answer the
    /// usual editing keys do.
    std::function<std::optional<bool>(const QKeySequence &)> editsText;

    /// Puts the browser's widget below the bar.
    void setBrowserWidget(QWidget *widget);
    /// Whether the page may load from other machines; if so, a button offers to take that back.
    void setRemoteAllowed(bool allowed);

Q_SIGNALS:
    /// The page may load from other machines.
    void remoteAllowed();
    /// It no longer may.
    void remoteForbidden();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void addButtons();
    bool isOwnKey(const QKeyEvent &event) const;
    void go();

    Browser &m_browser;
    QToolBar *m_buttons = nullptr;
    QLineEdit *m_address = nullptr;
    QPushButton *m_forbid = nullptr;
    RemoteBar *m_remoteBar = nullptr;
};

} // namespace zephira
