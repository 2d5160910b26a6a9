// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/mergefigures.h"

#include "support/eventwait.h"
#include "web/designer/pageedits.h"
#include "web/designer/tokenmatch.h"

#include <QHash>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What touches more lines than this is listed.
constexpr int manyLines = 20;

struct Edit {
    QString name;
    /// Sets the selection; returns whether the page has a place for the edit.
    QString place;
    void (*act)(DesignerBench &bench);
};

/// Functions for the scripts below: words() are the visible texts with a word of some letters, caret() and mark() set the
/// selection in one of them.
const QString helpers = uR"js(
    var words = selector => {
        const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        const texts = [];
        while (walker.nextNode()) {
            const text = walker.currentNode;
            const parent = text.parentElement;
            if (/\w{4}/.test(text.data) && parent.getClientRects().length > 0 && parent.closest(selector)
                && !parent.closest('zephira-mark, select, textarea, button, svg'))
                texts.push(text);
        }
        return texts;
    };
    var mark = (text, length) => {
        if (!text)
            return false;
        const begin = text.data.search(/\w{4}/);
        document.body.focus();
        getSelection().setBaseAndExtent(text, begin + 2 - length, text, begin + 2 + length);
        return true;
    };
    var markWhole = element => {
        if (!element)
            return false;
        document.body.focus();
        getSelection().selectAllChildren(element);
        return true;
    };
)js"_s;

const Edit edits[] = {
    {u"untouched"_s, u"true"_s,
     [](DesignerBench &bench) { bench.ask(u"document.documentElement.append(new Text('')); null"_s); }},
    {u"letter"_s, u"mark(words('body')[0], 0)"_s, [](DesignerBench &bench) { bench.type(u"Z"_s); }},
    {u"bold"_s, u"mark(words('p, li, td')[0], 2)"_s, [](DesignerBench &bench) { bench.run(DesignerCommand::Bold); }},
    {u"Enter"_s, u"mark(words('p')[0], 0)"_s, [](DesignerBench &bench) { bench.press(Qt::Key_Return); }},
    {u"link"_s, u"mark(words('p, li, td').filter(text => !text.parentElement.closest('a'))[0], 2)"_s,
     [](DesignerBench &bench) { bench.run(DesignerCommand::Hyperlink, u"a.html"_s); }},
    {u"row"_s, u"mark(words('td')[0], 0)"_s, [](DesignerBench &bench) { bench.run(DesignerCommand::InsertRow); }},
    {u"paragraph removed"_s, u"markWhole(words('p')[0]?.parentElement.closest('p'))"_s,
     [](DesignerBench &bench) { bench.run(DesignerCommand::Delete); }},
};

class Entities final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return u"?"_s; }
};

bool isWellFormed(const QString &page)
{
    QXmlStreamReader xml(page);
    Entities entities;
    xml.setEntityResolver(&entities);
    while (!xml.atEnd())
        xml.readNext();
    return !xml.hasError();
}

} // namespace

int linesGoneAndCome(const QString &before, const QString &after)
{
    QHash<QString, int> numbers;
    const auto numbered = [&](const QString &text) {
        std::vector<int> list;
        const QStringList lines = text.split(u'\n');
        for (const QString &line : lines) {
            const auto known = numbers.constFind(line);
            const int number = known != numbers.constEnd() ? *known : static_cast<int>(numbers.size());
            numbers.insert(line, number);
            list.push_back(number);
        }
        return list;
    };
    const std::vector<int> first = numbered(before);
    const std::vector<int> second = numbered(after);
    const std::vector<int> partners = partnersIn(first, second, static_cast<int>(numbers.size()));
    const auto paired = static_cast<size_t>(std::ranges::count_if(partners, [](int each) { return each >= 0; }));
    return static_cast<int>(first.size() + second.size() - 2 * paired);
}

int MergeFigures::median(const QString &edit) const
{
    QList<int> sorted = lines.value(edit);
    std::ranges::sort(sorted);
    return sorted.isEmpty() ? 0 : sorted[sorted.size() / 2];
}

QString MergeFigures::table() const
{
    QString text = u"%1 pages; %2 faults; %3 whole pages\n"_s.arg(pages).arg(faults.size()).arg(wholePages.size());
    for (const Edit &edit : edits) {
        const QList<int> list = lines.value(edit.name);
        const int worst = list.isEmpty() ? 0 : *std::ranges::max_element(list);
        text +=
            u"%1: %2 edits, median %3, worst %4\n"_s.arg(edit.name).arg(list.size()).arg(median(edit.name)).arg(worst);
    }
    return text;
}

MergeFigures measureMerges(DesignerBench &bench, const QStringList &pages)
{
    MergeFigures figures;
    DesignerWidget &designer = bench.designer;
    for (const QString &path : pages) {
        ++figures.pages;
        for (const Edit &edit : edits) {
            designer.loadDocument(path);
            const QString source = designer.documentHtml();
            bench.awaitComplete();
            if (!bench.ask(helpers + edit.place).toBool())
                continue;
            edit.act(bench);
            const QString what = edit.name + u" in "_s + path;
            if (!waitUntil([&] { return designer.isDirty(); }, 5000)) {
                figures.faults.append(u"nothing happened: "_s + what);
                continue;
            }
            const QString text = designer.documentHtml();
            const int lines = linesGoneAndCome(source, text);
            figures.lines[edit.name].append(lines);
            if (lines > manyLines)
                figures.wide.append(u"%1 lines: %2"_s.arg(lines).arg(what));
            const EditedTree edited = treeOf(bench, source, text);
            if (edited.isWhole)
                figures.wholePages.append(what);
            if (isWellFormed(source) && !isWellFormed(text))
                figures.faults.append(u"not well-formed any more: "_s + what);
            designer.setDocumentHtml(text);
            bench.awaitComplete();
            if (!edited.isWhole && edited.canBeRead && treeOf(bench, text, text).markup != edited.markup)
                figures.faults.append(u"another page: "_s + what);
        }
    }
    return figures;
}

} // namespace zephira
