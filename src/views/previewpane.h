// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLineEdit;
class QToolBar;

namespace zephira {

class Browser;

/// The preview: a browser below its address bar. The bar exists from the start, the browser is added when needed. While
/// the focus is here, the editing keys belong to the page, and F5 reloads it.
class PreviewPane final : public QWidget
{
    Q_OBJECT

public:
    /// The browser must outlive the pane.
    explicit PreviewPane(Browser &browser, QWidget *parent = nullptr);

    /// Puts the browser's widget below the bar.
    void setBrowserWidget(QWidget *widget);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void addButtons();
    void go();

    Browser &m_browser;
    QToolBar *m_buttons = nullptr;
    QLineEdit *m_address = nullptr;
};

} // namespace zephira
