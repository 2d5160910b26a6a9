// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakeeditor.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct LineAndColumn {
    int line = 0;
    int column = 0;
};

/// Length of the line end at an offset: 2 for CR LF, 1 for CR or LF alone, 0 if there is none.
int lineEndAt(const QString &text, int offset)
{
    if (offset >= text.size())
        return 0;
    if (text[offset] == u'\r')
        return offset + 1 < text.size() && text[offset + 1] == u'\n' ? 2 : 1;
    return text[offset] == u'\n' ? 1 : 0;
}

LineAndColumn placeOf(const QString &text, int offset)
{
    LineAndColumn place;
    int lineStart = 0;
    for (int i = 0; i < offset;) {
        const int length = lineEndAt(text, i);
        i += std::max(1, length);
        if (length > 0 && i <= offset) {
            ++place.line;
            lineStart = i;
        }
    }
    place.column = offset - lineStart;
    return place;
}

/// The offset of a place; one beyond the end of its line or of the text is clamped to that end.
int offsetOf(const QString &text, LineAndColumn place)
{
    int offset = 0;
    for (int line = 0; line < place.line && offset < text.size();) {
        const int length = lineEndAt(text, offset);
        offset += std::max(1, length);
        line += length > 0;
    }
    for (int column = 0; column < place.column && offset < text.size() && lineEndAt(text, offset) == 0; ++column)
        ++offset;
    return offset;
}

bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

} // namespace

void FakeEditor::selectOffsets(int anchor, int caret)
{
    m_anchor = std::clamp(anchor, 0, textLength());
    m_caret = std::clamp(caret, 0, textLength());
}

bool FakeEditor::selectPart(const QString &part)
{
    const auto start = static_cast<int>(m_text.indexOf(part));
    if (start < 0)
        return false;
    selectOffsets(start, start + static_cast<int>(part.size()));
    return true;
}

void FakeEditor::setText(const QString &text)
{
    m_text = text;
    m_anchor = m_caret = 0;
    changed();
}

QString FakeEditor::selText() const
{
    return m_text.mid(selectionStart(), selLength());
}

void FakeEditor::setSelText(const QString &text)
{
    replaceSelection(text);
}

int FakeEditor::selLength() const
{
    return selectionEnd() - selectionStart();
}

QString FakeEditor::currentWord() const
{
    int start = m_caret;
    int end = m_caret;
    while (start > 0 && isWordCharacter(m_text[start - 1]))
        --start;
    while (end < m_text.size() && isWordCharacter(m_text[end]))
        ++end;
    return m_text.mid(start, end - start);
}

int FakeEditor::lineCount() const
{
    return placeOf(m_text, textLength()).line + 1;
}

Result<void> FakeEditor::openFile(const QString &path)
{
    if (openError)
        return *std::exchange(openError, std::nullopt);
    if (!m_files)
        return Error{Error::Code::NotFound, u"%1 doesn't exist."_s.arg(path)};
    const Result<QByteArray> content = m_files->read(path);
    if (!content)
        return content.error();
    m_text = QString::fromUtf8(content.value());
    m_anchor = m_caret = 0;
    undoable = redoable = false;
    return {};
}

std::array<QByteArrayView, 2> FakeEditor::utf8Pieces() const
{
    m_utf8 = m_text.toUtf8();
    return {m_utf8, {}};
}

Result<void> FakeEditor::saveFile(const QString &path, bool clearUndo)
{
    if (saveError)
        return *std::exchange(saveError, std::nullopt);
    if (!m_files)
        return Error{Error::Code::Unwritable, u"%1 can't be written."_s.arg(path)};
    Result<void> written = m_files->write(path, m_text.toUtf8());
    if (written && clearUndo)
        undoable = redoable = false;
    return written;
}

CodeMaxRange FakeEditor::selection(bool normalized) const
{
    const LineAndColumn start = placeOf(m_text, normalized ? selectionStart() : m_anchor);
    const LineAndColumn end = placeOf(m_text, normalized ? selectionEnd() : m_caret);
    return {start.line, start.column, end.line, end.column};
}

void FakeEditor::select(const CodeMaxRange &range)
{
    selectOffsets(offsetOf(m_text, {range.StartLineNo, range.StartColNo}),
                  offsetOf(m_text, {range.EndLineNo, range.EndColNo}));
}

quint32 FakeEditor::color(int item) const
{
    const auto entry = colours.find(item);
    return entry == colours.end() ? 0 : entry->second;
}

int FakeEditor::fontStyle(int item) const
{
    const auto entry = fontStyles.find(item);
    return entry == fontStyles.end() ? 0 : entry->second;
}

void FakeEditor::cut()
{
    calls.append(u"cut"_s);
    if (m_clipboard)
        m_clipboard->setText(selText());
    replaceSelection({});
}

void FakeEditor::copy()
{
    calls.append(u"copy"_s);
    if (m_clipboard)
        m_clipboard->setText(selText());
}

void FakeEditor::paste()
{
    calls.append(u"paste"_s);
    if (m_clipboard)
        replaceSelection(m_clipboard->text());
}

void FakeEditor::clearSelection()
{
    calls.append(u"clearSelection"_s);
    replaceSelection({});
}

void FakeEditor::executeCmd(int command, int argument)
{
    commands.push_back({command, argument});
    if (command == static_cast<int>(EditorCommand::SelectAll))
        selectOffsets(0, textLength());
    else if (command == static_cast<int>(EditorCommand::GoToLine) && argument >= 0)
        placeCaret(offsetOf(m_text, {argument, 0}));
}

void FakeEditor::printContents(int, int)
{
    calls.append(u"print"_s);
}

void FakeEditor::replaceSelection(const QString &text)
{
    if (selLength() == 0 && text.isEmpty())
        return;
    m_text.replace(selectionStart(), selLength(), text);
    placeCaret(selectionStart() + static_cast<int>(text.size()));
    changed();
}

void FakeEditor::changed() const
{
    if (onChange)
        onChange();
}

} // namespace zephira
