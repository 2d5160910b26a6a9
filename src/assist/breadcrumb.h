// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/openelements.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QLabel;
class QToolButton;

namespace zephira {

class CodeMax;

/// A line with the elements around the caret, the outermost first: a click on one selects it in the text. It is there while
/// the text shows and is a page or another markup text. It follows the caret a moment later, however large the text is.
class Breadcrumb final : public QWidget
{
    Q_OBJECT

public:
    /// `rt` must outlive the line.
    Breadcrumb(CodeMax &rt, QWidget *parent);

    /// Whether the user wants the line. It isn't wanted at first, and then it costs nothing.
    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    /// The captions of the elements, as far as they are shown.
    QStringList captions() const;

    /// The text's language may have changed.
    void takeLanguage();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// How long it waits behind a key or a change of the caret, in milliseconds.
    static constexpr int delay = 40;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void read();
    void showElements(std::vector<ElementTag> elements);
    void arrange();
    /// Between two elements, in pixels.
    int gap() const;
    void select(int crumb);
    void focusBeside(const QToolButton *crumb, int step);
    QToolButton *crumbAt(int crumb);

    CodeMax &m_rt;
    bool m_isOn = false;
    std::optional<MarkupRules> m_rules;
    OpenElements m_reader;
    QTimer m_soon;
    /// The innermost elements around the caret, and a button for each; there may be more buttons than elements.
    std::vector<ElementTag> m_elements;
    std::vector<QToolButton *> m_crumbs;
    QLabel *m_more = nullptr;
    bool m_hasMore = false;
};

} // namespace zephira
