// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/corpus.h"
#include "syntax/styled.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <functional>
#include <map>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Records every line start, and ends the run when `until` says so.
class Recorder final : public LineStateSink
{
public:
    std::function<bool(qsizetype, LineState)> until;
    std::map<qsizetype, LineState> states;

    bool lineStart(qsizetype offset, LineState state) override
    {
        if (until && until(offset, state))
            return false;
        states[offset] = state;
        return true;
    }
};

struct Styled {
    std::vector<unsigned char> styles;
    std::map<qsizetype, LineState> states; ///< By the byte offset of the line's start.
};

Styled styleAll(const SyntaxEngine &engine, const QByteArray &text)
{
    Styled result{std::vector<unsigned char>(static_cast<std::size_t>(text.size())), {}};
    Recorder recorder;
    const StyledRange range = engine.styleRange(text, 0, result.styles, recorder);
    Q_ASSERT(range.end == text.size());
    result.states = recorder.states;
    result.states[0] = 0;
    return result;
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = corpusLanguages();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

} // namespace

/// Styling in parts: styling any part of a text, starting with the state at the end of the line before, gives the same
/// as styling all of it.
class TstLineStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lineStartsAreReported_data();
    void lineStartsAreReported();
    void theSinkEndsTheRun();
    void nothingToStyle();
    void lineEndsHaveTheStyleThatCrossesThem_data();
    void lineEndsHaveTheStyleThatCrossesThem();
    void restartAtAnyLine_data() { addLanguages(); }
    void restartAtAnyLine();
    void editsRestyleUntilTheStatesAgree_data() { addLanguages(); }
    void editsRestyleUntilTheStatesAgree();
    void anEditThatChangesNothingEndsAtTheNextLine();
    void anyBytesInAnyState_data() { addLanguages(); }
    void anyBytesInAnyState();
    void charactersAreNeverSplit_data() { addLanguages(); }
    void charactersAreNeverSplit();
    void longLinesTakeLinearTime_data();
    void longLinesTakeLinearTime();
    void manyCarriageReturnsTakeLinearTime();
};

void TstLineStates::lineStartsAreReported_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<int>>("starts");

    QTest::newRow("line feeds") << QByteArray("a\nb\n\nc") << QList<int>{2, 4, 5};
    QTest::newRow("pairs") << QByteArray("a\r\nb\r\n") << QList<int>{3, 6};
    QTest::newRow("carriage returns") << QByteArray("a\rb\r\rc\r") << QList<int>{2, 4, 5, 7};
    QTest::newRow("mixed") << QByteArray("\n\r\r\n\r\n\n\r") << QList<int>{1, 2, 4, 6, 7, 8};
    QTest::newRow("one line") << QByteArray("abc") << QList<int>{};
    QTest::newRow("other line separators are text") << QByteArray("a\xe2\x80\xa8"
                                                                  "b\x0c"
                                                                  "c\xc2\x85")
                                                    << QList<int>{};
}

void TstLineStates::lineStartsAreReported()
{
    QFETCH(QByteArray, text);
    QFETCH(QList<int>, starts);
    std::vector<unsigned char> styles(static_cast<std::size_t>(text.size()));
    Recorder recorder;
    const StyledRange range = engineOf(u"C/C++"_s).styleRange(text, 0, styles, recorder);
    QCOMPARE(range.end, text.size());
    QList<int> reported;
    for (const auto &[offset, state] : recorder.states)
        reported.append(static_cast<int>(offset));
    QCOMPARE(reported, starts);
}

void TstLineStates::theSinkEndsTheRun()
{
    const QByteArray text = "int a\nint b\nint c\n";
    std::vector<unsigned char> styles(static_cast<std::size_t>(text.size()), 99);
    Recorder recorder;
    recorder.until = [](qsizetype offset, LineState) { return offset == 12; };
    const StyledRange range = engineOf(u"C/C++"_s).styleRange(text, 0, styles, recorder);
    QCOMPARE(range.end, 12);
    QCOMPARE(range.state, LineState{0});
    QCOMPARE(styles[11], 0);
    QCOMPARE(styles[12], 99);
}

void TstLineStates::nothingToStyle()
{
    const StyledRange range = engineOf(u"HTML"_s).styleRange({}, 0x1234, {});
    QCOMPARE(range.end, 0);
    QCOMPARE(range.state, LineState{0x1234});
}

