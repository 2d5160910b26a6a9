// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designercommand.h"
#include "core/editingcontrol.h"
#include "core/refusals.h"

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

/// Opens a form modally.
struct OpensForm {
    QStringView form;

    friend bool operator==(const OpensForm &, const OpensForm &) = default;
};

/// Runs in the view that shows: in the designer, else in the code view.
struct EditsView {
    DesignerCommand designer = DesignerCommand::None;
    void (EditingControl::*editor)() = nullptr;

    friend bool operator==(const EditsView &, const EditsView &) = default;
};

/// Runs in the code view, whichever view shows.
struct EditsText {
    void (EditingControl::*editor)() = nullptr;

    friend bool operator==(const EditsText &, const EditsText &) = default;
};

/// Turns one of the designer's switches over. The entry of that name shows how it stands.
struct TurnsSwitch {
    QStringView entry;
    bool (Designer::*get)() const = nullptr;
    void (Designer::*set)(bool) = nullptr;

    friend bool operator==(const TurnsSwitch &, const TurnsSwitch &) = default;
};

/// Gives the designer's paragraph the block format of that number, from 0 on.
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

/// Writes the text of an entry of the tag menu, or opens the tag editor for it.
struct InsertsTag {
    const QuickTag *tag = nullptr;

    friend bool operator==(const InsertsTag &, const InsertsTag &) = default;
};

/// What a command does: an operation of one of the parts, a function of its own, or one of the kinds above.
using Effect =
    std::variant<std::monostate, void (Document::*)(), void (ViewTabs::*)(), void (WindowCommands::*)(),
                 void (PaneCommands::*)(), void (FileListCommands::*)(), void (SourceFormatting::*)(),
                 void (*)(const AppContext &), void (*)(const CommandParts &), EditorCommand, DesignerCommand,
                 OpensForm, EditsView, EditsText, TurnsSwitch, SetsBlockFormat, WrapsSelection, InsertsTag>;

/// What a row of a menu, a toolbar or a pull-down does when it is chosen.
struct Command {
    Effect effect = {};
    /// How the command turns the user away while the designer shows.
    Refusal refusal = Refusal::None;

    friend bool operator==(const Command &, const Command &) = default;
};

constexpr bool hasEffect(const Command &command)
{
    return !std::holds_alternative<std::monostate>(command.effect);
}

} // namespace zephira
