// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace zephira {

struct AppContext;

/// The list of iHTML tags in the side pane. A double click inserts one after the selection.
class IhtmlTagList final : public QListWidget
{
    Q_OBJECT

public:
    explicit IhtmlTagList(const AppContext &context, QWidget *parent = nullptr);
};

} // namespace zephira
