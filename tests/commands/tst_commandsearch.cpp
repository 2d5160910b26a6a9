// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandsearch.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const std::vector<ListedCommand> &sample()
{
    static const std::vector<ListedCommand> commands{
        {u"save"_s, u"Save Document"_s, u"File"_s, u"Save the document"_s},
        {u"saveas"_s, u"Save Document As"_s, u"File"_s, u"Save the document under another name"_s},
        {u"table"_s, u"Table Wizard"_s, u"Tools"_s, u"Build a table"_s, {u"Quick Table"_s}},
        {u"form"_s, u"Form Wizard"_s, u"Tools"_s, u"Build a form"_s},
        {u"list"_s, u"Bullet List"_s, u"Tool palette > Lists"_s, u"Insert <ul></ul>"_s},
    };
    return commands;
}

/// The names of the commands found, in order.
QStringList found(const QString &typed, const std::vector<int> &uses = {0, 0, 0, 0, 0})
{
    QStringList names;
    const std::vector<CommandSearch::Found> all = CommandSearch(sample()).find(typed, uses);
    for (const CommandSearch::Found &each : all)
        names.append(sample()[static_cast<std::size_t>(each.command)].name);
    return names;
}

} // namespace

/// Searching the commands.
class TstCommandSearch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QString &typed, const QStringList &expected) {
            QTest::newRow(name) << typed << expected;
        };
        row("nothing typed", {}, {u"save"_s, u"saveas"_s, u"table"_s, u"form"_s, u"list"_s});
        row("caption", u"bullet"_s, {u"list"_s});
        row("starts of words", u"fw"_s, {u"form"_s});
        row("shorter first", u"save"_s, {u"save"_s, u"saveas"_s});
        row("another name", u"quick"_s, {u"table"_s});
        row("place", u"file"_s, {u"save"_s, u"saveas"_s});
        row("tip", u"another"_s, {u"saveas"_s});
        row("markup", u"<ul"_s, {u"list"_s});
        row("caption and place", u"tools wiz"_s, {u"form"_s, u"table"_s});
        row("caption and tip", u"wiz build form"_s, {u"form"_s});
        row("caption before tip", u"form"_s, {u"form"_s});
        row("inside of a tip's word", u"uild"_s, {});
        row("one word isn't there", u"save xyz"_s, {});
    }

    void finds()
    {
        QFETCH(QString, typed);
        QTEST(found(typed), "expected");
    }

    void theMostUsedComeFirst()
    {
        QCOMPARE(found({}, {0, 2, 0, 5, 2}), (QStringList{u"form"_s, u"saveas"_s, u"list"_s, u"save"_s, u"table"_s}));
        // Among about equally good matches use decides, but it doesn't beat a much better match.
        QCOMPARE(found(u"save"_s, {0, 1, 0, 0, 0}), (QStringList{u"saveas"_s, u"save"_s}));
        QCOMPARE(found(u"wiz"_s, {0, 0, 0, 3, 0}), (QStringList{u"form"_s, u"table"_s}));
        QCOMPARE(found(u"document as"_s, {1000, 0, 0, 0, 0}).front(), u"saveas"_s);
    }

    void placesAreTheCaptions()
    {
        const std::vector<int> uses(5);
        const CommandSearch search(sample());
        QCOMPARE(search.find(u"bl"_s, uses).front().places, (QList<qsizetype>{0, 7}));
        QCOMPARE(search.find(u"quick"_s, uses).front().places, QList<qsizetype>());
        QCOMPARE(search.find(u"tools wiz"_s, uses).front().places, (QList<qsizetype>{5, 6, 7}));
    }

    void nothingToSearch()
    {
        QVERIFY(CommandSearch().find(u"a"_s, {}).empty());
        QVERIFY(CommandSearch().find({}, {}).empty());
    }

    /// A list of 1,500 entries is searched within a key press.
    void keepsUp()
    {
        std::vector<ListedCommand> commands;
        for (int i = 0; i < 1500; ++i)
            commands.push_back({QString::number(i),
                                u"Format the Selected Text as Heading %1"_s.arg(i),
                                u"Tool palette > Text"_s,
                                u"Insert <h%1></h%1> around the selected text"_s.arg(i),
                                {u"Heading of Size %1"_s.arg(i)}});
        const std::vector<int> uses(commands.size());
        const CommandSearch search(commands);
        qint64 least = std::numeric_limits<qint64>::max();
        for (int round = 0; round < 20; ++round) {
            QElapsedTimer timer;
            timer.start();
            QCOMPARE(search.find(u"head sel"_s, uses).size(), commands.size());
            least = std::min(least, timer.nsecsElapsed());
        }
        qInfo("1,500 entries: %.2f ms", static_cast<double>(least) / 1e6);
        // Generous, since the machine may be busy and the build slow.
        QVERIFY(least < pace * 200'000'000);
    }
};

ZEPHIRA_TEST(TstCommandSearch)

#include "tst_commandsearch.moc"
