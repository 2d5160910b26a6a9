// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "start/templates.h"

#include <QWidget>

namespace zephira {

/// The buttons of one page of templates, in a grid.
class TemplateButtons final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int page READ page WRITE setPage)

public:
    explicit TemplateButtons(QWidget *parent = nullptr) : QWidget(parent) {}

    /// A TemplatePage as a number.
    int page() const { return static_cast<int>(m_page); }
    /// Creates the buttons of the page; to be called once. The layout file sets it as a property, so that the buttons
    /// are created before the controls below the tabs and come before them in the tab order.
    void setPage(int page);

Q_SIGNALS:
    void chosen(const TemplateButton &button);

private:
    void add(const TemplateButton &button);

    TemplatePage m_page = TemplatePage::Html;
};

} // namespace zephira
