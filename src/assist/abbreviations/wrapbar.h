// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace zephira {

/// A bar over the lower edge of a widget with a line for an abbreviation, what is wrong with it, and what it would make.
class WrapBar final : public QFrame
{
    Q_OBJECT

public:
    /// The bar is a sibling of the widget that it lies over, and goes when that is hidden.
    explicit WrapBar(QWidget &below);

    /// Shows the bar with an empty line, which has the focus.
    void open();
    QString abbreviation() const;
    void showResult(const QString &text);
    void showProblem(const QString &sentence);

Q_SIGNALS:
    void edited();
    void accepted();
    /// The bar is closed and had the focus.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void place();

    QWidget &m_below;
    QLineEdit *m_line;
    QLabel *m_problem;
    QPlainTextEdit *m_result;
};

} // namespace zephira
