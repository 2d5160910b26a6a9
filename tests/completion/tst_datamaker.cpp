// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/datamaker.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

/// The lines of the data file, made from small files of the package's form.
class TstDataMaker final : public QObject
{
    Q_OBJECT

private:
    /// The lines without the notes.
    static QByteArrayList linesOf(const QByteArray &json)
    {
        const Result<QByteArray> made = completionLines(json);
        QByteArrayList lines = made ? made.value().split('\n') : QByteArrayList{"failed"};
        lines.removeIf([](const QByteArray &line) { return line.isEmpty() || line.startsWith('#'); });
        return lines;
    }

private Q_SLOTS:
    void markup()
    {
        const QByteArray json =
            QByteArray(
                "{'version': 1.1, "
                "'tags': [{'name': 'br', 'description': {'kind': 'markdown', 'value': 'A _line_ break.\\n\\nMore.'}, 'void': true, "
                "'attributes': [{'name': 'clear', 'valueSet': 'c', 'browsers': ['C1', 'IE5', 'S2']}], "
                "'status': {'baseline': 'high', 'baseline_low_date': '2015-07-29'}, "
                "'browsers': ['C1', 'CA18', 'E12', 'FF1', 'FFA4', 'S1', 'SM1']}], "
                "'globalAttributes': [{'name': 'hidden', 'valueSet': 'v', "
                "'description': 'Like [this](https://x.org \\'a (b\\'), `code`, **bold** and <code>more</code>.'}], "
                "'valueSets': [{'name': 'c', 'values': [{'name': 'left'}, {'name': 'right', 'description': 'To the\\tright'}]}]}")
                .replace('\'', '"');
        QCOMPARE(linesOf(json),
                 (QByteArrayList{
                     "A\thidden\tv\t\tLike this, code, bold and more.",
                     "T\tbr\t\t2015 C1 E12 FF1 S1\tA line break.",
                     "A\tclear\tc\tC1 S2",
                     "S\tc",
                     "V\tleft",
                     "V\tright\t\t\tTo the right",
                 }));
    }

    void styles()
    {
        const QByteArray json =
            QByteArray(
                "{'properties': [ "
                "{'name': 'color', 'restrictions': ['color'], 'relevance': 95, 'description': 'Its color.', "
                "'baseline': {'status': 'high', 'baseline_low_date': '2020-01-01'}, 'browsers': ['FF1'], "
                "'values': [{'name': 'red', 'browsers': ['E12']}]}, "
                "{'name': 'zoom', 'status': 'nonstandard', 'relevance': 3}], "
                "'atDirectives': [{'name': '@media'}], 'pseudoClasses': [{'name': ':hover'}], 'pseudoElements': [{'name': '::before'}]}")
                .replace('\'', '"');
        QCOMPARE(linesOf(json),
                 (QByteArrayList{"P\tcolor\tc95\t2020 FF1\tIts color.", "V\tred\t\tE12", "P\tzoom\to3", "@\t@media",
                                 ":\t:hover", ":\t::before"}));
    }

    void longDescriptions()
    {
        const QByteArray sentence = QByteArray("word ").repeated(60).trimmed() + ". ";
        const QByteArray json = QByteArray("{'tags': [{'name': 'a', 'description': '" + sentence.repeated(3)
                                           + "'}, {'name': 'b', 'description': '" + QByteArray("word ").repeated(200)
                                           + "'}, {'name': 'c', 'description': 'It is so. It can be:'}]}")
                                    .replace('\'', '"');
        const QByteArrayList lines = linesOf(json);
        QCOMPARE(lines.value(0), "T\ta\t\t\t" + sentence.trimmed());
        QVERIFY(lines.value(1).endsWith("word \xe2\x80\xa6"));
        QVERIFY(lines.value(1).size() < 440);
        QCOMPARE(lines.value(2), QByteArray("T\tc\t\t\tIt is so."));
    }

    void namesSourceAndLicences()
    {
        const Result<QByteArray> made = completionLines(QByteArray("{'tags': [{'name': 'a'}]}").replace('\'', '"'));
        QVERIFY(made);
        for (const char *words :
             {"@vscode/web-custom-data", "MIT licence", "CC BY-SA 2.5", "CC BY 2.5", "Mozilla Contributors"})
            QVERIFY2(made.value().contains(words), words);
    }

    void anythingElse()
    {
        for (const char *json : {"", "[]", "{}", "not json", "{\"tags\": []}", "{\"tags\": 1}"})
            QVERIFY2(!completionLines(json), json);
    }
};

ZEPHIRA_TEST(TstDataMaker)

#include "tst_datamaker.moc"
