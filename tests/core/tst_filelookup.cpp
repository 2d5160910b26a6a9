// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filelookup.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// How forms let the user look up a file, and how a page refers to it.
class TstFileLookup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsInTheFolderUsedLast()
    {
        TestContext world;
        FileLookup lookup;
        const auto choose = [&](const QString &folder, const std::optional<QString> &answer) {
            world.prompts.expectFile({.title = u"t"_s, .filter = u"All|*.*"_s, .initialFolder = folder}, answer);
            return lookup.choose(world.context, u"t"_s, u"All|*.*"_s);
        };
        QCOMPARE(choose({}, std::nullopt), std::nullopt);
        world.document.project = u"/site/"_s;
        QCOMPARE(choose(u"/site/"_s, std::nullopt), std::nullopt);
        QCOMPARE(choose(u"/site/"_s, u"/site/a/b.htm"_s), u"/site/a/b.htm"_s);
        QCOMPARE(choose(u"/site/a"_s, std::nullopt), std::nullopt);
        QCOMPARE(choose(u"/site/a"_s, u"/c.htm"_s), u"/c.htm"_s);
        world.document.project = u"Project Path"_s;
        QCOMPARE(choose(u"/"_s, u"/ü ö/d.htm"_s), u"/ü ö/d.htm"_s);
        QCOMPARE(choose(u"/ü ö"_s, std::nullopt), std::nullopt);
        QVERIFY(world.prompts.verify());
    }

    void referenceToAFile_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("reference");
        QTest::newRow("no project") << u"Project Path"_s << u"/site/img/a.png"_s;
        QTest::newRow("an empty one") << u""_s << u"/site/img/a.png"_s;
        QTest::newRow("above") << u"/site/"_s << u"img/a.png"_s;
        QTest::newRow("beside") << u"/site/pages/"_s << u"../img/a.png"_s;
        QTest::newRow("one that is gone") << u"/gone/deeper/"_s << u"../../site/img/a.png"_s;
    }

    void referenceToAFile()
    {
        QFETCH(QString, project);
        FakeDocumentHost host;
        host.project = project;
        QTEST(projectReference(host, u"/site/img/a.png"_s), "reference");
    }
};

ZEPHIRA_TEST(TstFileLookup)

#include "tst_filelookup.moc"
