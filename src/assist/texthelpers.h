// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

struct AppContext;
class CodeMax;
class ToolPanel;

/// What helps with writing in a code view. Each helper is a member, made when the window's late parts are, or when it is
/// used for the first time.
class TextHelpers
{
public:
    /// All must outlive the helpers.
    TextHelpers(CodeMax &rt, const AppContext &context, ToolPanel &panel);
    ~TextHelpers();

    /// Starts the helpers that work by themselves while one types.
    void start();

    CodeMax &rt() const { return m_rt; }
    const AppContext &context() const { return m_context; }
    ToolPanel &panel() const { return m_panel; }

private:
    CodeMax &m_rt;
    const AppContext &m_context;
    ToolPanel &m_panel;
};

} // namespace zephira
