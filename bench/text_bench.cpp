// SPDX-License-Identifier: GPL-3.0-or-later
// text_bench SMALL LARGE: every text function, with a file and with one of ten times its size. This reveals functions
// whose time grows faster than their input.
#include "files/lineends.h"
#include "files/privateprofile.h"
#include "files/textfile.h"
#include "files/textlines.h"
#include "panes/customtabfile.h"
#include "panes/outline.h"
#include "panes/sottree.h"
#include "syntax/foldlevels.h"
#include "syntax/languageregistry.h"
#include "syntax/syntaxengine.h"
#include "tags/tagfile.h"
#include "tools/fonttags.h"
#include "tools/imagelinks.h"
#include "tools/linktargets.h"
#include "tools/richtohtml.h"
#include "tools/sourceformatter.h"
#include "tools/spelling/customdictionary.h"
#include "tools/spelling/words.h"
#include "tools/textpage.h"
#include "tools/tidyplaces.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <functional>
#include <span>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The page's tables one after the other, repeated until they fill a page. Because all their elements are closed, the
/// lines are indented by a few tabs only; otherwise each line would be indented by one tab more than the previous one,
/// and the result would grow with the square of the page's size.
QString tablesOf(const QString &page)
{
    const QString last = u"</table>"_s;
    QString tables;
    for (qsizetype begin = page.indexOf(u"<table"); begin >= 0; begin = page.indexOf(u"<table", begin + 1))
        tables += page.sliced(begin, page.indexOf(last, begin) + last.size() - begin);
    while (!tables.isEmpty() && tables.size() < page.size())
        tables += tables.first(qMin(tables.size(), page.size() - tables.size()));
    return tables;
}

/// One input, in the various forms that the functions take.
struct Input {
    explicit Input(const QByteArray &page)
        : utf8(page)
        , lf(QByteArray(page).replace("\r\n", "\n"))
        , text(QString::fromUtf8(page))
        , tables(tablesOf(text))
        , windows1252(QByteArray(page).replace("\xc3\xbc", "\xfc"))
        , styles(static_cast<std::size_t>(page.size()))
    {
        // A profile with as many lines as fit its size, in sections of a hundred.
        for (int line = 0; profile.size() < page.size(); ++line)
            profile += line % 100 == 0 ? "[section" + QByteArray::number(line / 100) + "]\r\n"
                                       : "key" + QByteArray::number(line) + "=a value of some length\r\n";
        // Every third line is a title, and the depths go up and down.
        lines = textLines(text);
        for (qsizetype line = 0; line < lines.size(); ++line) {
            tree.append(QString(line % 4, u'\t') + lines[line].trimmed());
            if (line % 3 == 0)
                lines[line].prepend(u"#EXTINF,"_s);
        }
    }

    QByteArray utf8;
    QByteArray lf;
    QString text;
    QString tables;
    QStringList lines;
    QStringList tree;
    QByteArray windows1252;
    QByteArray profile;
    std::vector<unsigned char> styles;
};

struct TextFunction {
    const char *name;
    std::function<void(Input &)> run;
};

const LanguageRegistry &languages()
{
    static const LanguageRegistry registry;
    return registry;
}

void colour(Input &input, const QString &language)
{
    benchmark::DoNotOptimize(languages().engine(language)->styleRange(input.utf8, 0, input.styles));
}

/// Folds the text according to its last colouring.
void fold(Input &input, const QString &language)
{
    const FoldRules &rules = languages().engine(language)->foldRules();
    FoldState state;
    for (qsizetype start = 0; start < input.utf8.size();) {
        const qsizetype lineFeed = input.utf8.indexOf('\n', start);
        const qsizetype end = lineFeed < 0 ? input.utf8.size() : lineFeed + 1;
        const auto at = static_cast<std::size_t>(start);
        const auto length = static_cast<std::size_t>(end - start);
        benchmark::DoNotOptimize(rules.fold(QByteArrayView(input.utf8).sliced(start, end - start),
                                            std::span(input.styles).subspan(at, length), state));
        start = end;
    }
}

void outline(Input &input)
{
    std::vector<OutlineLeaf> leaves;
    // A title far from the start would end the scan; the page's own title is at its top.
    scanOutline(input.text, [&leaves](OutlineLeaf &&leaf) { leaves.push_back(std::move(leaf)); });
    benchmark::DoNotOptimize(leaves);
}

void walkWords(Input &input)
{
    for (TextPlace word = nextWord(input.text, 0); word.length > 0; word = nextWord(input.text, word.end()))
        benchmark::DoNotOptimize(word);
}

/// A message for every other line.
void findPlaces(Input &input)
{
    std::vector<TidyMessage> messages;
    for (int line = 0; line < input.lines.size(); line += 2)
        messages.push_back({.line = line, .column = 20});
    toTextPlaces(messages, input.lf, false);
    benchmark::DoNotOptimize(messages);
}

/// Lines of text in turns bold and not.
void richToMarkup(Input &input)
{
    std::vector<FormattedRun> runs;
    for (const QString &line : std::as_const(input.lines)) {
        CharacterFormat format;
        format.bold = runs.size() % 2 == 0;
        runs.push_back({line, format});
    }
    benchmark::DoNotOptimize(richToHtml(runs));
}

