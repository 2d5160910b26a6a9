// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/quicktag.h"

#include <QWidget>

#include <vector>

class QAction;
class QTabBar;
class QToolBar;

namespace zephira {

class FormOpener;
class PaletteBar;

/// The tool palette: the tab strip `toolpane` and the toolbars `Toolbar_0` to `Toolbar_11`, of which the selected one
/// shows. All actions exist from the start; a toolbar makes its buttons and their icons when it first shows.
class Palette : public QWidget
{
    Q_OBJECT

public:
    explicit Palette(QWidget *parent = nullptr);

    QTabBar *tabs() const { return m_tabs; }
    /// Toolbar 0 to 11.
    QToolBar *toolBar(int index) const;
    /// The button of a key in toolbar 0 to 5, or nullptr.
    QAction *action(int index, const QString &key) const;

    /// Gives a toolbar a box behind its last button. The box belongs to it.
    void addBox(int index, QWidget *box);

    /// The toggle `selector`; setting it emits no click.
    bool isSelectorPressed() const;
    void setSelectorPressed(bool pressed);

    /// Disables what needs a form that can't be opened yet and says so in its tool tip.
    void applyAvailability(const FormOpener &forms);

Q_SIGNALS:
    /// A button was clicked, but for the pull-down of the headings.
    void clicked(const zephira::QuickTag &tag);
    void headingClicked(int size);
    /// A tab was clicked or chosen by key, also the one that is selected already: pop-ups over the palette should hide.
    void tabClicked(int index);

private:
    void fill(int index);
    void addHeadings(QAction *button);
    void showToolbar(int index);

    QTabBar *m_tabs;
    std::vector<PaletteBar *> m_bars;
};

} // namespace zephira
