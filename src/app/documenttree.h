// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class CodeMax;
class DocumentWindow;
class SidePane;

/// Gives the side pane its document tree: made anew from the text at each click on its tab, and a way from its leaves to
/// their tags in the text. All three outlive the tree, which belongs to the pane.
void addDocumentTree(SidePane &pane, CodeMax &editor, DocumentWindow &window);

} // namespace zephira