void TstLineStates::lineEndsHaveTheStyleThatCrossesThem_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("letters");

    QTest::newRow("text") << u"C/C++"_s << QByteArray("a\r\n") << QByteArray("000");
    QTest::newRow("line comment") << u"C/C++"_s << QByteArray("//\r\n") << QByteArray("5500");
    QTest::newRow("comment") << u"C/C++"_s << QByteArray("/*\r\n*/\n") << QByteArray("5555550");
    QTest::newRow("string") << u"C/C++"_s << QByteArray("\"a\n\"b\\\nc\"\n") << QByteArray("6606666660");
    QTest::newRow("template") << u"Java"_s << QByteArray("`\n`\n") << QByteArray("6660");
    QTest::newRow("tag") << u"HTML"_s << QByteArray("<p\n>\n") << QByteArray("39730");
    QTest::newRow("value") << u"HTML"_s << QByteArray("<p id=\"\n\">\n") << QByteArray("397aa366630");
    QTest::newRow("markup comment") << u"HTML"_s << QByteArray("<!--\n-->\n") << QByteArray("555555550");
    QTest::newRow("server block") << u"HTML"_s << QByteArray("<p <% \n%>\n") << QByteArray("3973300337");
    QTest::newRow("script") << u"HTML"_s << QByteArray("<style>\n/*\n*/") << QByteArray("3999993055555");
}

void TstLineStates::lineEndsHaveTheStyleThatCrossesThem()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, letters);
    QCOMPARE(byteLetters(engineOf(language), text), letters);
}

void TstLineStates::restartAtAnyLine()
{
    QFETCH(QString, language);
    const SyntaxEngine &engine = engineOf(language);
    std::mt19937 dice(1);
    for (int round = 0; round < 400; ++round) {
        const QByteArray text = corpusText(dice, 60);
        const Styled whole = styleAll(engine, text);
        for (const qsizetype start : lineStartsOf(text)) {
            QVERIFY(whole.states.contains(start));
            const auto part = stylesOf(engine, QByteArrayView(text).sliced(start), whole.states.at(start));
            QVERIFY2(std::equal(part.begin(), part.end(), whole.styles.begin() + start, whole.styles.end()),
                     text.toPercentEncoding(" <>/").constData());
        }
    }
}

void TstLineStates::editsRestyleUntilTheStatesAgree()
{
    QFETCH(QString, language);
    const SyntaxEngine &engine = engineOf(language);
    std::mt19937 dice(2);
    qsizetype restyled = 0;
    qsizetype total = 0;
    for (int round = 0; round < 1000; ++round) {
        const QByteArray before = corpusText(dice, 120);
        const Styled old = styleAll(engine, before);
        const std::vector<qsizetype> starts = lineStartsOf(before);
        const std::size_t line = dice() % starts.size();
        const qsizetype begin = starts[line];
        const qsizetype end = line + 1 < starts.size() ? starts[line + 1] : before.size();
        QByteArray replacement = corpusText(dice, 4);
        // A line feed after a carriage return would belong to the line above.
        while (begin > 0 && before[begin - 1] == '\r' && replacement.startsWith('\n'))
            replacement.remove(0, 1);
        if (begin > 0 && before[begin - 1] == '\r' && replacement.isEmpty())
            replacement = "x";
        const QByteArray after = before.first(begin) + replacement + before.sliced(end);
        const qsizetype shift = replacement.size() - (end - begin);

        // As in the editor: from the changed line to the first old line that begins with the same state as before.
        Recorder recorder;
        recorder.until = [&](qsizetype offset, LineState state) {
            const auto known = old.states.find(begin + offset - shift);
            return offset >= replacement.size() && known != old.states.end() && known->second == state;
        };
        std::vector<unsigned char> styles(old.styles.begin(), old.styles.begin() + begin);
        std::vector<unsigned char> part(static_cast<std::size_t>(after.size() - begin));
        const StyledRange range =
            engine.styleRange(QByteArrayView(after).sliced(begin), old.states.at(begin), part, recorder);
        styles.insert(styles.end(), part.begin(), part.begin() + range.end);
        styles.insert(styles.end(), old.styles.begin() + begin + range.end - shift, old.styles.end());
        QVERIFY2(styles == styleAll(engine, after).styles, after.toPercentEncoding(" <>/").constData());
        restyled += range.end;
        total += after.size() - begin;
    }
    QVERIFY2(restyled < total, "a run must end before the end of the text now and then");
}

