// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/palettecommands.h"

#include "commands/commandparts.h"
#include "commands/helppages.h"
#include "core/designer.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/formopener.h"
#include "core/inserter.h"
#include "core/prompts.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

PaletteCommands::Handler PaletteCommands::handlerOf(TagKind kind)
{
    struct Row {
        TagKind kind;
        Handler handler;
    };
    static constexpr std::array<Row, 13> rows{{
        {TagKind::Wrap, &PaletteCommands::insertText},
        {TagKind::Behind, &PaletteCommands::insertText},
        {TagKind::Replace, &PaletteCommands::insertText},
        {TagKind::Form, &PaletteCommands::openForm},
        {TagKind::WholeDocument, &PaletteCommands::wrapDocument},
        {TagKind::Title, &PaletteCommands::insertTitle},
        {TagKind::MailLink, &PaletteCommands::insertMailLink},
        {TagKind::Sound, &PaletteCommands::insertSound},
        {TagKind::Tidy, &PaletteCommands::tidy},
        {TagKind::Spelling, &PaletteCommands::checkSpelling},
        {TagKind::Help, &PaletteCommands::openHelp},
        {TagKind::Selector, &PaletteCommands::showSelectors},
        {TagKind::Property, &PaletteCommands::showProperties},
    }};
    const auto row = std::ranges::find(rows, kind, &Row::kind);
    return row == rows.end() ? nullptr : row->handler;
}

void PaletteCommands::run(const QuickTag &tag)
{
    if (isRefused(tag.refusal, m_context.designer, m_context.prompts)) {
        // The click has already pressed the toggle, and no list will open that would release it.
        if (tag.kind == TagKind::Selector)
            m_panes.setSelectorPressed(false);
        return;
    }
    if (const Handler handler = handlerOf(tag.kind)) {
        // A single statement: in every handler, the step that can fail is the last, so nothing would be left to resume.
        tellingErrors(m_context.prompts, u"frmmain"_s, u"ToolBar_ButtonClick"_s, {[&] { (this->*handler)(tag); }});
    }
}

void PaletteCommands::heading(int size)
{
    wrapSelection([size](const QString &selection) { return headingText(size, selection); });
}

void PaletteCommands::insertText(const QuickTag &tag)
{
    wrapSelection([&tag](const QString &selection) { return quickTagText(tag, selection); });
}

/// With several selections, each is wrapped separately.
void PaletteCommands::wrapSelection(const std::function<QString(const QString &)> &wrap)
{
    if (m_context.editor.selectionCount() > 1 && !m_context.designer.isShowing())
        m_context.editor.replaceSelections(wrap);
    else
        m_context.inserter.InsertAtCaret(wrap(m_context.editor.selText()));
}

void PaletteCommands::openForm(const QuickTag &tag)
{
    m_context.forms.openModal(tag.before.toString());
}

void PaletteCommands::wrapDocument(const QuickTag &)
{
    m_context.editor.setText(pageText(m_context.editor.text()));
}

void PaletteCommands::insertTitle(const QuickTag &)
{
    const std::optional<QString> title = m_context.prompts.input({u"What do you wish the title to be?"_s, u"Title"_s});
    if (!title || title->isEmpty())
        return;
    const QString text = m_context.editor.text();
    const QString titled = titledText(text, *title);
    // A text without a head is not replaced, because that would mark it as changed.
    if (titled != text)
        m_context.editor.setText(titled);
}

void PaletteCommands::insertMailLink(const QuickTag &)
{
    const std::optional<QString> address =
        m_context.prompts.input({u"What is the e-mail address?"_s, u"Enter E-Mail"_s});
    if (address && !address->isEmpty())
        m_context.inserter.InsertAtCaret(mailLinkText(m_context.editor.selText(), *address));
}

void PaletteCommands::insertSound(const QuickTag &)
{
    const std::optional<QString> path =
        m_context.prompts.input({u"What is the relative path to your sound file?"_s, u"Path"_s, u"<fill in later>"_s});
    if (path && !path->isEmpty())
        m_context.inserter.InsertAtCaret(soundText(*path));
}

void PaletteCommands::tidy(const QuickTag &tag)
{
    m_context.prompts.tell(u"Note: This will only tidy the last saved copy of this document!"_s);
    openForm(tag);
}

void PaletteCommands::checkSpelling(const QuickTag &)
{
    m_panes.checkSpelling();
}

void PaletteCommands::openHelp(const QuickTag &)
{
    zephira::openHelp(m_context);
}

void PaletteCommands::showSelectors(const QuickTag &)
{
    m_panes.setSelectorListVisible(m_panes.isSelectorPressed());
}

void PaletteCommands::showProperties(const QuickTag &)
{
    m_context.prompts.ask({u"By default, the first custom tab was shipped with a CSS Prop index file. "
                           "You will now be taken to the tab"_s});
    m_panes.selectSideTab(SideTab::Custom1);
}

} // namespace zephira
