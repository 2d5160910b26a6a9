// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandrouter.h"

#include "commands/quicktag.h"
#include "core/appcontext.h"
#include "core/designer.h"
#include "core/errorstyles.h"
#include "core/formopener.h"
#include "document/document.h"
#include "views/designertools.h"

#include <QStringBuilder>

namespace zephira {

namespace {

/// Runs each kind of effect. A designer command that fails ends silently.
class EffectRunner
{
public:
    EffectRunner(const CommandParts &parts, SourceFormatting &formatting)
        : m_parts(parts), m_context(parts.context), m_formatting(formatting)
    {}

    void operator()(std::monostate) const {}
    void operator()(void (Document::*run)()) const { (m_parts.document.*run)(); }
    void operator()(void (ViewTabs::*run)()) const { (m_parts.views.*run)(); }
    void operator()(void (WindowCommands::*run)()) const { (m_parts.window.*run)(); }
    void operator()(void (PaneCommands::*run)()) const { (m_parts.panes.*run)(); }
    void operator()(void (FileListCommands::*run)()) const { (m_parts.files.*run)(); }
    void operator()(void (SourceFormatting::*run)()) const { (m_formatting.*run)(); }
    void operator()(void (*run)(const AppContext &)) const { run(m_context); }
    void operator()(void (*run)(const CommandParts &)) const { run(m_parts); }
    void operator()(EditorCommand command) const { m_context.editor.executeCmd(command, -1); }
    void operator()(DesignerCommand command) const
    {
        endingQuietly([&] { m_context.designer.execCommand(command); });
    }
    void operator()(TextCommand command) const { m_parts.text.runTextCommand(command); }
    void operator()(const OpensForm &effect) const
    {
        if (effect.kind == OpensForm::Kind::Modeless)
            m_context.forms.openModeless(effect.form.toString());
        else
            m_context.forms.openModal(effect.form.toString());
    }
    void operator()(const EditsView &effect) const
    {
        if (m_context.designer.isShowing())
            m_context.designer.execCommand(effect.designer);
        else
            (m_context.editor.*effect.editor)();
    }
    void operator()(const EditsText &effect) const { (m_context.editor.*effect.editor)(); }
    void operator()(const TurnsSwitch &effect) const
    {
        (m_context.designer.*effect.set)(!(m_context.designer.*effect.get)());
        m_parts.marks.setChecked(effect.entry, (m_context.designer.*effect.get)());
    }
    void operator()(const SetsBlockFormat &effect) const
    {
        const QStringList &formats = m_parts.designer.blockFormats();
        if (effect.number >= formats.size())
            return;
        endingQuietly([&] {
            m_context.designer.execCommand(DesignerCommand::SetBlockFormat, DesignerPrompting::DontPromptUser,
                                           formats[effect.number]);
        });
    }
    void operator()(const WrapsSelection &effect) const
    {
        m_context.editor.replaceSelections(
            [&effect](const QString &text) { return QString(effect.before % text % effect.after); });
    }
    void operator()(const RunsPlugin &effect) const { m_parts.plugins.runPlugin(effect.entry); }
    void operator()(const InsertsTag &effect) const
    {
        const QuickTag &tag = *effect.tag;
        if (tag.kind != TagKind::TagEditor)
            m_context.editor.replaceSelections([&tag](const QString &text) { return quickTagText(tag, text); });
        else if (tag.before.isEmpty())
            m_context.forms.openModal(tag.form().toString());
        else
            m_context.forms.openModalOnPage(tag.form().toString(), tag.before.toInt());
    }

private:
    const CommandParts &m_parts;
    const AppContext &m_context;
    SourceFormatting &m_formatting;
};

} // namespace

CommandRouter::CommandRouter(const CommandParts &parts)
    : m_parts(parts), m_palette(parts.context, parts.panes), m_formatting(parts.context)
{}

void CommandRouter::run(const Command &command)
{
    m_parts.context.designer.finishLeaving();
    if (!isRefused(command.refusal, m_parts.context.designer, m_parts.context.prompts))
        std::visit(EffectRunner(m_parts, m_formatting), command.effect);
}

void CommandRouter::runTag(const QuickTag &tag)
{
    m_parts.context.designer.finishLeaving();
    m_palette.run(tag);
}

void CommandRouter::heading(int size)
{
    m_parts.context.designer.finishLeaving();
    m_palette.heading(size);
}

} // namespace zephira
