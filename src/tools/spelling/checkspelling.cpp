// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/checkspelling.h"

#include "core/appcontext.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/formopener.h"
#include "core/prompts.h"
#include "tools/spelling/spellcheck.h"

#include <QCursor>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Opens the lexicon and starts the check, while the pointer shows that the program is at work.
Result<void> start(SpellCheck &check, const QString &text)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const Result<void> opened = check.lexicon().OpenLexicon();
    if (opened)
        check.start(text);
    QGuiApplication::restoreOverrideCursor();
    return opened;
}

} // namespace

void checkSpelling(const AppContext &context, SpellCheck &check)
{
    EditingControl &editor = context.editor;
    const bool hasSelection = editor.selLength() != 0;
    if (const Result<void> started = start(check, hasSelection ? editor.selText() : editor.text()); !started) {
        tellError(context.prompts, started.error());
        return;
    }
    const QStringList notes = check.lexicon().takeNotes();
    if (!notes.isEmpty())
        context.prompts.tell(notes.join(u"\n\n"_s), {}, Question::Icon::Exclamation);
    if (check.isAsking()) {
        context.forms.openModal(u"SpellChecker1"_s);
        check.stop();
    }
    // Writing back the same text would mark the document as modified.
    if (check.isChanged()) {
        if (hasSelection)
            editor.setSelText(check.text());
        else
            editor.setText(check.text());
    }
    check.start({});
    context.prompts.ask(
        {hasSelection ? u"Spell Check of selected text is complete!"_s : u"Spell Check is complete!"_s});
}

} // namespace zephira
