// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace zephira {

struct AppContext;
class EditingControl;
class Prompts;

/// The entries of "Format Source Code". Each replaces the code view's whole text by the formatted text, whichever view
/// is visible, as one change that can be undone.
class SourceFormatting
{
public:
    explicit SourceFormatting(const AppContext &context);

    void compact();
    void simple();
    /// Processes events while it runs, so the user may change the text, open another document or start another run. The
    /// result is made from the text at the start of the run and replaces all of that. If the window closes during a
    /// run, possibly destroying this object, the run ends without touching anything. If the result is too large, the
    /// user is told and the text stays.
    void hierarchical();

    /// The window is closing: pending runs end and leave the text alone.
    void abandon();

private:
    struct Window {};

    EditingControl &m_editor;
    Prompts &m_prompts;
    /// Expires when there is no longer a window to work for.
    std::shared_ptr<Window> m_window = std::make_shared<Window>();
};

} // namespace zephira
