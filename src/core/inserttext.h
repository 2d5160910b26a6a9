// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"
#include "core/editingcontrol.h"
#include "core/inserter.h"

namespace zephira {

/// Inserts text in the active view. In visual mode the text is markup, and the change is recorded by the designer's
/// dirty flag; otherwise it replaces the code view's selection.
class TextInserter final : public Inserter
{
public:
    TextInserter(EditingControl &editor, Designer &designer) : m_editor(editor), m_designer(designer) {}

    void InsertAtCaret(const QString &text) override
    {
        m_designer.finishLeaving();
        if (m_designer.isShowing())
            m_designer.pasteHtml(text);
        else
            m_editor.setSelText(text);
    }

private:
    EditingControl &m_editor;
    Designer &m_designer;
};

} // namespace zephira
