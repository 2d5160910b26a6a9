// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QPrinter;

namespace zephira {

class CodeMax;

/// Prints the control's whole text in its colours, with the file's name and page numbers on top of each page.
class EditorPrinter
{
public:
    /// Sets a printer up and calls `go` when it may print; not calling it calls the printing off. `go` holds the printer.
    using Setup = std::function<void(QPrinter &printer, std::function<void()> go)>;

    explicit EditorPrinter(CodeMax &editor);

    /// Puts something in the place of the desktop's print dialog.
    void setSetup(Setup setup) { m_setup = std::move(setup); }
    void print();

private:
    CodeMax &m_editor;
    Setup m_setup;
};

} // namespace zephira
