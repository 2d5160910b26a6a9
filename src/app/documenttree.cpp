// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/documenttree.h"

#include "document/documentwindow.h"
#include "editor/codemax.h"
#include "panes/outlinetree.h"
#include "panes/sidepane.h"
#include "panes/tagplace.h"

#include <QCoreApplication>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

void addDocumentTree(SidePane &pane, CodeMax &editor, DocumentWindow &window,
                     std::function<bool(qsizetype position)> showInDesigner)
{
    auto *tree = new OutlineTree(&pane);
    pane.setPage(u"documenttree"_s, tree, SidePane::Fill::BeforeShowing,
                 [tree, &editor] { tree->ParseOutline(editor.text(), false); });
    const auto goToTag = [&editor, &window, show = std::move(showInDesigner)](const QString &tagText,
                                                                              qsizetype position) {
        const std::optional<qsizetype> tag = findTag(editor.text(), tagText, position);
        if (tag && show(*tag + 1))
            return;
        window.selectCodeTab();
        if (selectTag(editor, tagText, position))
            editor.setFocus();
        else
            window.notice(QCoreApplication::translate("DocumentTree", "This tag is no longer in the text."));
    };
    QObject::connect(tree, &OutlineTree::goToTag, tree, goToTag);
}

} // namespace zephira