void TstLineStates::anEditThatChangesNothingEndsAtTheNextLine()
{
    const SyntaxEngine &engine = engineOf(u"HTML"_s);
    const QByteArray text = "<p>\n<b>\n<i>\n";
    const Styled old = styleAll(engine, text);
    Recorder recorder;
    recorder.until = [&](qsizetype offset, LineState state) { return old.states.at(4 + offset) == state; };
    std::vector<unsigned char> part(8);
    QCOMPARE(engine.styleRange(QByteArrayView(text).sliced(4), old.states.at(4), part, recorder).end, 4);
}

void TstLineStates::anyBytesInAnyState()
{
    QFETCH(QString, language);
    const SyntaxEngine &engine = engineOf(language);
    std::mt19937 dice(3);
    for (int round = 0; round < 3000; ++round) {
        const QByteArray bytes = round % 2 ? corpusBytes(dice, static_cast<int>(dice() % 200)) : corpusText(dice, 20);
        const auto styles = stylesOf(engine, bytes, static_cast<LineState>(dice()));
        QVERIFY(std::ranges::all_of(styles, [](unsigned char s) { return s < syntaxStyleCount; }));
    }
}

void TstLineStates::charactersAreNeverSplit()
{
    QFETCH(QString, language);
    std::mt19937 dice(4);
    for (int round = 0; round < 1000; ++round) {
        const QByteArray text = corpusText(dice, 60);
        QVERIFY2(!styleLetters(engineOf(language), text).contains('!'), text.toPercentEncoding(" <>/").constData());
    }
}

void TstLineStates::longLinesTakeLinearTime_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("opening");
    QTest::addColumn<QByteArray>("piece");
    const auto rows = [](const char *language, const char *opening, std::initializer_list<const char *> pieces) {
        for (const char *piece : pieces)
            QTest::addRow("%s %s%s", language, opening, piece)
                << QString::fromLatin1(language) << QByteArray(opening) << QByteArray(piece);
    };

    for (const char *language : {"HTML", "XML"}) {
        rows(language, "", {"<",     "</",         "<!",          "<!-",    "<!--#", "<!---",     "<%", "<%@",
                            "<%=%>", "<?",         "<a ",         "<a b='", "<a b=", "&",         "&#", "&amp",
                            "<![",   "<!DOCTYPE ", "<!DOCTYPE [", "]]",     "a-",    "<p x=<%1%>"});
    }
    rows("HTML", "<script>", {"=/[", "`${", "/*", "<", "</scrip", "<%1%>", "=/a", "'", "\\", "{", "<?"});
    rows("HTML", "<style>", {"a", "a:", "a{", "url(", "/*", "@", "-", "'\\", ";", "}", "a,", "<!--"});
    rows("HTML", "<?php ", {"<<<", "<<<a ", "'", "/", "#", "?", "$", "\"\\"});
    rows("C/C++", "", {"R\"(", "R\"", ")", "#", "/*", "'", "1'", "1.", "#include<"});
    rows("C/C++", "R\"(", {")", ")a"});
    rows("Basic", "", {"#", "#1/", "&H", "End ", "Rem", "1!"});
    rows("Java", "", {"\"\"\"", "`", "${", "}", "\\"});
}

/// The opening comes once, the piece many times; an algorithm of quadratic time would take minutes.
void TstLineStates::longLinesTakeLinearTime()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, opening);
    QFETCH(QByteArray, piece);
    const QByteArray text = opening + piece.repeated(1'000'000 / piece.size());
    QElapsedTimer timer;
    timer.start();
    stylesOf(engineOf(language), text);
    QVERIFY2(timer.elapsed() < 5'000, qPrintable(QString::number(timer.elapsed()) + u" ms"_s));
}

void TstLineStates::manyCarriageReturnsTakeLinearTime()
{
    QElapsedTimer timer;
    timer.start();
    const QByteArray text = QByteArray("a\r").repeated(1'000'000);
    QCOMPARE(styleAll(engineOf(u"Perl"_s), text).states.size(), std::size_t{1'000'001});
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed()) + u" ms"_s));
}

ZEPHIRA_TEST(TstLineStates)

} // namespace zephira

#include "tst_linestates.moc"
