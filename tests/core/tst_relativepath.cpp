// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "core/relativepath.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstRelativePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reference_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("expected");
        QTest::newRow("beside") << u"C:\\a\\b\\"_s << u"C:\\a\\c\\x.htm"_s << u"../c/x.htm"_s;
        QTest::newRow("same folder") << u"C:\\a\\"_s << u"C:\\a\\x.htm"_s << u"x.htm"_s;
        QTest::newRow("folders below") << u"C:\\a\\"_s << u"C:\\a\\b\\c\\x.htm"_s << u"b/c/x.htm"_s;
        QTest::newRow("two up") << u"C:\\a\\b\\c\\"_s << u"C:\\a\\x.htm"_s << u"../../x.htm"_s;
        QTest::newRow("only the drive in common") << u"C:\\a\\"_s << u"C:\\b\\x.htm"_s << u"../b/x.htm"_s;
        QTest::newRow("nothing in common") << u"C:\\a\\"_s << u"D:\\x.htm"_s << u"../../:/x.htm"_s;
        QTest::newRow("exact in case") << u"C:\\A\\"_s << u"C:\\a\\x.htm"_s << u"../a/x.htm"_s;
        QTest::newRow("base without its drive") << u"a\\"_s << u"C:\\a\\x.htm"_s << u":/a/x.htm"_s;
        QTest::newRow("slashes, beside") << u"/home/me/a/"_s << u"/home/me/c/x.htm"_s << u"../c/x.htm"_s;
        QTest::newRow("slashes, same folder") << u"/home/me/"_s << u"/home/me/x.htm"_s << u"x.htm"_s;
        QTest::newRow("slashes, only the root in common") << u"/a/b/"_s << u"/c/x.htm"_s << u"../../c/x.htm"_s;
        QTest::newRow("similar folder names") << u"/a/bc/"_s << u"/a/bcd/x.htm"_s << u"../bcd/x.htm"_s;
        QTest::newRow("base without any separator") << u"a"_s << u"/x/y.htm"_s << u"x/y.htm"_s;
    }

    void reference()
    {
        QFETCH(QString, base);
        QFETCH(QString, target);
        QTEST(MakeRelativePath(base, target), "expected");
    }

    void emptyBaseRaises()
    {
        try {
            MakeRelativePath(u""_s, u"/x/y.htm"_s);
            QFAIL("an empty base was taken");
        } catch (const HandlerError &error) {
            QCOMPARE(error.description, u"Invalid procedure call or argument"_s);
        }
    }
};

ZEPHIRA_TEST(TstRelativePath)

} // namespace zephira

#include "tst_relativepath.moc"
