// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/linecommands.h"

#include "assist/linetext.h"
#include "assist/texthelpers.h"
#include "editor/codemax.h"

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// 0-based lines, from first to last.
struct Lines {
    qsizetype first = 0;
    qsizetype last = 0;
};

/// The lines of the main selection. A line in which the selection ends before the first character doesn't count.
Lines selectedLines(const SciEngine &engine)
{
    const qsizetype start = engine.send(Sci::SCI_GETSELECTIONSTART);
    const qsizetype end = engine.send(Sci::SCI_GETSELECTIONEND);
    Lines lines{engine.lineOf(start), engine.lineOf(end)};
    if (lines.last > lines.first && engine.lineStart(lines.last) == end)
        --lines.last;
    return lines;
}

/// Puts what `make` returns in the place of the lines' text, without the end of the last one. An equal text is no change.
void replaceLines(CodeMax &rt, const Lines &lines, QByteArray (*make)(QByteArrayView))
{
    const SciEngine &engine = rt.engine();
    const qsizetype start = engine.lineStart(lines.first);
    const qsizetype end = engine.lineEnd(lines.last);
    const QByteArrayView before = engine.bytes(start, end);
    const QByteArray after = make(before);
    if (after == before)
        return;
    rt.perform([&] { rt.replaceBytes(start, end, after); });
}

} // namespace

void joinLines(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    if (rt.isReadOnly())
        return;
    Lines lines = selectedLines(rt.engine());
    if (lines.first == lines.last && lines.last + 1 < rt.engine().lineCount())
        ++lines.last;
    replaceLines(rt, lines, joinedLines);
}

void removeTrailingBlanks(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    if (rt.isReadOnly())
        return;
    const bool selected = rt.selLength() > 0;
    replaceLines(rt, selected ? selectedLines(rt.engine()) : Lines{0, rt.engine().lineCount() - 1},
                 withoutTrailingBlanks);
}

} // namespace zephira
