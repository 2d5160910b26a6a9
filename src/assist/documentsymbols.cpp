// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/documentsymbols.h"

#include "assist/markupsymbols.h"
#include "assist/scriptsymbols.h"
#include "assist/stylesymbols.h"
#include "core/languages.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace zephira {

DocumentSymbols documentSymbols(QByteArrayView text, int row, const QString &path)
{
    if (path.endsWith(u".vbs", Qt::CaseInsensitive))
        return scriptSymbols(text, ScriptLanguage::Basic);
    switch (row) {
    case language::CCpp:
        return scriptSymbols(text, ScriptLanguage::C);
    case language::Perl:
        return scriptSymbols(text, ScriptLanguage::Perl);
    case language::Basic:
        return scriptSymbols(text, ScriptLanguage::Basic);
    case language::Pascal:
        return scriptSymbols(text, ScriptLanguage::Pascal);
    case language::JavaScript:
        return scriptSymbols(text, ScriptLanguage::JavaScript);
    case language::StyleSheets:
        return styleSymbols(text);
    case language::Sql:
        return scriptSymbols(text, ScriptLanguage::Sql);
    default:
        return markupSymbols(text);
    }
}

QString symbolKind(const DocumentSymbol &symbol)
{
    switch (symbol.kind) {
    case DocumentSymbol::Kind::Heading:
        return QCoreApplication::translate("Symbols", "Heading %1").arg(symbol.level);
    case DocumentSymbol::Kind::Id:
        return QCoreApplication::translate("Symbols", "Id");
    case DocumentSymbol::Kind::Rule:
        return QCoreApplication::translate("Symbols", "Rule");
    case DocumentSymbol::Kind::Function:
        return QCoreApplication::translate("Symbols", "Function");
    case DocumentSymbol::Kind::Class:
        return QCoreApplication::translate("Symbols", "Class");
    }
    return {};
}

} // namespace zephira
