// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/documenttree.h"

#include "document/documentwindow.h"
#include "editor/codemax.h"
#include "panes/outlinetree.h"
#include "panes/sidepane.h"
#include "panes/tagplace.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace zephira {

void addDocumentTree(SidePane &pane, CodeMax &editor, DocumentWindow &window)
{
    auto *tree = new OutlineTree(&pane);
    pane.setPage(u"documenttree"_s, tree, SidePane::Fill::BeforeShowing,
                 [tree, &editor] { tree->ParseOutline(editor.text(), false); });
    QObject::connect(tree, &OutlineTree::goToTag, tree, [&editor, &window](const QString &tagText, qsizetype position) {
        window.selectCodeTab();
        if (selectTag(editor, tagText, position))
            editor.setFocus();
        else
            window.notice(QCoreApplication::translate("DocumentTree", "This tag is no longer in the text."));
    });
}

} // namespace zephira
