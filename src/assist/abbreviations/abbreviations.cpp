// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/abbreviations.h"

#include "assist/abbreviations/abbreviationplace.h"
#include "assist/abbreviations/wrapbar.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "core/openelements.h"
#include "editor/codemax.h"
#include "files/textfile.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// How many UTF-16 code units of a preview are shown.
constexpr qsizetype longestPreview = 20'000;

constexpr qsizetype all = std::numeric_limits<qsizetype>::max();

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// The fields of a text in UTF-16 as those of its UTF-8.
std::vector<TextField> inBytes(const ExpandedAbbreviation &expanded)
{
    std::vector<TextField> fields;
    fields.reserve(expanded.fields.size());
    qsizetype units = 0;
    qsizetype bytes = 0;
    const auto bytesAt = [&](qsizetype place) {
        bytes += QStringView(expanded.text).sliced(units, place - units).toUtf8().size();
        units = place;
        return bytes;
    };
    for (const AbbreviationField &field : expanded.fields) {
        const qsizetype start = bytesAt(field.start);
        fields.push_back({field.number, start, bytesAt(field.start + field.length)});
    }
    return fields;
}

MarkupRules rulesOf(int row)
{
    return row == language::Xml ? MarkupRules::Xml : MarkupRules::Html;
}

} // namespace

Abbreviations::Abbreviations(Parts parts) : m_parts(std::move(parts)), m_steps(m_parts.rt) {}

Abbreviations::~Abbreviations()
{
    delete m_bar;
}

Result<AbbreviationEngine *> Abbreviations::engine() const
{
    if (!m_parts.load)
        return Error{Error::Code::Failed,
                     QCoreApplication::translate("Abbreviations", "Abbreviations aren't available here.")};
    return m_parts.load();
}

/// In the order of the text.
std::vector<Abbreviations::Selection> Abbreviations::selections() const
{
    const SciEngine &engine = m_parts.rt.engine();
    std::vector<Selection> result;
    for (qsizetype i = 0; i < engine.send(Sci::SCI_GETSELECTIONS); ++i)
        result.push_back({engine.send(Sci::SCI_GETSELECTIONNSTART, i), engine.send(Sci::SCI_GETSELECTIONNEND, i)});
    std::ranges::sort(result, {}, &Selection::start);
    return result;
}

QString Abbreviations::textOf(qsizetype start, qsizetype end) const
{
    return QString::fromUtf8(m_parts.rt.engine().bytes(start, end));
}

QString Abbreviations::indentAt(qsizetype position) const
{
    const SciEngine &engine = m_parts.rt.engine();
    const QByteArrayView line = engine.bytes(engine.lineStart(engine.lineOf(position)), position);
    const auto end = std::ranges::find_if(line, [](char c) { return c != ' ' && c != '\t'; });
    return QString::fromLatin1(line.first(end - line.begin()));
}

QString Abbreviations::lineEnd() const
{
    switch (m_parts.rt.typedLineEnds()) {
    case LineEnds::CrLf:
        return u"\r\n"_s;
    case LineEnds::Cr:
        return u"\r"_s;
    default:
        return u"\n"_s;
    }
}

Result<AbbreviationSyntax> Abbreviations::syntaxAt(qsizetype position, OpenElements &reader) const
{
    const int row = m_parts.document.languageRow();
    if (row == language::StyleSheets)
        return AbbreviationSyntax::StyleSheet;
    if (row != language::Html && row != language::Xml)
        return Error{Error::Code::Refused,
                     QCoreApplication::translate("Abbreviations", "Abbreviations are for HTML, XML and style sheets.")};
    const auto syntax = abbreviationSyntax(reader, m_parts.rt.utf8Pieces(), position);
    if (!syntax)
        return Error{Error::Code::Refused,
                     QCoreApplication::translate("Abbreviations", "Abbreviations can't be used in a script or a tag.")};
    return *syntax;
}

