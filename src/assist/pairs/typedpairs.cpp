// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/typedpairs.h"

#include "assist/pairs/codecontext.h"
#include "assist/pairs/lineindent.h"
#include "assist/pairs/pairtext.h"
#include "assist/textedits.h"
#include "assist/texthelpers.h"
#include "core/appcontext.h"
#include "core/usersettings.h"
#include "editor/codemax.h"
#include "editor/codemaxglobals.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;
using Language = CodePlace::Language;
using Part = CodePlace::Part;

/// The bytes around a place; 0 at the ends of the text.
char byteBefore(const SciEngine &engine, qsizetype position)
{
    return position > 0 ? engine.bytes(position - 1, position).front() : '\0';
}

char byteAt(const SciEngine &engine, qsizetype position)
{
    return position < engine.length() ? engine.bytes(position, position + 1).front() : '\0';
}

} // namespace

TypedPairs::TypedPairs(CodeMax &rt, const AppContext &context, Elements &elements)
    : m_rt(rt)
    , m_context(context)
    , m_elements(elements)
    , m_closingTags(rt, elements, m_closers)
    , m_closes(wholeNumber(context.settings, UserSetting::AutoClose) != 0)
{
    rt.installEventFilter(this);
    rt.setLineBreaks([&rt](qsizetype start, qsizetype end) { return lineBreakAt(rt, start, end); });
    connect(&rt, &CodeMax::Change, this, &TypedPairs::afterChange);
    connect(&rt, &CodeMax::SelChange, this, &TypedPairs::forgetFarClosers);
    connect(&rt, &QsciScintillaBase::SCN_MODIFIED, this, [this](int position, int type, const char *, int length) {
        if (m_closers.places().empty())
            return;
        if (type & Sci::SC_MOD_BEFOREINSERT)
            m_closers.inserted(position, length);
        else if (type & Sci::SC_MOD_BEFOREDELETE)
            m_closers.erased(position, length);
    });
}

TypedPairs::~TypedPairs()
{
    m_rt.setLineBreaks({});
}

void TypedPairs::setCloses(bool on)
{
    m_closes = on;
    m_closers.clear();
    writeSwitch(m_context.settings, UserSetting::AutoClose, on);
}

bool TypedPairs::eventFilter(QObject *watched, QEvent *event)
{
    if (m_rt.isReadOnly())
        return false;
    if (event->type() == QEvent::KeyPress)
        return takeKey(*static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::InputMethod) {
        const auto &input = *static_cast<QInputMethodEvent *>(event);
        const bool wasComposing = std::exchange(m_isComposing, !input.preeditString().isEmpty());
        const QList<uint> text = input.commitString().toUcs4();
        if (text.size() == 1 && !m_isComposing && !wasComposing && input.replacementLength() == 0)
            return takeCharacter(text.first());
        if (!text.isEmpty())
            m_closingTags.takeKey(U'\n');
    }
    return QObject::eventFilter(watched, event);
}

bool TypedPairs::takeKey(const QKeyEvent &key)
{
    // Keys of commands aren't typed.
    if (m_rt.globals().commandFor(key.keyCombination()) || TypingRules::isLeftToWindow(key)
        || TypingRules::isModifier(key))
        return false;
    if (TypingRules::isPlainBackspace(key))
        return m_closingTags.takeKey(U'\b') || eraseBoth();
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)
        return m_closingTags.takeKey(U'\n');
    const char32_t typed = TypingRules::typedCharacter(key);
    return typed != 0 && takeCharacter(typed);
}

/// Returns true if the text doesn't get the character.
bool TypedPairs::takeCharacter(char32_t typed)
{
    if (m_closingTags.takeKey(typed) || surround(typed) || typeOver(typed))
        return true;
    if (typed == U'/' || typed == U'}' || typed == U'>' || partnerOf(typed) != 0)
        expect(typed);
    return false;
}

void TypedPairs::expect(char32_t typed)
{
    m_typed = typed;
    // A key that changes nothing isn't to be taken for the next change.
    QMetaObject::invokeMethod(
        this, [this] { m_typed = 0; }, Qt::QueuedConnection);
}

/// Puts what is selected between a quote or bracket and its partner. It stays selected; carets alone type the character.
/// A tag is typed in place of the selection, as any other text.
bool TypedPairs::surround(char32_t typed)
{
    const char closer = typed == U'<' ? '\0' : partnerOf(typed);
    TextSelections selections = textSelections(m_rt.engine());
    if (closer == 0 || !isAnySelected(selections))
        return false;
    const QByteArray opener(1, static_cast<char>(typed));
    TextEdits edits;
    for (TextSelection &each : selections.all) {
        const bool isForward = each.caret >= each.anchor;
        const qsizetype start = each.start();
        const qsizetype end = each.end();
        edits.replace(m_rt.engine(), start, start, opener);
        const qsizetype newStart = edits.moved(start);
        const qsizetype newEnd = edits.moved(end);
        if (start != end)
            edits.replace(m_rt.engine(), end, end, QByteArray(1, closer));
        each = isForward ? TextSelection{newStart, newEnd} : TextSelection{newEnd, newStart};
    }
    edits.make(m_rt, selections);
    return true;
}

