// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// The designer's commands with their published numbers.
enum class DesignerCommand : int {
    None = 0, ///< a separator in a table
    Bold = 5000,
    Copy = 5002,
    Cut = 5003,
    Delete = 5004,
    DeleteCells = 5005,
    DeleteColumns = 5006,
    DeleteRows = 5007,
    FindText = 5008,
    Font = 5009,
    GetBlockFormat = 5011,
    GetBlockFormatNames = 5012,
    GetFontName = 5013,
    GetFontSize = 5014,
    Hyperlink = 5016,
    Image = 5017,
    Indent = 5018,
    InsertCell = 5019,
    InsertColumn = 5020,
    InsertRow = 5021,
    InsertTable = 5022,
    Italic = 5023,
    JustifyCenter = 5024,
    JustifyLeft = 5025,
    JustifyRight = 5026,
    LockElement = 5027,
    AbsolutePosition = 5028,
    MergeCells = 5029,
    OrderedList = 5030,
    Outdent = 5031,
    Paste = 5032,
    Redo = 5033,
    SelectAll = 5035,
    SendBackward = 5036,
    BringForward = 5037,
    SendBelowText = 5038,
    BringAboveText = 5039,
    SendToBack = 5040,
    BringToFront = 5041,
    SetBackColor = 5042,
    SetBlockFormat = 5043,
    SetFontName = 5044,
    SetFontSize = 5045,
    SetForeColor = 5046,
    SplitCell = 5047,
    Underline = 5048,
    Undo = 5049,
    Unlink = 5050,
    UnorderedList = 5051,
};

} // namespace zephira
