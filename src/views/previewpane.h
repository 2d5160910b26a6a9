// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLineEdit;
class QToolBar;

namespace zephira {

class Browser;

/// The preview: a browser under its address bar. The bar is there from the start, the browser comes when it is wanted.
/// The editing keys are the page's while the keyboard is here, and F5 loads it again.
class PreviewPane final : public QWidget
{
    Q_OBJECT

public:
    /// The browser outlives the pane.
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
