// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/pagelinks.h"
#include "problems/told.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Links to files that don't exist.
class TstPageLinks final : public QObject
{
    Q_OBJECT

private:
    static LinkPlaces places(const QStringList &files, int *lookups = nullptr)
    {
        return {u"/site/docs"_s, u"/project"_s, [=](const QString &path) {
                    if (lookups)
                        ++*lookups;
                    return files.contains(path);
                }};
    }

private Q_SLOTS:
    void addresses_data()
    {
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<bool>("isBroken");
        const auto row = [](const QByteArray &address, bool isBroken) {
            QTest::newRow(address.constData()) << address << isBroken;
        };
        row("a.html", false);
        row("b.html", true);
        row("a.html?x=1#y", false);
        row("b.html?x=1", true);
        row("sub/", false);
        row("../up.html", false);
        row("../none.html", true);
        row("sub\\c.gif", false);
        row("/top.html", false);
        row("/logo.png", false);
        row("/none.png", true);
        row("a", false);
        row("#x", false);
        row("?x=1", false);
        row("", false);
        row("http://x.org/b", false);
        row("//x.org/b", false);
        row("mailto:a@b", false);
        row("javascript:b()", false);
        row("data:image/png,b", false);
        row("C:\\b.html", false);
        row("~/b.html", false);
        row("${b}.html", false);
        row("b\x1a\x1a.html", false);
        row("%D7%A9.html", false);
        row("\u05e9.html", false);
        row("\u4e2d.html", true);
        row("x&amp;y.html", false);
        row("x&#38;y.html", false);
        row("x%20y.html", false);
        row("%00.html", false);
        row(QByteArray("b").repeated(5000), false);
    }

    void addresses()
    {
        QFETCH(QByteArray, address);
        PageLinks links(
            places({u"/site/docs/a.html"_s, u"/site/docs/sub"_s, u"/site/docs/sub/"_s, u"/site/docs/sub/c.gif"_s,
                    u"/site/up.html"_s, u"/site/top.html"_s, u"/project/logo.png"_s, u"/site/docs/\u05e9.html"_s,
                    u"/site/docs/x&y.html"_s, u"/site/docs/x y.html"_s}),
            false);
        QTEST(links.isBroken(address), "isBroken");
    }

    /// A part of pages in other folders may count from there.
    void parts()
    {
        PageLinks links(places({u"/site/top.html"_s}), true);
        QVERIFY(!links.isBroken("top.html"));
        QVERIFY(links.isBroken("none.html"));
    }

    void withoutFile()
    {
        int lookups = 0;
        LinkPlaces none = places({}, &lookups);
        none.folder.clear();
        QVERIFY(!PageLinks(none, false).isBroken("a.html"));
        QCOMPARE(lookups, 0);
    }

    /// Each name is looked for once, and not any number of them.
    void fewLookups()
    {
        int lookups = 0;
        PageLinks links(places({}, &lookups), false);
        QVERIFY(links.isBroken("a.html"));
        const int first = lookups;
        QVERIFY(links.isBroken("a.html"));
        QCOMPARE(lookups, first);
        for (int i = 0; i < 10'000; ++i)
            links.isBroken(QByteArray::number(i) + ".html");
        QVERIFY(lookups < PageLinks::mostLookups + 10);
    }

    void inThePage()
    {
        CheckOrder order =
            orderFor("<body><img alt='' src='a.png'><a href=\"b.html\">x</a><script src=<?= $c ?>></script>"
                     "<link rel=canonical href=d><iframe src='e.htm'></iframe></body>");
        order.places = places({u"/site/docs/b.html"_s});
        QCOMPARE(
            told(order),
            (QStringList{u"23 a.png: The file a.png doesn't exist."_s, u"123 e.htm: The file e.htm doesn't exist."_s}));
    }
};

ZEPHIRA_TEST(TstPageLinks)

#include "tst_pagelinks.moc"
