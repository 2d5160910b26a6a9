// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QString>

namespace zephira {

struct QuickTag;
class WindowCommands;

/// The clicks of the tool palette. A click either makes its text and inserts it once, at its end, or opens a form or
/// shows a message and inserts nothing. Errors are told to the user.
class PaletteCommands
{
public:
    PaletteCommands(const AppContext &context, WindowCommands &window) : m_context(context), m_window(window) {}

    /// A button of toolbar 0 to 11: by its key in toolbars 0 to 5, by its position from 1 on, separators counted, in the
    /// others. A button that isn't there does nothing.
    void click(int toolbar, const QString &key, int position);
    /// The heading of size 1 to 6 around the selection.
    void heading(int size);

private:
    using Handler = void (PaletteCommands::*)(const QuickTag &);
    static Handler handlerOf(const QuickTag &tag);

    void insertText(const QuickTag &tag);
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
    WindowCommands &m_window;
};

} // namespace zephira