const TextFunction functions[] = {
    {"decodeText UTF-8", [](Input &input) { benchmark::DoNotOptimize(decodeText(input.utf8)); }},
    {"decodeText Windows-1252", [](Input &input) { benchmark::DoNotOptimize(decodeText(input.windows1252)); }},
    {"encodeText UTF-8", [](Input &input) { benchmark::DoNotOptimize(encodeText(input.utf8, {})); }},
    {"encodeText UTF-16",
     [](Input &input) {
         benchmark::DoNotOptimize(encodeText(input.utf8, {Encoding::Utf16LE, true, LineEnds::CrLf}));
     }},
    {"lineEndsOf", [](Input &input) { benchmark::DoNotOptimize(lineEndsOf(input.utf8)); }},
    {"toLineEnds", [](Input &input) { benchmark::DoNotOptimize(toLineEnds(input.lf, LineEnds::CrLf)); }},
    {"toCrLf", [](Input &input) { benchmark::DoNotOptimize(toCrLf(input.text)); }},
    {"profileValue", [](Input &input) { benchmark::DoNotOptimize(profileValue(input.profile, u"none"_s, u"key"_s)); }},
    {"withProfileValue",
     [](Input &input) { benchmark::DoNotOptimize(withProfileValue(input.profile, u"none"_s, u"key"_s, u"value"_s)); }},
    {"profileEntries", [](Input &input) { benchmark::DoNotOptimize(profileEntries(input.profile)); }},
    {"textLines", [](Input &input) { benchmark::DoNotOptimize(textLines(input.text)); }},
    {"tagCaptions", [](Input &input) { benchmark::DoNotOptimize(tagCaptions(input.lines)); }},
    {"parseCustomTab", [](Input &input) { benchmark::DoNotOptimize(parseCustomTab(input.lines)); }},
    {"parseSotTree", [](Input &input) { benchmark::DoNotOptimize(parseSotTree(input.tree)); }},
    {"colour HTML", [](Input &input) { colour(input, u"HTML"_s); }},
    {"colour C/C++", [](Input &input) { colour(input, u"C/C++"_s); }},
    {"colour XML", [](Input &input) { colour(input, u"XML"_s); }},
    {"colour Basic", [](Input &input) { colour(input, u"Basic"_s); }},
    {"colour Pascal", [](Input &input) { colour(input, u"Pascal"_s); }},
    {"colour Java", [](Input &input) { colour(input, u"Java"_s); }},
    {"fold HTML", [](Input &input) { fold(input, u"HTML"_s); }},
    {"outline", [](Input &input) { outline(input); }},
    {"LinksFromHTML",
     [](Input &input) {
         QStringList urls;
         benchmark::DoNotOptimize(LinksFromHTML(urls, input.text));
     }},
    {"linkTargets", [](Input &input) { benchmark::DoNotOptimize(linkTargets(input.text)); }},
    {"linksPage", [](Input &input) { benchmark::DoNotOptimize(linksPage(input.lines)); }},
    {"richToHtml", richToMarkup},
    {"textPage", [](Input &input) { benchmark::DoNotOptimize(textPage(input.utf8, {})); }},
    {"withoutFontTags", [](Input &input) { benchmark::DoNotOptimize(withoutFontTags(input.lf)); }},
    {"toTextPlaces", findPlaces},
    {"Compact", [](Input &input) { benchmark::DoNotOptimize(Compact(input.text)); }},
    {"Simple", [](Input &input) { benchmark::DoNotOptimize(Simple(input.text)); }},
    {"Hierarchical", [](Input &input) { benchmark::DoNotOptimize(Hierarchical(input.tables)); }},
    {"nextWord", walkWords},
    {"readCustomDictionary", [](Input &input) { benchmark::DoNotOptimize(readCustomDictionary(input.profile)); }},
};

/// Evicts the inputs from the processor's caches. Otherwise only the small one would be read from there, which would
/// distort the comparison.
void emptyCaches()
{
    static std::vector<unsigned char> other(std::size_t{64} << 20);
    for (std::size_t i = 0; i < other.size(); i += 64)
        benchmark::DoNotOptimize(++other[i]);
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (argc != 3)
        return 2;
    // Freed memory stays with the process. Otherwise large blocks would come from the system anew each time, and the
    // figures would include its page faults.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    std::vector<Input> inputs;
    for (const char *name : {argv[1], argv[2]}) {
        QFile file(QFile::decodeName(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        inputs.emplace_back(file.readAll());
    }
    for (const TextFunction &function : functions) {
        for (const auto &size : {std::pair("/small", &inputs[0]), std::pair("/large", &inputs[1])}) {
            benchmark::RegisterBenchmark((std::string(function.name) + size.first).c_str(),
                                         [&function, input = size.second](benchmark::State &state) {
                                             for (auto _ : state) {
                                                 state.PauseTiming();
                                                 emptyCaches();
                                                 state.ResumeTiming();
                                                 function.run(*input);
                                             }
                                         })
                ->Unit(benchmark::kMillisecond)
                ->Iterations(5);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
