// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editorcommandlist.h"

#include "core/editorcommand.h"
#include "editor/codemaxglobals.h"
#include "editor/hotkeys.h"

#include <QCoreApplication>
#include <QKeySequence>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using enum EditorCommand;

/// What an entry of the menu bar does too.
constexpr EditorCommand inMenus[] = {FindByKey, ReplaceByKey, PasteByKey, GoToByKey, FindNextByKey, CutByKey, CopyByKey,
                                     UndoText,  RedoText,     CopyText,   PasteText, DeleteText,    SelectAll};

} // namespace

std::vector<EditorCommandRow> editorCommandRows(const CodeMaxGlobals &globals, const QSet<QString> &taken)
{
    std::vector<EditorCommandRow> rows;
    for (const CodeMaxHotKey &hotKey : initialHotKeys()) {
        if (std::ranges::find(inMenus, hotKey.command, numberOf) != std::end(inMenus))
            continue;
        auto row = std::ranges::find(rows, hotKey.command, &EditorCommandRow::command);
        if (row == rows.end())
            row = rows.insert(row, {hotKey.command, hotKeyText(hotKey.command).toString(), {}});
        const QString keys = QKeySequence(hotKey.keys).toString(QKeySequence::PortableText);
        if (row->keys.isEmpty() && !taken.contains(keys) && globals.commandFor(hotKey.keys) == hotKey.command)
            row->keys = keys;
    }
    rows.push_back(
        {numberOf(PropertiesDialog), QCoreApplication::translate("Commands", "Properties of the code view"), {}});
    return rows;
}

} // namespace zephira
