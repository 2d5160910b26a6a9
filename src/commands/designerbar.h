// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designercommand.h"

#include <QToolBar>

class QComboBox;
class QPushButton;

namespace zephira {

struct DesignerBarState;

/// The designer's toolbar `Toolbar2` with the two boxes for font and size and the button that resets the page. It is
/// hidden outside visual mode and stays disabled and empty until the designer has shown its first document.
class DesignerBar : public QToolBar
{
    Q_OBJECT

public:
    enum class Contents { AtOnce, Later };

    explicit DesignerBar(QWidget *parent = nullptr, Contents contents = Contents::AtOnce);

    /// Makes boxes and buttons where they were to come later. Nothing else of the bar may be used before.
    void build();

    /// Fills the two boxes with their fixed lists and selects the first entry in each.
    void fillFonts();
    /// Empties the text of both boxes and disables every button.
    void disableAll();

    void showState(const DesignerBarState &state);
    void showFontSize(const QString &text);

Q_SIGNALS:
    void buttonClicked(zephira::DesignerCommand command);
    /// A name was chosen from the list, or typed.
    void fontChosen(const QString &name);
    /// 1 to 7, from the list.
    void fontSizeChosen(int size);
    void fontSizeTyped(const QString &text);
    void resetClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QComboBox *addBox(const QString &name, const QString &tip);

    QComboBox *m_font = nullptr;
    QComboBox *m_size = nullptr;
    QPushButton *m_reset = nullptr;
};

} // namespace zephira