Abbreviations::Edits Abbreviations::expansions() const
{
    const Result<AbbreviationEngine *> loaded = engine();
    if (!loaded)
        return loaded.error();
    const SciEngine &text = m_parts.rt.engine();
    const EditorOptions options = m_parts.rt.options();
    OpenElements reader(rulesOf(m_parts.document.languageRow()));
    QHash<QString, ExpandedAbbreviation> known;
    std::vector<Edit> edits;
    for (const Selection &selection : selections()) {
        const Result<AbbreviationSyntax> syntax = syntaxAt(selection.start, reader);
        if (!syntax)
            return syntax.error();
        Edit edit{selection.start, selection.end, {}, {}};
        QString abbreviation = textOf(selection.start, selection.end).trimmed();
        if (selection.start == selection.end) {
            const qsizetype line = text.lineOf(selection.start);
            // Far from the caret there is nothing of the abbreviation.
            constexpr qsizetype near = 4 * AbbreviationEngine::longest;
            qsizetype from = std::max(text.lineStart(line), selection.start - near);
            if (from > text.lineStart(line))
                from = text.send(Sci::SCI_POSITIONBEFORE, from);
            const QString before = textOf(from, selection.start);
            const QString behind = textOf(selection.start, std::min(text.lineEnd(line), selection.start + near));
            const auto found = loaded.value()->find(before + behind, before.size(), syntax.value());
            if (!found)
                return Error{
                    Error::Code::NotFound,
                    QCoreApplication::translate("Abbreviations", "There is no abbreviation before the caret.")};
            abbreviation = found->abbreviation;
            const QString whole = before + behind;
            edit.start = from + whole.first(found->start).toUtf8().size();
            edit.end = from + whole.first(found->end).toUtf8().size();
        }
        if (!edits.empty() && edit.start < edits.back().end)
            continue; // Two carets in one abbreviation.
        const AbbreviationChoices choices{
            .syntax = syntax.value(),
            .lineEnd = lineEnd(),
            .indent = options.tabsAsBlanks ? QString(options.tabWidth, u' ') : u"\t"_s,
            .baseIndent = indentAt(edit.start),
        };
        const QString key = QString::number(static_cast<int>(choices.syntax)) + choices.baseIndent + abbreviation;
        if (!known.contains(key)) {
            const Result<ExpandedAbbreviation> expanded = loaded.value()->expand(abbreviation, choices);
            if (!expanded)
                return expanded.error();
            known.insert(key, expanded.value());
        }
        const ExpandedAbbreviation expanded = known.value(key);
        edit.text = expanded.text.toUtf8();
        edit.fields = inBytes(expanded);
        edits.push_back(std::move(edit));
    }
    return edits;
}

/// A selection without the blanks at its ends; of a caret, those of its line.
Abbreviations::Selection Abbreviations::contentOf(const Selection &selection) const
{
    const SciEngine &text = m_parts.rt.engine();
    Selection content = selection;
    if (content.start == content.end) {
        const qsizetype line = text.lineOf(content.start);
        content = {text.lineStart(line), text.lineEnd(line)};
    }
    const QByteArrayView bytes = text.bytes(content.start, content.end);
    qsizetype first = 0;
    qsizetype last = bytes.size();
    while (first < last && isBlank(bytes[first]))
        ++first;
    while (last > first && isBlank(bytes[last - 1]))
        --last;
    return {content.start + first, content.start + last};
}

Abbreviations::Edits Abbreviations::wrappings(const QString &abbreviation, qsizetype most) const
{
    const Result<AbbreviationEngine *> loaded = engine();
    if (!loaded)
        return loaded.error();
    const EditorOptions options = m_parts.rt.options();
    OpenElements reader(rulesOf(m_parts.document.languageRow()));
    std::vector<Edit> edits;
    for (const Selection &selection : selections()) {
        if (static_cast<qsizetype>(edits.size()) >= most)
            break;
        const Selection content = contentOf(selection);
        const Result<AbbreviationSyntax> syntax = syntaxAt(content.start, reader);
        if (!syntax)
            return syntax.error();
        if (syntax.value() == AbbreviationSyntax::StyleSheet || syntax.value() == AbbreviationSyntax::StyleAttribute)
            return Error{Error::Code::Refused,
                         QCoreApplication::translate("Abbreviations", "Only HTML and XML can be wrapped.")};
        if (content.start == content.end)
            return Error{
                Error::Code::NotFound,
                QCoreApplication::translate("Abbreviations", "There is nothing to wrap: select a text first.")};
        if (!edits.empty() && content.start < edits.back().end)
            continue; // Two carets in one line.
        const SciEngine &text = m_parts.rt.engine();
        if (text.lineOf(content.end) - text.lineOf(content.start) >= AbbreviationEngine::mostWrapped)
            return Error{
                Error::Code::TooLarge,
                QCoreApplication::translate("Abbreviations", "Too many lines are selected: %1 at most can be wrapped.")
                    .arg(AbbreviationEngine::mostWrapped)};
        const QString baseIndent = indentAt(content.start);
        const QString wrapped = textOf(content.start, content.end).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        const Result<ExpandedAbbreviation> expanded =
            loaded.value()->expand(abbreviation,
                                   {
                                       .syntax = syntax.value(),
                                       .lineEnd = lineEnd(),
                                       .indent = options.tabsAsBlanks ? QString(options.tabWidth, u' ') : u"\t"_s,
                                       .baseIndent = baseIndent,
                                       .wrapped = withoutSharedIndent((baseIndent + wrapped).split(u'\n')),
                                   });
        if (!expanded)
            return expanded.error();
        edits.push_back({content.start, content.end, expanded.value().text.toUtf8(), inBytes(expanded.value())});
    }
    return edits;
}

