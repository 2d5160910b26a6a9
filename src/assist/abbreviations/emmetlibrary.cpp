// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/emmetlibrary.h"

#include <QCoreApplication>
#include <QResource>
#include <QScopeGuard>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString script(const QString &name)
{
    const QResource resource(u":/abbreviations/"_s + name);
    return QString::fromUtf8(resource.uncompressedData());
}

/// The library's names of the syntaxes, and one of ours.
QString nameOf(AbbreviationSyntax syntax)
{
    switch (syntax) {
    case AbbreviationSyntax::Xhtml:
        return u"xhtml"_s;
    case AbbreviationSyntax::Xml:
        return u"xml"_s;
    case AbbreviationSyntax::StyleSheet:
        return u"css"_s;
    case AbbreviationSyntax::StyleAttribute:
        return u"inline"_s;
    default:
        return u"html"_s;
    }
}

Error notUnderstood(const QString &abbreviation)
{
    return {
        Error::Code::Malformed,
        QCoreApplication::translate("Abbreviations", "The abbreviation “%1” can't be understood.").arg(abbreviation)};
}

} // namespace

bool EmmetLibrary::load()
{
    if (m_library.isObject())
        return true;
    // The engine's compiler has a remark about a variable of the library, which is none of the user's business.
    const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const auto restore = qScopeGuard([usual] { qInstallMessageHandler(usual); });
    m_engine = std::make_unique<QJSEngine>();
    m_library = m_engine->evaluate(u"(function(){var exports={};"_s + script(u"emmet.cjs"_s)
                                   + u"\n;return (function(){"_s + script(u"emmetglue.js"_s) + u"\n})()})()"_s);
    return m_library.isObject() && !m_library.isError();
}

QJSValue EmmetLibrary::call(const QString &function, const QJSValueList &arguments)
{
    return load() ? m_library.property(function).call(arguments) : QJSValue();
}

std::optional<FoundAbbreviation> EmmetLibrary::find(const QString &line, qsizetype caret, AbbreviationSyntax syntax)
{
    // A very long line is looked at only near the caret.
    const qsizetype from = std::max<qsizetype>(0, caret - 2 * longest);
    const QString near = line.sliced(from, std::min(line.size() - from, 2 * longest + 16));
    const QJSValue found = call(u"find"_s, {near, static_cast<int>(caret - from), nameOf(syntax)});
    if (!found.isArray() || found.property(u"length"_s).toInt() == 0)
        return {};
    return FoundAbbreviation{found.property(0).toString(), from + found.property(1).toInt(),
                             from + found.property(2).toInt()};
}

Result<ExpandedAbbreviation> EmmetLibrary::expand(const QString &abbreviation, const AbbreviationChoices &choices)
{
    if (!load())
        return Error{
            Error::Code::Failed,
            QCoreApplication::translate("Abbreviations", "The library that expands abbreviations can't be read.")};
    if (abbreviation.size() > longest)
        return Error{
            Error::Code::TooLarge,
            QCoreApplication::translate("Abbreviations", "The abbreviation is too long: it may have %1 characters.")
                .arg(longest)};
    if (choices.wrapped.size() > mostWrapped)
        return Error{
            Error::Code::TooLarge,
            QCoreApplication::translate("Abbreviations", "Too many lines are selected: %1 at most can be wrapped.")
                .arg(mostWrapped)};
    const int most = std::max(mostRepeats, static_cast<int>(choices.wrapped.size()));
    const QJSValue made = call(u"expand"_s,
                               {abbreviation, nameOf(choices.syntax), choices.lineEnd, choices.indent,
                                choices.baseIndent, m_engine->toScriptValue(choices.wrapped), most});
    if (!made.isArray())
        return notUnderstood(abbreviation);
    if (made.property(u"length"_s).toInt() == 0)
        return Error{Error::Code::TooLarge,
                     QCoreApplication::translate(
                         "Abbreviations", "The abbreviation “%1” makes too much: it may repeat elements %2 times.")
                         .arg(abbreviation)
                         .arg(most)};
    ExpandedAbbreviation expanded{made.property(0).toString(), {}};
    if (expanded.text.isEmpty())
        return notUnderstood(abbreviation);
    const QJSValue fields = made.property(1);
    const int numbers = fields.property(u"length"_s).toInt();
    for (quint32 i = 0; i + 2 < static_cast<quint32>(numbers); i += 3)
        expanded.fields.push_back(
            {fields.property(i).toInt(), fields.property(i + 1).toInt(), fields.property(i + 2).toInt()});
    std::ranges::sort(expanded.fields, {}, &AbbreviationField::start);
    return expanded;
}

} // namespace zephira
