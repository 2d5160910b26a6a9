// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QPrinter;

namespace zephira {

class CodeMax;

/// Prints the control's whole text in its colours, with the file name and page number at the top of each page.
class EditorPrinter
{
public:
    /// Sets up a printer and calls `go` to start printing; not calling it cancels. `go` owns the printer.
    using Setup = std::function<void(QPrinter &printer, std::function<void()> go)>;

    explicit EditorPrinter(CodeMax &editor);

    /// Replaces the desktop's print dialog.
    void setSetup(Setup setup) { m_setup = std::move(setup); }
    void print();

private:
    CodeMax &m_editor;
    Setup m_setup;
};

} // namespace zephira
