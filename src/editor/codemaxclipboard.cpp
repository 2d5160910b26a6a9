// SPDX-License-Identifier: GPL-3.0-or-later
// The clipboard of the editing control.
#include "editor/codemax.h"
#include "files/lineends.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <utility>
#include <vector>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

/// Marks text on the clipboard as whole lines that were copied without a selection.
const QString wholeLines = u"application/x-zephira-lines"_s;

} // namespace

/// The lines with carets, in the order of the text.
std::vector<qsizetype> CodeMax::caretLines() const
{
    std::vector<qsizetype> lines;
    for (const qsizetype caret : m_typing.carets())
        lines.push_back(m_engine.lineOf(caret));
    std::ranges::sort(lines);
    const auto same = std::ranges::unique(lines);
    lines.erase(same.begin(), same.end());
    return lines;
}

/// Whether a command that needs a selection may take whole lines instead: not while another view is in front, as one
/// wouldn't see which.
bool CodeMax::takesLines() const
{
    return !canCopy() && isVisible();
}

void CodeMax::copyLines()
{
    QByteArray text;
    for (const qsizetype line : caretLines()) {
        const qsizetype end = m_engine.lineEnd(line);
        text.append(m_engine.bytes(m_engine.lineStart(line), end));
        text.append(toLineEnds("\n", typedLineEnds()));
    }
    auto *copied = toMimeData(text, false);
    copied->setData(wholeLines, "1");
    QGuiApplication::clipboard()->setMimeData(copied);
}

void CodeMax::removeLines()
{
    std::vector<qsizetype> lines = caretLines();
    m_engine.send(SCI_BEGINUNDOACTION);
    std::for_each(lines.rbegin(), lines.rend(), [this](qsizetype line) {
        qsizetype start = m_engine.lineStart(line);
        const qsizetype end = m_engine.lineStart(line + 1);
        // Without the last line, the one before it has no end.
        if (line > 0 && line + 1 == m_engine.lineCount())
            start = m_engine.lineEnd(line - 1);
        m_engine.replace(start, end, {});
    });
    m_engine.send(SCI_ENDUNDOACTION);
    m_engine.send(SCI_SCROLLCARET);
    m_engine.send(SCI_CHOOSECARETX);
}

/// Puts the lines above those with carets, which keep their places in them.
void CodeMax::pasteLines(const QByteArray &text)
{
    std::vector<qsizetype> carets = m_typing.carets();
    std::ranges::sort(carets);
    std::vector<qsizetype> after;
    qsizetype moved = 0;
    qsizetype lastStart = -1;
    m_engine.send(SCI_BEGINUNDOACTION);
    for (const qsizetype caret : carets) {
        const qsizetype start = m_engine.lineStart(m_engine.lineOf(caret + moved));
        if (start != lastStart) {
            m_engine.replace(start, start, text);
            moved += text.size();
            lastStart = start + text.size();
        }
        after.push_back(caret + moved);
    }
    m_engine.send(SCI_ENDUNDOACTION);
    m_engine.send(SCI_SETEMPTYSELECTION, after.front());
    for (std::size_t i = 1; i < after.size(); ++i)
        m_engine.send(SCI_ADDSELECTION, after[i], after[i]);
    m_engine.send(SCI_SCROLLCARET);
    m_engine.send(SCI_CHOOSECARETX);
}

void CodeMax::cut()
{
    perform([this] {
        if (canCopy()) {
            m_engine.send(SCI_CUT);
        } else if (takesLines() && !isReadOnly()) {
            copyLines();
            removeLines();
        }
    });
}

void CodeMax::copy()
{
    if (canCopy())
        m_engine.send(SCI_COPY);
    else if (takesLines())
        copyLines();
}

void CodeMax::paste()
{
    perform([this] {
        const QMimeData *offered = QGuiApplication::clipboard()->mimeData();
        if (!isReadOnly() && offered && offered->hasFormat(wholeLines) && takesLines())
            pasteLines(toLineEnds(offered->text().toUtf8(), typedLineEnds()));
        else
            m_engine.send(SCI_PASTE);
    });
}

} // namespace zephira
