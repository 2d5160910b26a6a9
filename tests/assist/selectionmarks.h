// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/assistfixture.h"
#include "assist/textedits.h"

using namespace Qt::StringLiterals;

namespace zephira {

/// Sets a text in which "|" stands for a caret, and "«" and "»" around what is selected. There may be several of them.
inline void setSelected(AssistFixture &f, const QString &marked)
{
    QString text;
    TextSelections selections;
    qsizetype start = 0;
    for (const QChar c : marked) {
        const qsizetype at = text.toUtf8().size();
        if (c == u'«')
            start = at;
        else if (c == u'»')
            selections.all.push_back({start, at});
        else if (c == u'|')
            selections.all.push_back({at, at});
        else
            text += c;
    }
    selections.main = selections.all.size() - 1;
    f.editor.setText(text);
    selectTexts(f.editor, selections);
}

/// The text with such marks.
inline QString selected(const AssistFixture &f)
{
    QByteArray text = f.editor.engine().bytes(0, f.editor.engine().length()).toByteArray();
    const TextSelections selections = textSelections(f.editor.engine());
    for (auto it = selections.all.rbegin(); it != selections.all.rend(); ++it) {
        if (it->isEmpty()) {
            text.insert(it->caret, "|");
        } else {
            text.insert(it->end(), "»");
            text.insert(it->start(), "«");
        }
    }
    return QString::fromUtf8(text);
}

/// Runs a command on a marked text, and checks that one undo step takes it back.
inline QString afterCommand(AssistFixture &f, const QString &before, TextCommand command)
{
    setSelected(f, before);
    const QString original = f.editor.text();
    f.run(command);
    const QString after = selected(f);
    const QString changed = f.editor.text();
    if (changed != original) {
        f.editor.undo();
        if (f.editor.text() != original)
            return u"one undo leaves "_s + f.editor.text();
        f.editor.redo();
        if (f.editor.text() != changed)
            return u"redo leaves "_s + f.editor.text();
    }
    return after;
}

} // namespace zephira
