// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/palettetable.h"

#include <QWidget>

#include <vector>

class QAction;
class QTabBar;
class QToolBar;

namespace zephira {

class PaletteBar;
class TabStrip;

/// The tool palette: the tab strip `toolpane` and the toolbars `Toolbar_0` to `Toolbar_11`, of which the selected one
/// shows. A toolbar makes its buttons and their icons when it first shows; its actions exist before.
class Palette : public QWidget
{
    Q_OBJECT

public:
    enum class Contents { AtOnce, Later };

    explicit Palette(QWidget *parent = nullptr, Contents contents = Contents::AtOnce);

    /// Makes the toolbars behind the first one where they were to come later. They also come when one of them is to show
    /// or to change.
    void build();

    QTabBar *tabs() const;
    /// Toolbar 0 to 11, where they have been made.
    QToolBar *toolBar(int index) const;
    /// The button with a key in toolbar 0 to 5, or nullptr.
    QAction *action(int index, const QString &key) const;

    /// Adds a box after a toolbar's last button. The toolbar takes ownership.
    void addBox(PaletteTab tab, QWidget *box);

    /// The toggle `selector`; setting it emits no click.
    bool isSelectorPressed() const;
    void setSelectorPressed(bool pressed);

Q_SIGNALS:
    /// A button other than the pull-down of the headings was clicked.
    void clicked(const zephira::QuickTag &tag);
    void headingClicked(int size);
    /// A tab was clicked or chosen by key, even if it was already selected: pop-ups over the palette should hide.
    void tabClicked(int index);

private:
    void addToolBar();
    void fill(int index);
    void addHeadings(QAction *button);
    void showToolbar(int index);

    TabStrip *m_tabs;
    std::vector<PaletteBar *> m_bars;
};

} // namespace zephira
