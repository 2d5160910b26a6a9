// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/textlines.h"
#include "panes/sottree.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The path of each node, made of the captions.
QStringList paths(const SotTree &tree)
{
    QStringList result;
    for (const SotTree::Node &node : tree.nodes)
        result.append(node.parent < 0 ? node.caption : result[node.parent] + u'/' + node.caption);
    return result;
}

/// A straightforward implementation: a table of the last node of each level, counted from 1, that grows and may have
/// gaps.
SotTree plainReading(const QStringList &lines)
{
    SotTree tree;
    QList<qsizetype> table(1, -1);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString line = lines[i];
        qsizetype level = 1;
        while (line.startsWith(u'\t')) {
            ++level;
            line.remove(0, 1);
        }
        while (table.size() <= level)
            table.append(-1);
        if (level > 1 && table[level - 1] < 0) {
            tree.faultyLine = i + 1;
            break;
        }
        tree.nodes.push_back({line, level == 1 ? -1 : table[level - 1]});
        table[level] = i;
    }
    return tree;
}

} // namespace

class TstSotTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void trees_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("nodes");
        QTest::addColumn<int>("faultyLine");
        QTest::newRow("empty") << QString() << QStringList() << 0;
        QTest::newRow("roots") << u"a\r\nb"_s << QStringList{u"a"_s, u"b"_s} << 0;
        QTest::newRow("a grandchild, then a root")
            << u"a\n\tb\n\t\tc\nd"_s << QStringList{u"a"_s, u"a/b"_s, u"a/b/c"_s, u"d"_s} << 0;
        QTest::newRow("back by one") << u"a\n\tb\n\t\tc\n\td"_s << QStringList{u"a"_s, u"a/b"_s, u"a/b/c"_s, u"a/d"_s}
                                     << 0;
        QTest::newRow("under a node of an earlier branch")
            << u"a\n\tb\nc\n\t\td"_s << QStringList{u"a"_s, u"a/b"_s, u"c"_s, u"a/b/d"_s} << 0;
        QTest::newRow("too deep at once") << u"a\n\t\tb\nc"_s << QStringList{u"a"_s} << 2;
        QTest::newRow("the first line too deep") << u"\ta"_s << QStringList() << 1;
        QTest::newRow("a blank line is a node") << u"a\n\nb"_s << QStringList{u"a"_s, u""_s, u"b"_s} << 0;
        QTest::newRow("a node of nothing but tabs")
            << u"a\n\t\n\t\tb"_s << QStringList{u"a"_s, u"a/"_s, u"a//b"_s} << 0;
        QTest::newRow("tabs within stay") << u"a\tb\n \tc"_s << QStringList{u"a\tb"_s, u" \tc"_s} << 0;
    }

    void trees()
    {
        QFETCH(QString, text);
        const SotTree tree = parseSotTree(textLines(text));
        QTEST(paths(tree), "nodes");
        QTEST(static_cast<int>(tree.faultyLine), "faultyLine");
    }

    void againstAPlainReading()
    {
        QRandomGenerator random(2059);
        for (int round = 0; round < 3000; ++round) {
            QStringList lines;
            for (int line = random.bounded(12); line > 0; --line)
                lines.append(QString(random.bounded(5), u'\t') + QString::number(line));
            const SotTree tree = parseSotTree(lines);
            const SotTree expected = plainReading(lines);
            QCOMPARE(tree.nodes, expected.nodes);
            QCOMPARE(tree.faultyLine, expected.faultyLine);
        }
    }

    void aMillionTabsAreAFaultAndNoMore()
    {
        const SotTree tree = parseSotTree({u"a"_s, QString(1'000'000, u'\t') + u"b"_s});
        QCOMPARE(tree.faultyLine, 2);
        QCOMPARE(paths(tree), QStringList{u"a"_s});
    }
};

ZEPHIRA_TEST(TstSotTree)
#include "tst_sottree.moc"