/// Puts the texts in, in one undo step, and the carets at their first fields, or behind a text without any. Of a single
/// text the fields are stepped through.
void Abbreviations::apply(std::vector<Edit> edits)
{
    if (edits.empty())
        return;
    CodeMax &rt = m_parts.rt;
    const SciEngine &engine = rt.engine();
    m_steps.end();
    rt.perform([&] {
        engine.send(Sci::SCI_BEGINUNDOACTION);
        qsizetype moved = 0;
        for (Edit &edit : edits) {
            rt.replaceBytes(edit.start + moved, edit.end + moved, edit.text);
            const qsizetype grown = edit.text.size() - (edit.end - edit.start);
            edit.start += moved;
            moved += grown;
            for (TextField &field : edit.fields)
                field = {field.number, field.start + edit.start, field.end + edit.start};
        }
        engine.send(Sci::SCI_ENDUNDOACTION);
        bool isFirst = true;
        for (const Edit &edit : std::as_const(edits)) {
            const qsizetype behind = edit.start + edit.text.size();
            const TextField field = edit.fields.empty() ? TextField{0, behind, behind} : edit.fields.front();
            engine.send(isFirst ? Sci::SCI_SETSELECTION : Sci::SCI_ADDSELECTION, field.end, field.start);
            isFirst = false;
        }
        engine.send(Sci::SCI_SETMAINSELECTION, 0);
        engine.send(Sci::SCI_SCROLLCARET);
    });
    if (edits.size() == 1) {
        Edit &edit = edits.front();
        m_steps.begin(edit.start, edit.start + edit.text.size(), std::move(edit.fields));
    }
}

void Abbreviations::expand()
{
    if (m_parts.rt.isReadOnly())
        return;
    Edits edits = expansions();
    if (edits)
        apply(std::move(edits).value());
    else
        m_parts.notice(edits.error().sentence);
}

void Abbreviations::askForWrapping()
{
    if (m_parts.rt.isReadOnly())
        return;
    // What can't be wrapped at all is said before anything is typed.
    if (const Edits possible = wrappings(u"a"_s, all); !possible) {
        m_parts.notice(possible.error().sentence);
        return;
    }
    if (!m_bar) {
        m_bar = new WrapBar(m_parts.rt);
        connect(m_bar, &WrapBar::edited, this, &Abbreviations::preview);
        connect(m_bar, &WrapBar::accepted, this, &Abbreviations::wrap);
        connect(m_bar, &WrapBar::left, &m_parts.rt, [this] { m_parts.rt.setFocus(); });
    }
    m_bar->open();
}

/// Shows what the first selection would become. The text itself isn't touched.
void Abbreviations::preview()
{
    const QString abbreviation = m_bar->abbreviation();
    if (abbreviation.isEmpty()) {
        m_bar->showResult({});
        return;
    }
    const Edits edits = wrappings(abbreviation, 1);
    if (edits)
        m_bar->showResult(QString::fromUtf8(edits.value().front().text).left(longestPreview));
    else
        m_bar->showProblem(edits.error().sentence);
}

void Abbreviations::wrap()
{
    if (m_bar->abbreviation().isEmpty())
        return;
    Edits edits = wrappings(m_bar->abbreviation(), all);
    if (!edits) {
        m_bar->showProblem(edits.error().sentence);
        return;
    }
    m_bar->hide();
    m_parts.rt.setFocus();
    apply(std::move(edits).value());
}

} // namespace zephira
