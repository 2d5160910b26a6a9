// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QColor>

class QLineEdit;

namespace zephira {

/// A small button that shows a colour; crossed out while there is none.
class ColourSwatch final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColourSwatch(QWidget *parent = nullptr);

    /// Shows the colour named in the field, and follows its changes.
    void follow(QLineEdit *field);
    /// Invalid if there is no such colour.
    QColor colour() const { return m_colour; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showColour(const QString &name);

    QColor m_colour;
};

} // namespace zephira
