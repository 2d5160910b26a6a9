// SPDX-License-Identifier: GPL-3.0-or-later
// syntax_bench: how fast our engine and the editing component's own HTML lexer colour the same whole HTML text, in
// bytes per second.
#include "syntax/languageregistry.h"
#include "syntax/syntaxengine.h"

#include <QApplication>
#include <QByteArray>
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>

#include <vector>

#include <benchmark/benchmark.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype textSize = 10'000'000;

/// A page with markup, prose, entities, comments, scripts and style sheets.
constexpr QByteArrayView page = R"(<!-- a section -->
<h2 id="s1" class="title">Heading of a section</h2>
<p class="text">Some prose with <b>words</b> in <em class="note">other</em> shapes, a <a href="page.html#top"
title="to the top">link</a>, entities &amp; signs &copy; &#8364;, and na&iuml;ve caf&eacute;s.<br>
Another line that is plain text and nothing else, as most lines of most pages are when people write them.
<table border="0" cellpadding="2" cellspacing="0">
  <tr class="row1"><td align="right" width="120">one</td><td align="right" width="20">two</td></tr>
</table>
<script type="text/javascript">
// Adds the content of the list.
function sum(list, limit) {
  var total = 0x1f, name = "a \"name\"";
  for (var i = 0; i < list.length && i < limit; i++) { total += list[i].value * 0.25; } /* done */
  return name + ': ' + total.toFixed(2);
}
</script>
<style type="text/css">
#s1 > a:hover, .row1 td { margin: 4px auto; color: #336699; background: url("img/1.png") no-repeat; }
</style>
<form action="/cgi-bin/order.pl?id=1" method="post"><input type="text" name="field" value="" size="40"></form>
)";

QByteArray text()
{
    return page.toByteArray().repeated(textSize / page.size());
}

void zephiraEngine(benchmark::State &state)
{
    const QByteArray html = text();
    std::vector<unsigned char> styles(static_cast<std::size_t>(html.size()));
    const auto engine = LanguageRegistry().engine(u"HTML"_s);
    for (auto _ : state)
        benchmark::DoNotOptimize(engine->styleRange(html, 0, styles));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * html.size());
}

void scintillaLexer(benchmark::State &state)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 0;
    QApplication application(argc, nullptr);
    QsciScintilla editor;
    QsciLexerHTML lexer;
    editor.setLexer(&lexer);
    const QByteArray html = text();
    editor.SendScintilla(QsciScintilla::SCI_SETUNDOCOLLECTION, 0UL);
    editor.SendScintilla(QsciScintilla::SCI_APPENDTEXT, static_cast<unsigned long>(html.size()), html.constData());
    for (auto _ : state)
        editor.SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * html.size());
}

BENCHMARK(zephiraEngine)->Unit(benchmark::kMillisecond);
BENCHMARK(scintillaLexer)->Unit(benchmark::kMillisecond);

} // namespace
