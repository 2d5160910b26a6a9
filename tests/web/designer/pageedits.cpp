// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/pageedits.h"

#include "support/eventwait.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString helpers = uR"js(
    var $ = selector => document.querySelector(selector);
    var textWith = word => {
        const walker = document.createTreeWalker(document, NodeFilter.SHOW_TEXT);
        while (walker.nextNode() && !walker.currentNode.data.includes(word));
        return walker.currentNode;
    };
    var letter = word => {
        const text = textWith(word);
        text.insertData(text.data.indexOf(word) + word.length, 'X');
    };
    var select = word => {
        const text = textWith(word);
        const begin = text.data.indexOf(word);
        getSelection().setBaseAndExtent(text, begin, text, begin + word.length);
    };
    var run = (command, value) => {
        document.execCommand('styleWithCSS', false, false);
        document.execCommand(command, false, value);
    };
)js"_s;

/// One edit, given random numbers. It keeps away from where an edit leaves what no markup can be read as.
const QString randomEdit = uR"js((numbers => {
    const pick = list => list[Math.floor(numbers.shift() * list.length)];
    const isFlesh = node => !node.parentElement.closest(
        'script, style, title, textarea, select, noscript, xmp, zephira-mark, svg, head, iframe, plaintext');
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    const texts = [];
    while (walker.nextNode()) {
        if (/\w/.test(walker.currentNode.data) && isFlesh(walker.currentNode))
            texts.push(walker.currentNode);
    }
    const elements = selector => [...document.body.querySelectorAll(selector)].filter(isFlesh);
    const edits = [
        () => { const text = pick(texts); text?.insertData(Math.floor(numbers.shift() * text.length), 'z'); },
        () => { const text = pick(texts); text?.deleteData(Math.floor(numbers.shift() * text.length), 2); },
        () => { const text = pick(texts); text?.appendData(' \u00e9 & < > "'); },
        () => {
            const text = pick(texts);
            if (!text)
                return;
            const range = new Range();
            range.setStart(text, 0);
            range.setEnd(text, Math.max(1, Math.floor(numbers.shift() * text.length)));
            range.surroundContents(document.createElement('b'));
        },
        () => { pick(elements('p, li, td, th, tr, h1, b, i, a, span, hr, img'))?.remove(); },
        () => { pick(elements('p, li, tr, div, h1'))?.setAttribute('class', 'new "one"'); },
        () => { const element = pick(elements('[class], [align], [title], [id]')); element?.removeAttribute(element.attributes[0].name); },
        () => { const one = pick(elements('p, li, tr, td, hr')); one?.after(one.cloneNode(true)); },
        () => { const one = pick(elements('p, h1, ul, table, hr')); const other = pick(elements('p, h1, ul, table')); if (one && other && one.parentNode === other.parentNode) other.before(one); },
        () => { const one = pick(elements('b, i, a, span, font')); one?.replaceWith(...one.childNodes); },
        () => {
            const one = pick(elements('p'));
            if (!one?.lastChild)
                return;
            const twin = one.cloneNode(false);
            one.after(twin);
            twin.append(one.lastChild);
        },
        () => { pick(elements('p, td, li'))?.append(document.createElement('br')); },
    ];
    pick(edits)();
}))js"_s;

const QStringList pieces{u"<p class=\"a\">text one</p>"_s,
                         u"<P ALIGN=left>Text two\r\n"_s,
                         u"<% a %>"_s,
                         u"<?php b ?>"_s,
                         u"<!--#include file=\"c\" -->"_s,
                         u"<cfif d gt 1>"_s,
                         u"</cfif>"_s,
                         u"<p title=\"<%= e %>\">text three"_s,
                         u"<TABLE><TR><TD>cell one<TD>cell two\r\n<TR><TD>cell three"_s,
                         u"<table border=1><tr <?= f ?>><td>cell</td></tr>"_s,
                         u"</table>"_s,
                         u"<!-- g -->"_s,
                         u"caf&eacute; &copy 1 &amp; &nbsp;"_s,
                         u"<ul><li>item one<li>item <b>two</ul>"_s,
                         u"<script>if (h < 1 && i) j();</script>"_s,
                         u"<style>k{}</style>"_s,
                         u"<textarea>\n\nm</textarea>"_s,
                         u"<pre>\r\n\r\nn  o</pre>"_s,
                         u"<svg><title>p</title><path d='q'/></svg>"_s,
                         u"<o:p></o:p>"_s,
                         u"<![if IE]>"_s,
                         u"<b>bold <i>both</b> slanted</i> "_s,
                         u"<a name=r />anchor "_s,
                         u"<a href=s>link</a>"_s,
                         u"</form>"_s,
                         u"<form action=t>"_s,
                         u"<select><option>u<option selected>v</select>"_s,
                         u"<h1 id=w ID=x>heading</h1>"_s,
                         u"</p>"_s,
                         u"<div>in <span title='\"'>a span</span> "_s,
                         u"</div>"_s,
                         u"<dl><dt>term<dd>meaning</dl>"_s,
                         u"<img src=y alt=\"\" / ><br/>"_s,
                         u"<hr noshade>"_s,
                         u"\r\n"_s};
