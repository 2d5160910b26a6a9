// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/caretcommands.h"

#include "assist/casetext.h"
#include "assist/lineblocks.h"
#include "assist/texthelpers.h"
#include "core/appcontext.h"
#include "core/prompts.h"
#include "editor/codemax.h"

#include <QByteArrayMatcher>
#include <QCoreApplication>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

using Sci = QsciScintillaBase;

TextSelection wordAt(const SciEngine &engine, qsizetype position)
{
    return {engine.send(Sci::SCI_WORDSTARTPOSITION, position, true),
            engine.send(Sci::SCI_WORDENDPOSITION, position, true)};
}

void tellLimit(const TextHelpers &helpers)
{
    helpers.context().prompts.tell(
        QCoreApplication::translate("Carets",
                                    "There are more places than can be selected at once. The first %1 are selected.")
            .arg(QLocale().toString(mostCarets)),
        {}, Question::Icon::Information);
}

/// Changes the selected texts, or the words at the carets, which then keep their places.
void changeLetters(CodeMax &rt, QByteArray (*change)(QByteArrayView))
{
    if (rt.isReadOnly())
        return;
    const SciEngine &engine = rt.engine();
    TextSelections selections = textSelections(engine);
    TextEdits edits;
    qsizetype done = 0;
    for (TextSelection &each : selections.all) {
        const TextSelection range = each.isEmpty() ? wordAt(engine, each.caret) : each;
        const qsizetype start = range.start();
        const qsizetype end = range.end();
        const qsizetype newStart = edits.moved(start);
        // Two carets may be in one word.
        if (start >= done)
            edits.replace(engine, start, end, change(engine.bytes(start, end)));
        done = std::max(done, end);
        const qsizetype newEnd = edits.moved(end);
        if (each.isEmpty()) {
            const qsizetype caret = std::min(newStart + each.caret - start, newEnd);
            each = {caret, caret};
        } else if (each.anchor < each.caret) {
            each = {newStart, newEnd};
        } else {
            each = {newEnd, newStart};
        }
    }
    edits.make(rt, selections);
}

} // namespace

void selectAllOccurrences(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    const SciEngine &engine = rt.engine();
    const TextSelections before = textSelections(engine);
    TextSelection searched = before.all[before.main];
    if (searched.isEmpty())
        searched = wordAt(engine, searched.caret);
    if (searched.isEmpty())
        return;
    const QByteArrayView text = engine.bytes(0, engine.length());
    const QByteArrayMatcher matcher(text.sliced(searched.start(), searched.end() - searched.start()));
    const qsizetype size = searched.end() - searched.start();
    TextSelections found;
    qsizetype at = matcher.indexIn(text.data(), text.size());
    for (; at >= 0 && found.all.size() < mostCarets; at = matcher.indexIn(text.data(), text.size(), at + size)) {
        // The one that the caret is in stays the main one, so that the view stays where it is.
        if (at <= searched.start())
            found.main = found.all.size();
        found.all.push_back({at, at + size});
    }
    selectTexts(rt, found);
    if (at >= 0)
        tellLimit(helpers);
}

void caretInEachLine(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    const SciEngine &engine = rt.engine();
    TextSelections carets;
    bool isComplete = true;
    for (const LineBlock &block : lineBlocks(engine, textSelections(engine))) {
        for (qsizetype line = block.first; line <= block.last && isComplete; ++line) {
            const qsizetype end = engine.lineEnd(line);
            carets.all.push_back({end, end});
            isComplete = carets.all.size() < mostCarets;
        }
    }
    carets.main = carets.all.size() - 1;
    selectTexts(rt, carets);
    if (!isComplete)
        tellLimit(helpers);
}

void makeUpperCase(TextHelpers &helpers)
{
    changeLetters(helpers.rt(), upperCase);
}

void makeLowerCase(TextHelpers &helpers)
{
    changeLetters(helpers.rt(), lowerCase);
}

void capitalise(TextHelpers &helpers)
{
    changeLetters(helpers.rt(), capitalised);
}

} // namespace zephira
