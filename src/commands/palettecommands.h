// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/quicktag.h"
#include "core/appcontext.h"

#include <QString>

#include <functional>

namespace zephira {

class PaneCommands;

/// The clicks of the tool palette. A click either builds its text and inserts it in one step at its end, or opens a
/// form or shows a message and inserts nothing. Errors are shown to the user.
class PaletteCommands
{
public:
    PaletteCommands(const AppContext &context, PaneCommands &panes) : m_context(context), m_panes(panes) {}

    void run(const QuickTag &tag);
    /// The heading of size 1 to 6 around the selection.
    void heading(int size);

    /// Whether a click on a button of that kind does something.
    static bool hasEffect(TagKind kind) { return handlerOf(kind); }

private:
    using Handler = void (PaletteCommands::*)(const QuickTag &);
    static Handler handlerOf(TagKind kind);

    void insertText(const QuickTag &tag);
    void wrapSelection(const std::function<QString(const QString &)> &wrap);
    void openForm(const QuickTag &tag);
    void wrapDocument(const QuickTag &tag);
    void insertTitle(const QuickTag &tag);
    void insertMailLink(const QuickTag &tag);
    void insertSound(const QuickTag &tag);
    void tidy(const QuickTag &tag);
    void checkSpelling(const QuickTag &tag);
    void openHelp(const QuickTag &tag);
    void showSelectors(const QuickTag &tag);
    void showProperties(const QuickTag &tag);

    const AppContext m_context;
    PaneCommands &m_panes;
};

} // namespace zephira