const QStringList shells{
    u"%1"_s, u"<html><body>%1</body></html>\r\n"_s,
    u"<!DOCTYPE html>\r\n<HTML>\r\n<HEAD><TITLE>t</TITLE></HEAD>\r\n<BODY BGCOLOR=white>\r\n%1\r\n</BODY>\r\n</HTML>\r\n"_s,
    u"<html><head><title>t</title></head>%1"_s};

/// Drops, doubles or moves that share of the tags.
QString damaged(const QString &page, QRandomGenerator &random, int damage)
{
    static const QRegularExpression tag(u"</?[a-zA-Z][^<>]*>"_s);
    QString result;
    QString moved;
    qsizetype done = 0;
    for (auto match = tag.globalMatch(page); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        result += QStringView(page).sliced(done, found.capturedStart() - done);
        done = found.capturedEnd();
        if (random.bounded(100) >= damage) {
            result += found.captured();
            continue;
        }
        const int kind = random.bounded(3);
        if (kind == 1)
            result += found.captured() + found.captured();
        else if (kind == 2)
            result += std::exchange(moved, found.captured());
    }
    return result + page.sliced(done);
}

} // namespace

QString editScript(const QString &calls)
{
    return helpers + calls;
}

QString randomPage(QRandomGenerator &random, int damage)
{
    QString body;
    for (int count = random.bounded(3, 25); count > 0; --count)
        body += pieces[random.bounded(pieces.size())];
    return damaged(shells[random.bounded(shells.size())].arg(body), random, damage);
}

EditedTree treeOf(DesignerBench &bench, const QString &source, const QString &written)
{
    const QString prefix = bench.ask(u"zephiraDesigner.state().state.page"_s).toString();
    EditedTree tree;
    tree.markup = bench.ask(u"zephiraDesigner.text().value.text"_s).toString();
    tree.isWhole = written != source && written == PageRoundTrip(source, prefix).fromEngine(tree.markup);
    tree.canBeRead =
        bench
            .ask(
                u"new DOMParser().parseFromString((document.doctype ? new XMLSerializer().serializeToString("
                "document.doctype) : '') + zephiraDesigner.text().value.text, 'text/html').documentElement.outerHTML"_s)
            .toString()
        == tree.markup;
    static const QRegularExpression element(u"<zephira-mark mark=\"(\\w+)\"[^>]*>.*?</zephira-mark>"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression mark(u"zs[0-9a-f]+x[0-9]+([scav])"_s);
    static const QRegularExpression own(u" (zs[0-9a-f]+t=\"\"|nomodule=\"zs[0-9a-f]+\")"_s);
    tree.markup.replace(element, u"<!--\\1-->"_s);
    tree.markup.replace(mark, u"mark-\\1"_s);
    tree.markup.remove(own);
    return tree;
}

RandomEdit editAtRandom(DesignerBench &bench, const QString &page, QRandomGenerator &random, int edits)
{
    RandomEdit outcome;
    bench.load(page);
    const QString before = treeOf(bench, page, page).markup;
    for (int edit = 0; edit < edits; ++edit) {
        QStringList numbers;
        for (int number = 0; number < 4; ++number)
            numbers.append(QString::number(random.generateDouble(), 'f', 6));
        bench.ask(randomEdit + u"([%1]); null"_s.arg(numbers.join(u',')));
    }
    bench.ask(u"document.documentElement.append(new Text('')); null"_s);
    if (!waitUntil([&] { return bench.designer.isDirty(); }, DesignerBench::patience)) {
        outcome.fault = u"not dirty"_s;
        return outcome;
    }
    outcome.text = bench.designer.documentHtml();
    const EditedTree edited = treeOf(bench, page, outcome.text);
    outcome.isWhole = edited.isWhole;
    bench.load(outcome.text);
    const QString result = treeOf(bench, outcome.text, outcome.text).markup;
    if (edited.canBeRead && !edited.isWhole && result != edited.markup)
        outcome.fault = page + u"\n-- was written as --\n"_s + outcome.text + u"\n-- should be --\n"_s + edited.markup
            + u"\n-- is --\n"_s + result;
    if (before == edited.markup && outcome.text != page)
        outcome.fault = page + u"\n-- untouched, was written as --\n"_s + outcome.text;
    return outcome;
}

} // namespace zephira
