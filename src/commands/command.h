// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designercommand.h"
#include "core/editingcontrol.h"
#include "core/refusals.h"
#include "core/textcommand.h"

#include <QString>

#include <variant>

namespace zephira {

struct AppContext;
struct CommandParts;
class Designer;
class Document;
class FileListCommands;
class PaneCommands;
class SourceFormatting;
class ViewTabs;
class WindowCommands;
struct QuickTag;

/// Opens a form: modally, or as a window beside the main one, which is brought to the front if it is open already.
struct OpensForm {
    enum class Kind { Modal, Modeless };

    QStringView form;
    Kind kind = Kind::Modal;

    friend bool operator==(const OpensForm &, const OpensForm &) = default;
};

/// Runs in the visible view: the designer if it shows, else the code view.
struct EditsView {
    DesignerCommand designer = DesignerCommand::None;
    void (EditingControl::*editor)() = nullptr;

    friend bool operator==(const EditsView &, const EditsView &) = default;
};

/// Runs in the code view, whichever view is visible.
struct EditsText {
    void (EditingControl::*editor)() = nullptr;

    friend bool operator==(const EditsText &, const EditsText &) = default;
};

/// Toggles one of the designer's switches. The check mark of the menu entry of that name shows its state.
struct TurnsSwitch {
    QStringView entry;
    bool (Designer::*get)() const = nullptr;
    void (Designer::*set)(bool) = nullptr;

    friend bool operator==(const TurnsSwitch &, const TurnsSwitch &) = default;
};

/// Gives the designer's paragraph the block format with this number, counted from 0.
struct SetsBlockFormat {
    int number = 0;

    friend bool operator==(const SetsBlockFormat &, const SetsBlockFormat &) = default;
};

/// Puts markup around the code view's selection.
struct WrapsSelection {
    QStringView before;
    QStringView after;

    friend bool operator==(const WrapsSelection &, const WrapsSelection &) = default;
};

/// Runs the plug-in of an entry of the menu of plug-ins, counted from 0.
struct RunsPlugin {
    int entry = 0;

    friend bool operator==(const RunsPlugin &, const RunsPlugin &) = default;
};

/// Writes the text of an entry of the tag menu, or opens the tag editor for it.
struct InsertsTag {
    const QuickTag *tag = nullptr;

    friend bool operator==(const InsertsTag &, const InsertsTag &) = default;
};

/// What a command does: an operation of one of the parts, a function of its own, or one of the kinds above.
using Effect = std::variant<std::monostate, void (Document::*)(), void (ViewTabs::*)(), void (WindowCommands::*)(),
                            void (PaneCommands::*)(), void (FileListCommands::*)(), void (SourceFormatting::*)(),
                            void (*)(const AppContext &), void (*)(const CommandParts &), EditorCommand,
                            DesignerCommand, TextCommand, OpensForm, EditsView, EditsText, TurnsSwitch, SetsBlockFormat,
                            WrapsSelection, RunsPlugin, InsertsTag>;

/// What a row of a menu, a toolbar or a pull-down does when it is chosen.
struct Command {
    Effect effect = {};
    /// How the command refuses to run while the designer shows.
    Refusal refusal = Refusal::None;

    friend bool operator==(const Command &, const Command &) = default;
};

constexpr bool hasEffect(const Command &command)
{
    return !std::holds_alternative<std::monostate>(command.effect);
}

} // namespace zephira
