// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>

#include <vector>

namespace zephira {

class CodeMaxGlobals;

/// A command that the code view has by itself, without an entry in a menu of the window.
struct EditorCommandRow {
    int command = 0; ///< for EditingControl::executeCmd()
    QString caption;
    QString keys; ///< the first that still run it, as in QKeySequence::PortableText; empty if none does

    friend bool operator==(const EditorCommandRow &, const EditorCommandRow &) = default;
};

/// These commands, each once. `taken` are keys that run something else.
std::vector<EditorCommandRow> editorCommandRows(const CodeMaxGlobals &globals, const QSet<QString> &taken);

} // namespace zephira
