// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/gotosymbol.h"

#include "assist/documentsymbols.h"
#include "assist/texthelpers.h"
#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/fuzzymatch.h"
#include "editor/codemax.h"
#include "widgets/pickpopup.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// The symbols of a document, and those of them that were found last.
class SymbolList
{
public:
    SymbolList(CodeMax &rt, int language) : m_rt(&rt)
    {
        const SciEngine &engine = rt.engine();
        m_symbols = documentSymbols(engine.bytes(0, engine.length()), language, rt.path());
        m_names.reserve(m_symbols.size());
        for (const DocumentSymbol &symbol : m_symbols)
            m_names.emplace_back(symbol.name);
    }

    std::vector<PickRow> search(const QString &typed)
    {
        const FuzzyPattern pattern(typed);
        m_found.clear();
        for (std::size_t i = 0; i < m_symbols.size(); ++i) {
            if (const std::optional<FuzzyMatch> match = pattern.match(m_names[i]))
                m_found.push_back({i, *match});
        }
        std::ranges::stable_sort(m_found, [](const Found &a, const Found &b) { return a.match.score > b.match.score; });
        std::vector<PickRow> rows;
        rows.reserve(m_found.size());
        for (const Found &found : m_found)
            rows.push_back(rowOf(found));
        return rows;
    }

    void goTo(int row) const
    {
        if (!m_rt)
            return;
        const qsizetype position = m_symbols[m_found[static_cast<std::size_t>(row)].symbol].position;
        m_rt->perform([&] {
            const SciEngine &engine = m_rt->engine();
            engine.send(Sci::SCI_ENSUREVISIBLEENFORCEPOLICY, engine.lineOf(position));
            engine.send(Sci::SCI_GOTOPOS, position);
            engine.send(Sci::SCI_VERTICALCENTRECARET);
        });
    }

private:
    struct Found {
        std::size_t symbol = 0;
        FuzzyMatch match;
    };

    PickRow rowOf(const Found &found) const
    {
        const DocumentSymbol &symbol = m_symbols[found.symbol];
        const qsizetype line = m_rt->engine().lineOf(symbol.position) + 1;
        return {symbol.name.isEmpty() ? QCoreApplication::translate("Symbols", "(empty)") : symbol.name,
                found.match.places, symbolKind(symbol), QString::number(line)};
    }

    QPointer<CodeMax> m_rt;
    DocumentSymbols m_symbols;
    std::vector<FuzzyText> m_names;
    std::vector<Found> m_found;
};

} // namespace

void goToSymbol(TextHelpers &helpers)
{
    CodeMax &rt = helpers.rt();
    const auto list = std::make_shared<SymbolList>(rt, helpers.context().document.languageRow());
    PickPopup::of(*rt.window())
        .open({QCoreApplication::translate("Symbols", "Symbols of the document"),
               QCoreApplication::translate("Symbols", "Search for a heading, an id, a rule or a function"),
               QCoreApplication::translate("Symbols", "Nothing in the document is called so"),
               [list](const QString &typed) { return list->search(typed); }, [list](int row) { list->goTo(row); }});
}

} // namespace zephira
