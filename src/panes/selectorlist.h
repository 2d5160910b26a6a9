// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace zephira {

struct AppContext;

/// The list of style selectors that a palette button opens on top of the window. A double click inserts one after the
/// selection, in visual mode too.
class SelectorList final : public QListWidget
{
    Q_OBJECT

public:
    explicit SelectorList(const AppContext &context, QWidget *parent = nullptr);

Q_SIGNALS:
    /// A selector was chosen or the list lost the focus: it should be hidden, and its button released.
    void finished();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace zephira
