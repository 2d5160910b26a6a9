// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browser.h"

#include <QWebEngineProfile>
#include <QWidget>

class QWebEngineView;

namespace zephira {

class BrowserPage;
class FileStore;
class InputWatch;
class ScriptMessageBar;

/// The browser as a widget that contains its web view. Its operations can be called by name. Nothing that pages store
/// outlives it: the profile is kept only in memory.
class BrowserWidget final : public QWidget, public Browser
{
    Q_OBJECT
    Q_PROPERTY(QString LocationURL READ locationUrl NOTIFY NavigateComplete)

public:
    /// `files` must outlive the widget.
    explicit BrowserWidget(const FileStore &files, QWidget *parent = nullptr);
    ~BrowserWidget() override;

    Q_INVOKABLE void Navigate(const QString &address) { navigate(address); }
    Q_INVOKABLE void GoBack() { goBack(); }
    Q_INVOKABLE void GoForward() { goForward(); }
    Q_INVOKABLE void GoHome() { goHome(); }
    Q_INVOKABLE void Refresh() { refresh(); }
    Q_INVOKABLE void Stop() { stop(); }

    void navigate(const QString &address) override;
    void goBack() override;
    void goForward() override;
    void goHome() override;
    void refresh() override;
    void stop() override;
    QString locationUrl() const override;
    void setHome(const QString &address, FileKind kind = FileKind::ByName) override;
    void onNavigateComplete(std::function<void()> handler) override;
    void onProcessLost(std::function<void()> handler) override;
    void setProjectFolder(const QString &folder) override;
    void setRemoteAllowed(bool allowed) override;
    void onRemoteRefused(std::function<void(const QStringList &hosts)> handler) override;

Q_SIGNALS:
    void NavigateComplete();

private:
    void showContextMenu(const QPoint &place);

    ScriptMessageBar *m_messages = nullptr;
    QWebEngineProfile m_profile;
    /// Deleted before the profile, which must outlive it.
    std::unique_ptr<QWebEngineView> m_view;
    InputWatch *m_input = nullptr;
    BrowserPage *m_page = nullptr;
    QString m_home;
    FileKind m_homeKind = FileKind::ByName;
};

} // namespace zephira
