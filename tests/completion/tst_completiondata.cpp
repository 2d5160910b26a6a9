// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completiondata.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

using namespace zephira;

/// Reading the data file.
class TstCompletionData final : public QObject
{
    Q_OBJECT

private:
    static QByteArray madeFile()
    {
        QFile file(QStringLiteral(COMPLETION_DATA));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QByteArrayList namesOf(const std::vector<const DataRow *> &rows)
    {
        QByteArrayList names;
        for (const DataRow *row : rows)
            names.append(row->name.toByteArray());
        return names;
    }
    static QByteArrayList namesOf(std::span<const DataRow> rows)
    {
        QByteArrayList names;
        for (const DataRow &row : rows)
            names.append(row.name.toByteArray());
        return names;
    }

private Q_SLOTS:
    void reads()
    {
        const CompletionData data(
            "# note\nA\tid\nA\thidden\tv\nT\tbr\t\t2015 C1\tA break.\nA\tclear\tc\nS\tc\nV\tleft\nV\tright\n"
            "P\tcolor\tc95\nV\tred\n@\t@media\n:\t:hover\n");
        const DataRow *br = data.find('T', "br");
        QVERIFY(br);
        QCOMPARE(br->since, QByteArrayView("2015 C1"));
        QCOMPARE(br->text, QByteArrayView("A break."));
        QVERIFY(!data.isOld(*br));
        // The table of old tags has the same attribute for this tag.
        QCOMPARE(namesOf(data.attributesOf("br")), (QByteArrayList{"clear", "id", "hidden"}));
        QCOMPARE(namesOf(data.attributesOf("own-tag")), (QByteArrayList{"id", "hidden"}));
        QCOMPARE(namesOf(data.valuesOfAttribute("br", "clear")), (QByteArrayList{"left", "right"}));
        QCOMPARE(namesOf(data.valuesOfAttribute("br", "hidden")), QByteArrayList());
        QCOMPARE(namesOf(data.valuesOfAttribute("br", "none")), QByteArrayList());
        QCOMPARE(namesOf(data.valuesOfProperty("color")), QByteArrayList{"red"});
        QCOMPARE(namesOf(data.valuesOfProperty("none")), QByteArrayList());
        QCOMPARE(namesOf(data.rows('@')), QByteArrayList{"@media"});
        QCOMPARE(namesOf(data.rows(':')), QByteArrayList{":hover"});
    }

    void oldTags()
    {
        const CompletionData data{QByteArray()};
        const DataRow *font = data.find('T', "font");
        QVERIFY(font);
        QVERIFY(data.isOld(*font));
        QVERIFY(!font->text.isEmpty());
        QCOMPARE(namesOf(data.attributesOf("font")), (QByteArrayList{"color", "face", "size"}));
        QCOMPARE(namesOf(data.valuesOfAttribute("td", "valign")),
                 (QByteArrayList{"top", "middle", "bottom", "baseline"}));
        for (const char *name :
             {"center", "frame", "frameset", "marquee", "blink", "strike", "tt", "noframes", "applet"})
            QVERIFY2(data.find('T', name), name);
    }

    void anyFile_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("another kind") << QByteArray("<html>\n<p>\n");
        QTest::newRow("no fields") << QByteArray("T\nA\nV\n\n\t\nTT\tx\n");
        QTest::newRow("cut") << QByteArray("V\tx\nT\ta\t\t\t");
        QTest::newRow("bytes") << QByteArray("\0\xff\t\n\t\t\t\n", 8);
    }

    void anyFile()
    {
        QFETCH(QByteArray, file);
        const CompletionData data(file);
        QVERIFY(data.find('T', "font"));
        QVERIFY(data.attributesOf("font").size() >= 3);
    }

    void rowsBelowOthers()
    {
        const CompletionData data(
            "V\tnobody\nP\tcolor\nA\tclass\nV\tred\n@\tmedia\nV\tall\nT\tbr\nV\tleft\nA\tclear\n");
        QCOMPARE(namesOf(data.valuesOfProperty("color")), QByteArrayList{"red"});
        QCOMPARE(namesOf(data.attributesOf("br")), QByteArrayList{"clear"});
        QVERIFY(!namesOf(data.rows('V')).contains("nobody"));
    }

    /// What the build has made of the package.
    void theMadeFile()
    {
        const CompletionData data(madeFile());
        QVERIFY(data.rows('T').size() > 110);
        QVERIFY(data.rows('P').size() > 800);
        QVERIFY(data.rows('@').size() > 20);
        QVERIFY(data.rows(':').size() > 150);
        for (const char *name : {"search", "hgroup", "slot", "table", "h1"})
            QVERIFY2(data.find('T', name), name);
        QVERIFY(namesOf(data.attributesOf("img")).contains("alt"));
        QVERIFY(namesOf(data.attributesOf("img")).contains("popover"));
        QVERIFY(namesOf(data.valuesOfAttribute("input", "type")).contains("checkbox"));
        QVERIFY(namesOf(data.valuesOfProperty("display")).contains("flex"));
        QVERIFY(data.find('P', "color")->flags.contains('c'));
        QVERIFY(data.find('P', "align-items")->since.startsWith("2015 "));
        QVERIFY(!data.find('T', "table")->text.isEmpty());
    }

    void readsInTime()
    {
        const QByteArray file = madeFile();
        qint64 best = 1000;
        for (int run = 0; run < 5; ++run) {
            QElapsedTimer clock;
            clock.start();
            const CompletionData data(file);
            best = std::min(best, clock.elapsed());
        }
        QVERIFY2(best <= 15, qPrintable(QString::number(best)));
    }
};

ZEPHIRA_TEST(TstCompletionData)

#include "tst_completiondata.moc"
