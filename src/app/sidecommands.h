// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandparts.h"

#include <functional>

class QWidget;

namespace zephira {

class ModalFormOpener;
class Palette;
class SelectorList;
class SideLists;
class SidePane;
class SpellCheck;

/// The commands for what is shown besides the document: the side pane, the selector list over the palette, the quick
/// view, the FTP window and the spelling check.
class SideCommands final : public PaneCommands
{
public:
    struct Parts {
        const AppContext &context;
        SidePane &pane;
        SideLists &lists;
        Palette &palette;
        std::function<SelectorList &()> selectors;
        /// Gets the focus when the list of selectors is hidden.
        QWidget &codeView;
        ModalFormOpener &forms;
        SpellCheck &spelling;
    };

    explicit SideCommands(const Parts &parts) : m_parts(parts) {}

    // PaneCommands
    void selectSideTab(SideTab tab) override;
    void addCustomEntry() override;
    void setSelectorListVisible(bool visible) override;
    bool isSelectorPressed() const override;
    void setSelectorPressed(bool pressed) override;
    void showReadme() override;
    void showFtp() override;
    void checkSpelling() override;

private:
    const Parts m_parts;
};

} // namespace zephira
