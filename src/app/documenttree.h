// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class CodeMax;
class DocumentWindow;
class SidePane;

/// Adds the document tree to the side pane. It is rebuilt from the text at each click on its tab, and its leaves lead
/// to their tags in the text. The pane owns the tree; all three arguments must outlive it.
void addDocumentTree(SidePane &pane, CodeMax &editor, DocumentWindow &window);

} // namespace zephira
