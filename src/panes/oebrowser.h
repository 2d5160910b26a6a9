// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class oebrowser;
}

struct AppContext;

/// The browser for the objects and events of a page's scripts. A double click replaces the code view's selection by a
/// name, whichever view is visible. A tree is read each time its button is pressed, and not before.
class oebrowser final : public QDialog
{
    Q_OBJECT

public:
    oebrowser(const AppContext &context, QWidget *owner);
    ~oebrowser() override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Fills the tree from a file of the data folder `deps`.
    void showTree(const QString &fileName);

    const AppContext &m_context;
    const std::unique_ptr<Ui::oebrowser> m_ui;
};

} // namespace zephira
