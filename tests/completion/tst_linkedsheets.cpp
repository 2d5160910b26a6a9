// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/linkedsheets.h"
#include "support/fakes.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The style sheets that a document links.
class TstLinkedSheets final : public QObject
{
    Q_OBJECT

private:
    static QByteArray sorted(const QSet<QByteArray> &names)
    {
        QByteArrayList list(names.begin(), names.end());
        std::ranges::sort(list);
        return list.join(' ');
    }

private Q_SLOTS:
    void paths_data()
    {
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<QString>("path");
        QTest::newRow("beside") << QByteArray("a.css") << u"/site/sub/a.css"_s;
        QTest::newRow("above") << QByteArray("../a.css?v=1#x") << u"/site/a.css"_s;
        QTest::newRow("of the project") << QByteArray("/css/a.css") << u"/site/css/a.css"_s;
        QTest::newRow("blanks") << QByteArray("my%20a.css") << u"/site/sub/my a.css"_s;
        QTest::newRow("colon in a name") << QByteArray("x/a:b.css") << u"/site/sub/x/a:b.css"_s;
        QTest::newRow("other host") << QByteArray("//x.org/a.css") << QString();
        QTest::newRow("scheme") << QByteArray("https://x.org/a.css") << QString();
        QTest::newRow("data") << QByteArray("data:text/css,a") << QString();
        QTest::newRow("empty") << QByteArray("?x") << QString();
    }

    void paths()
    {
        QFETCH(QByteArray, address);
        QTEST(linkedPath(address, u"/site/sub/"_s, u"/site"_s), "path");
        QCOMPARE(linkedPath("/a.css", u"/site/"_s, {}), QString());
        QCOMPARE(linkedPath("a.css", {}, u"/site"_s), QString());
    }

    void importsInCircles()
    {
        MemoryFileStore files;
        files.contents[u"/site/a.css"_s] = "@import 'sub/b.css'; .a { }";
        files.contents[u"/site/sub/b.css"_s] = "@import '../a.css'; @import 'b.css'; .b { } #c { }";
        LinkedSheets sheets(files);
        const DocumentNames names = sheets.names({"a.css", "missing.css"}, u"/site/"_s, {});
        QCOMPARE(sorted(names.classes), QByteArray("a b"));
        QCOMPARE(sorted(names.ids), QByteArray("c"));
        QVERIFY(names.sheets.isEmpty());
    }

    void changedSheetsAreReadAgain()
    {
        MemoryFileStore files;
        files.contents[u"/a.css"_s] = ".a { }";
        LinkedSheets sheets(files);
        QCOMPARE(sorted(sheets.names({"a.css"}, u"/"_s, {}).classes), QByteArray("a"));
        files.contents[u"/a.css"_s] = ".longer { }";
        QCOMPARE(sorted(sheets.names({"a.css"}, u"/"_s, {}).classes), QByteArray("longer"));
        files.unreadable[u"/a.css"_s] = Error{};
        files.contents[u"/a.css"_s] = ".other-again { }";
        QCOMPARE(sorted(sheets.names({"a.css"}, u"/"_s, {}).classes), QByteArray());
    }

    void hugeSheets()
    {
        MemoryFileStore files;
        QByteArrayList addresses;
        for (int i = 0; i < 8; ++i) {
            const QByteArray name = "s" + QByteArray::number(i);
            QByteArray content = "." + name + " { }";
            content.append(QByteArray(".x { color: red }\n").repeated(1200000));
            files.contents[u'/' + QString::fromUtf8(name) + u".css"_s] = content + ".last { }";
            addresses.append(name + ".css");
        }
        LinkedSheets sheets(files);
        QElapsedTimer clock;
        clock.start();
        const DocumentNames names = sheets.names(addresses, u"/"_s, {});
        QVERIFY2(clock.elapsed() < pace * 1500, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(names.classes.contains("s0"));
        QVERIFY(!names.classes.contains("last"));
    }
};

ZEPHIRA_TEST(TstLinkedSheets)

#include "tst_linkedsheets.moc"
