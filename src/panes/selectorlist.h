// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace zephira {

struct AppContext;

/// The list of style selectors that a button of the palette lays over the window. A double click pastes one behind the
/// selection, in visual mode too.
class SelectorList final : public QListWidget
{
    Q_OBJECT

public:
    explicit SelectorList(const AppContext &context, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The list has done its work or lost the focus: it is to be hidden, and its button released.
    void finished();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace zephira
