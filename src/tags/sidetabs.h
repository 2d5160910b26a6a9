// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTabWidget>

namespace zephira {

/// Pages with tabs at the left, one below the other and with horizontal captions. Besides the usual keys, Up and Down
/// move from tab to tab.
class SideTabs final : public QTabWidget
{
    Q_OBJECT

public:
    explicit SideTabs(QWidget *parent = nullptr);
};

} // namespace zephira
