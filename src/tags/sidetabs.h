// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTabWidget>

namespace zephira {

/// Pages with their tabs at the left, one below the other, whose captions read from left to right. Besides the usual
/// keys, Up and Down in the tabs go from page to page.
class SideTabs final : public QTabWidget
{
    Q_OBJECT

public:
    explicit SideTabs(QWidget *parent = nullptr);
};

} // namespace zephira
