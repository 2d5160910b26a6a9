// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/structurecheck.h"

#include "completion/completiontext.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How Tidy reads: it corrects nothing, and counts a tab as one character.
const std::vector<TidySetting> &checkSettings()
{
    static const std::vector<TidySetting> settings{
        {"tab-size", "1"},
        {"char-encoding", "utf8"},
        {"drop-empty-elements", "no"},
        {"drop-empty-paras", "no"},
        {"fix-uri", "no"},
        {"fix-bad-comments", "no"},
        {"warn-proprietary-attributes", "no"},
    };
    return settings;
}

/// The messages that are about nesting, and true of today's HTML.
constexpr std::array<QByteArrayView, 20> structureKeys{
    "CANT_BE_NESTED",         "COERCE_TO_ENDTAG",      "CONTENT_AFTER_BODY",   "DISCARDING_UNEXPECTED",
    "DOCTYPE_AFTER_TAGS",     "DUPLICATE_FRAMESET",    "ELEMENT_NOT_EMPTY",    "ILLEGAL_NESTING",
    "MISSING_ENDTAG_BEFORE",  "MISSING_ENDTAG_FOR",    "MISSING_STARTTAG",     "NON_MATCHING_ENDTAG",
    "REPLACING_UNEX_ELEMENT", "TAG_NOT_ALLOWED_IN",    "TOO_MANY_ELEMENTS",    "TOO_MANY_ELEMENTS_IN",
    "UNEXPECTED_ENDTAG",      "UNEXPECTED_ENDTAG_ERR", "UNEXPECTED_ENDTAG_IN", "USING_BR_INPLACE_OF"};

/// An end tag in whose place Tidy puts an empty element.
constexpr QByteArrayView insertionKey = "INSERTING_TAG";

bool isOfStructure(const TidyMessage &message)
{
    const bool isListed = std::ranges::find(structureKeys, QByteArrayView(message.key)) != structureKeys.end();
    return message.line >= 0 && (isListed || message.key == insertionKey);
}

/// The sentence without the place and the level before it.
QString sentenceOf(const QString &said)
{
    QString text = said.mid(said.indexOf(u": ") + 2);
    text.front() = text.front().toUpper();
    return text.endsWith(u'.') || text.endsWith(u'!') ? text : text + u'.';
}

/// Finds places by line and column in characters. They have to be asked for in their order.
class Places
{
public:
    explicit Places(QByteArrayView text) : m_text(text) {}

    qsizetype find(int line, int column)
    {
        for (; m_line < line; ++m_line) {
            const qsizetype end = m_text.indexOf('\n', m_at);
            if (end < 0)
                return m_text.size();
            m_at = end + 1;
            m_column = 0;
        }
        for (; m_column < column && m_at < m_text.size() && m_text[m_at] != '\n'; ++m_column) {
            ++m_at;
            while (m_at < m_text.size() && isContinuation(m_text[m_at]))
                ++m_at;
        }
        return m_at;
    }

private:
    static bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xc0U) == 0x80U; }

    QByteArrayView m_text;
    qsizetype m_at = 0;
    int m_line = 0;
    int m_column = 0;
};

/// The end of what is marked for a message: the beginning of a tag with its name, or a word.
qsizetype markEnd(QByteArrayView text, qsizetype start)
{
    qsizetype end = start;
    while (end < text.size() && (text[end] == '<' || text[end] == '/'))
        ++end;
    while (end < text.size() && isNameByte(text[end]))
        ++end;
    return std::min(std::max(end, start + 1), text.size());
}

} // namespace

Result<void> checkStructure(const PageFacts &page, const TidyEngine &tidy, ProblemSink &sink, TidyWatch &watch)
{
    Result<TidyEngine::Run> run = tidy.run(page.structure, checkSettings(), TidyEngine::Steps::Checking, watch);
    if (!run)
        return run.error();
    std::vector<TidyMessage> messages = std::move(run).value().messages;
    std::erase_if(messages, [](const TidyMessage &each) { return !isOfStructure(each); });
    std::ranges::stable_sort(messages, {}, [](const TidyMessage &each) { return std::pair(each.line, each.column); });
    Places places(page.structure);
    qsizetype last = -1;
    for (const TidyMessage &message : std::as_const(messages)) {
        const qsizetype start = std::min(places.find(message.line, message.column), page.structure.size() - 1);
        // What is told at the same place, or where no tag is, follows from what was told before.
        if (start == last || start < 0 || page.structure[start] != '<'
            || std::ranges::binary_search(page.leftOut, start))
            continue;
        const qsizetype end = markEnd(page.structure, start);
        const QByteArrayView tag = QByteArrayView(page.structure).sliced(start, end - start);
        const bool isInserted = message.key == insertionKey;
        if (isInserted && !tag.startsWith("</"))
            continue;
        last = start;
        sink.error(
            start, end,
            isInserted
                ? QCoreApplication::translate("Problems", "</%1> closes nothing.").arg(QString::fromUtf8(tag.sliced(2)))
                : sentenceOf(message.text));
    }
    return {};
}

} // namespace zephira
