// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/paths.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstPaths final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothSeparators_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("separated");
        QTest::newRow("slashes") << u"/a/b.htm"_s << u"b.htm"_s << u"/a/"_s << u"/a/b.htm/"_s;
        QTest::newRow("backslashes") << u"C:\\a\\b.htm"_s << u"b.htm"_s << u"C:\\a\\"_s << u"C:\\a\\b.htm/"_s;
        QTest::newRow("the last one counts") << u"/a\\b/c"_s << u"c"_s << u"/a\\b/"_s << u"/a\\b/c/"_s;
        QTest::newRow("a folder") << u"/a/"_s << QString() << u"/a/"_s << u"/a/"_s;
        QTest::newRow("a folder with a backslash") << u"a\\"_s << QString() << u"a\\"_s << u"a\\"_s;
        QTest::newRow("no folder") << u"b.htm"_s << u"b.htm"_s << QString() << u"b.htm/"_s;
        QTest::newRow("nothing") << QString() << QString() << QString() << u"/"_s;
    }

    void bothSeparators()
    {
        QFETCH(QString, path);
        QTEST(fileTitleOf(path), "title");
        QTEST(folderOf(path), "folder");
        QTEST(withSeparator(path), "separated");
    }

    void extension_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("one") << u"a.htm"_s << u"htm"_s;
        QTest::newRow("two points") << u"a.b.HTM"_s << u"HTM"_s;
        QTest::newRow("none") << u"readme"_s << QString();
        QTest::newRow("point at the end") << u"a."_s << QString();
        QTest::newRow("point at the start") << u".htaccess"_s << u"htaccess"_s;
    }

    void extension()
    {
        QFETCH(QString, name);
        QTEST(extensionOf(name), "expected");
    }

    void slashes_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("separated");
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QString>("name");
        QTest::newRow("deep") << u"/a/b"_s << u"/a/b/"_s << u"/a"_s << u"b"_s;
        QTest::newRow("below the root") << u"/a"_s << u"/a/"_s << u"/"_s << u"a"_s;
        QTest::newRow("root") << u"/"_s << u"/"_s << u"/"_s << QString();
        QTest::newRow("a name with a backslash") << u"/a/b\\"_s << u"/a/b\\/"_s << u"/a"_s << u"b\\"_s;
    }

    void slashes()
    {
        QFETCH(QString, path);
        QTEST(withSlash(path), "separated");
        QCOMPARE(withSlash(path.toUtf8()), withSlash(path).toUtf8());
        QTEST(parentFolder(path), "parent");
        QTEST(lastName(path), "name");
    }
};

ZEPHIRA_TEST(TstPaths)

} // namespace zephira

#include "tst_paths.moc"