/// Goes over a closer that was put there, instead of typing it.
bool TypedPairs::typeOver(char32_t typed)
{
    if (m_closers.places().empty() || m_rt.overtype())
        return false;
    TextSelections selections = textSelections(m_rt.engine());
    const bool isOver = std::ranges::all_of(selections.all, [&](const TextSelection &each) {
        return each.isEmpty() && m_closers.sizeAt(each.caret) == 1
            && static_cast<unsigned char>(byteAt(m_rt.engine(), each.caret)) == typed;
    });
    if (!isOver)
        return false;
    for (TextSelection &each : selections.all) {
        m_closers.forget(each.caret);
        each = {each.caret + 1, each.caret + 1};
    }
    selectTexts(m_rt, selections);
    return true;
}

/// How many bytes behind a caret belong to the character before it, as an empty pair.
qsizetype TypedPairs::pairBefore(qsizetype caret)
{
    const SciEngine &engine = m_rt.engine();
    const char opener = byteBefore(engine, caret);
    const qsizetype own = m_closers.sizeAt(caret);
    if (opener == '>')
        return own > 1 ? own : 0; // an end tag
    const auto character = static_cast<unsigned char>(opener);
    if (opener == '<' || partnerOf(character) == 0 || partnerOf(character) != byteAt(engine, caret))
        return 0;
    if (own == 1 || !isQuote(character))
        return 1;
    // Two quotes may also be the end of a string and the beginning of the next one.
    const auto place = placeAt(m_rt, caret - 1);
    return place && (place->part == Part::Content || place->part == Part::Tag) ? 1 : 0;
}

bool TypedPairs::eraseBoth()
{
    if (!m_closes)
        return false;
    TextSelections selections = textSelections(m_rt.engine());
    TextEdits edits;
    for (TextSelection &each : selections.all) {
        const qsizetype behind = each.isEmpty() ? pairBefore(each.caret) : 0;
        if (behind == 0)
            return false;
        edits.replace(m_rt.engine(), each.caret - 1, each.caret + behind, {});
    }
    for (TextSelection &each : selections.all)
        each = {edits.placeOf(each.caret - 1), edits.placeOf(each.caret - 1)};
    edits.make(m_rt, selections);
    return true;
}

void TypedPairs::afterChange()
{
    const char32_t typed = std::exchange(m_typed, U'\0');
    if (typed == 0 || m_rt.overtype())
        return;
    if (typed == U'/')
        m_closingTags.slashTyped();
    if (typed == U'}' || typed == U'>')
        alignTypedEnds(m_rt, m_elements, static_cast<char>(typed));
    if (m_closes)
        closeTyped(typed);
}

/// What ends what was typed before a caret; empty if it isn't to be closed.
QByteArray TypedPairs::closerAt(qsizetype caret, char32_t typed)
{
    const SciEngine &engine = m_rt.engine();
    const char next = byteAt(engine, caret);
    if (caret == 0 || static_cast<unsigned char>(byteBefore(engine, caret)) != typed || !closesBefore(next))
        return {};
    if (typed == U'>') {
        const auto tag = hasTags(m_rt) ? startTagEndingAt(m_rt, caret) : std::nullopt;
        if (!tag)
            return {};
        const QByteArrayView behind = engine.bytes(caret, std::min(caret + tag->name.size() + 3, engine.length()));
        return beginsWithEndTag(behind, tag->name, markupRules(m_rt)) ? QByteArray() : "</" + tag->name + '>';
    }
    const char before = byteBefore(engine, caret - 1);
    if (isQuote(typed) && !closesQuote(before, next))
        return {};
    const auto place = placeAt(m_rt, caret - 1);
    if (!place)
        return {};
    const bool isMarkup = place->language == Language::Markup;
    // In the text of a page a quote may be an apostrophe; in a tag it begins a value.
    const bool isPlace =
        isMarkup && isQuote(typed) ? place->part == Part::Tag && before == '=' : place->part == Part::Content;
    const bool beginsComment = place->language == Language::VbScript && typed == U'\'';
    return isPlace && !beginsComment ? QByteArray(1, partnerOf(typed)) : QByteArray();
}

void TypedPairs::closeTyped(char32_t typed)
{
    if (typed != U'>' && (typed == U'<' || partnerOf(typed) == 0))
        return;
    TextSelections selections = textSelections(m_rt.engine());
    TextEdits edits;
    std::vector<AutoClosed::Place> closed;
    for (TextSelection &each : selections.all) {
        const QByteArray closer = each.isEmpty() ? closerAt(each.caret, typed) : QByteArray();
        const qsizetype caret = edits.moved(each.caret);
        edits.replace(m_rt.engine(), each.caret, each.caret, closer, false);
        if (!closer.isEmpty())
            closed.push_back({caret, closer.size()});
        each = {caret, caret};
    }
    if (edits.isEmpty())
        return;
    edits.make(m_rt, selections);
    for (const AutoClosed::Place &each : closed)
        m_closers.add(each.at, each.size);
}

/// Who goes to another line has done with the pairs of this one.
void TypedPairs::forgetFarClosers()
{
    const SciEngine &engine = m_rt.engine();
    if (m_closers.places().empty())
        return;
    const TextSelections selections = textSelections(engine);
    const bool isNear = std::ranges::any_of(m_closers.places(), [&](const AutoClosed::Place &closer) {
        const qsizetype line = engine.lineOf(closer.at);
        return std::ranges::any_of(selections.all,
                                   [&](const TextSelection &each) { return engine.lineOf(each.caret) == line; });
    });
    if (!isNear)
        m_closers.clear();
}

void switchAutoClose(TextHelpers &helpers)
{
    helpers.typedPairs().setCloses(!helpers.typedPairs().closes());
}

bool closesPairs(TextHelpers &helpers)
{
    return helpers.typedPairs().closes();
}

} // namespace zephira
