// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/editorsearch.h"
#include "editor/indicators.h"
#include "editor/searchmarks.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// The bytes of the text that are marked, as "from-to" with blanks between.
QString marksOf(const CodeMax &editor)
{
    const SciEngine &engine = editor.engine();
    QStringList marks;
    qsizetype start = -1;
    for (qsizetype i = 0; i <= engine.length(); ++i) {
        const bool on = i < engine.length() && engine.send(Sci::SCI_INDICATORVALUEAT, MatchIndicator, i) != 0;
        if (on && start < 0)
            start = i;
        if (!on && start >= 0) {
            marks.append(u"%1-%2"_s.arg(start).arg(i));
            start = -1;
        }
    }
    return marks.join(u' ');
}

/// The last count that was told.
struct Counter {
    explicit Counter(SearchMarks &marks)
    {
        QObject::connect(&marks, &SearchMarks::counted, &marks, [this](const SearchMarks::Count &count) {
            last = count;
            ++times;
        });
    }
    SearchMarks::Count last;
    int times = 0;
};

} // namespace

class TstSearchMarks final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksAndCounts()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab\u00E4 AB\r\n\U0001F600ab\r\n"_s);
        SearchMarks marks(f.editor.search());
        Counter counter(marks);
        marks.show({.pattern = u"ab"_s}, false);
        QCOMPARE(marksOf(f.editor), u"0-2 5-7 13-15"_s);
        QTRY_COMPARE(counter.last, (SearchMarks::Count{3, true, false}));
        marks.show({.pattern = u"ab"_s, .matchCase = true}, false);
        QCOMPARE(marksOf(f.editor), u"0-2 13-15"_s);
        QTRY_COMPARE(counter.last, (SearchMarks::Count{2, true, false}));
        marks.show({.pattern = u"B\\r\\n."_s, .regularExpression = true}, false);
        QCOMPARE(marksOf(f.editor), u"6-13"_s);
        marks.show({.pattern = u"a("_s, .regularExpression = true}, false);
        QVERIFY(!marks.isShown());
        QCOMPARE(marksOf(f.editor), QString());
    }

    void followsTheText()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab"_s);
        SearchMarks marks(f.editor.search());
        Counter counter(marks);
        marks.show({.pattern = u"ab"_s}, false);
        QTRY_COMPARE(counter.last.matches, 1);
        f.editor.setText(u"ab ab"_s);
        QTRY_COMPARE(marksOf(f.editor), u"0-2 3-5"_s);
        QTRY_COMPARE(counter.last.matches, 2);
        marks.hide();
        QCOMPARE(marksOf(f.editor), QString());
        const int times = counter.times;
        f.editor.setText(u"ab ab ab"_s);
        QTest::qWait(400);
        QCOMPARE(counter.times, times);
        QCOMPARE(marksOf(f.editor), QString());
    }

    void inTheSelection()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab ab ab"_s);
        f.editor.select({0, 2, 0, 6});
        f.editor.search().takeScope();
        SearchMarks marks(f.editor.search());
        Counter counter(marks);
        marks.show({.pattern = u"ab"_s}, true);
        QCOMPARE(marksOf(f.editor), u"3-5"_s);
        QTRY_COMPARE(counter.last, (SearchMarks::Count{1, true, false}));
    }

    void onlyWhatIsSeenIsMarked()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab\r\n"_s.repeated(10000));
        SearchMarks marks(f.editor.search());
        Counter counter(marks);
        marks.show({.pattern = u"ab"_s}, false);
        const SciEngine &engine = f.editor.engine();
        const auto isMarked = [&](qsizetype line) {
            return engine.send(Sci::SCI_INDICATORVALUEAT, MatchIndicator, engine.lineStart(line)) != 0;
        };
        QVERIFY(isMarked(0) && !isMarked(5000));
        engine.send(Sci::SCI_SETFIRSTVISIBLELINE, 4990);
        QTRY_VERIFY(isMarked(5000));
        QVERIFY(!isMarked(0));
        QTRY_COMPARE(counter.last, (SearchMarks::Count{10000, true, false}));
    }

    /// Ten million characters are counted in slices, none of which keeps a key waiting.
    void aLargeTextIsCountedInSlices()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"some text with ten words or so in a line\r\n"_s.repeated(250000));
        SearchMarks marks(f.editor.search());
        Counter counter(marks);
        marks.show({.pattern = u"e"_s}, false);
        QElapsedTimer time;
        qint64 longest = 0;
        while (!counter.last.isComplete) {
            time.start();
            QCoreApplication::processEvents();
            // The first one copies the text.
            if (counter.times > 1)
                longest = std::max(longest, time.elapsed());
        }
        QCOMPARE(counter.last.matches, 1000000);
        QVERIFY(counter.times > 3);
        QVERIFY2(longest < pace * 250, qPrintable(QString::number(longest)));
    }

    void aLineWithoutEnd()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"\u00E4b"_s.repeated(500000));
        SearchMarks marks(f.editor.search());
        marks.show({.pattern = u"b"_s}, false);
        const SciEngine &engine = f.editor.engine();
        QVERIFY(engine.send(Sci::SCI_INDICATORVALUEAT, MatchIndicator, 2) != 0);
        QVERIFY(engine.send(Sci::SCI_INDICATORVALUEAT, MatchIndicator, 1) == 0);
        QVERIFY(engine.send(Sci::SCI_INDICATORVALUEAT, MatchIndicator, 1400000 + 2) == 0);
    }

    void emptyMatchesAreCounted()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a\r\n\r\nb"_s);
        SearchMarks marks(f.editor.search());
        Counter counter(marks);
        marks.show({.pattern = u"^"_s, .regularExpression = true}, false);
        QTRY_COMPARE(counter.last, (SearchMarks::Count{3, true, false}));
        QCOMPARE(marksOf(f.editor), QString());
    }

    void anExpressionThatTriesTooMuch()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(QString(40, u'a') + u"b"_s);
        SearchMarks marks(f.editor.search());
        Counter counter(marks);
        marks.show({.pattern = u"(?:a+a+)+[cd]"_s, .regularExpression = true}, false);
        QTRY_COMPARE(counter.last, (SearchMarks::Count{0, true, true}));
    }
};

ZEPHIRA_TEST(TstSearchMarks)

} // namespace zephira

#include "tst_searchmarks.moc"
