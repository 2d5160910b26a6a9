// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <functional>

namespace zephira {

class CodeMax;
class DocumentWindow;
class SidePane;

/// Adds the document tree to the side pane. It is rebuilt from the text at each click on its tab, and its leaves lead
/// to their tags: in the designer if `showInDesigner`, given a position within the tag, returns true, else in the text.
/// The pane owns the tree; the other arguments must outlive it.
void addDocumentTree(SidePane &pane, CodeMax &editor, DocumentWindow &window,
                     std::function<bool(qsizetype position)> showInDesigner);

} // namespace zephira
