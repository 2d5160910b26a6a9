// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace zephira {

struct AppContext;
class EditingControl;
class Prompts;

/// The entries of "Format Source Code". Each puts the formatted text in the place of the code view's whole text, whichever
/// view shows, as one change that can be undone.
class SourceFormatting
{
public:
    explicit SourceFormatting(const AppContext &context);

    void compact();
    void simple();
    /// Lets the window work while it runs. The user may then change the text, open another document or start another
    /// run; what this one makes of the text that it began with replaces all of that. A run whose window goes away, and
    /// itself with it, ends without touching anything. A result that is too large is told, and the text stays.
    void hierarchical();

    /// The window is closing: runs that wait for it end, and leave the text alone.
    void abandon();

private:
    struct Window {};

    EditingControl &m_editor;
    Prompts &m_prompts;
    /// As long as it lives, there is a window to work for.
    std::shared_ptr<Window> m_window = std::make_shared<Window>();
};

} // namespace zephira
