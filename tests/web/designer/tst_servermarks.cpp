// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "web/designer/servermarks.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstServerMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void masks_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("masked");
        const auto row = [](const char *name, const QString &source, const QString &masked) {
            QTest::newRow(name) << source << masked;
        };
        row("nothing to mask", u"<p title=\"a\">b &amp; c</p>"_s, u"<p title=\"a\">b &amp; c</p>"_s);
        row("all places", u"<td <%= attributes %>><!-- here --><%= value %></td>"_s,
            u"<td zsx0a><!--zsx1c--><!--zsx2s--></td>"_s);
        row("a value", u"<a href=\"<%= \"x\" %>\">"_s, u"<a href=\"zsx0v\">"_s);
        row("a title and a script", u"<title><%= t %></title><script>a=<?= 1 ?></script>"_s,
            u"<title>zsx0v</title><script nomodule=\"zs\">a=zsx1v</script>"_s);
        row("scripts", u"<SCRIPT src=a></SCRIPT><script nomodule>b</script><scripts>"_s,
            u"<SCRIPT nomodule=\"zs\" src=a></SCRIPT><script nomodule>b</script><scripts>"_s);
        row("groups of rows", u"<table><TBODY id=a><tr></TBODY>"_s, u"<table><TBODY zst=\"\" id=a><tr></TBODY>"_s);
        row("an option", u"<select><% for %><option></select>"_s, u"<select><!--zsx0s--><option></select>"_s);
    }

    void masks()
    {
        QFETCH(QString, source);
        ServerMarks marks(u"zs"_s);
        const QString masked = marks.mask(source);
        QTEST(masked, "masked");
        QCOMPARE(marks.unmask(masked), source);
    }

    void unmasks_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &html, const QString &expected) {
            QTest::newRow(name) << html << expected;
        };
        row("an attribute that the engine gave a value", u"<td zsx0a=\"\">"_s, u"<td <%= a %>>"_s);
        row("an attribute with a value of its own", u"<td zsx0a=\"b\">"_s, u"<td <%= a %>=\"b\">"_s);
        row("moved", u"<!--zsx2s--><p><!--zsx1c--></p>"_s, u"<%= b %><p><!-- c --></p>"_s);
        row("twice", u"<!--zsx2s--><!--zsx2s-->"_s, u"<%= b %><%= b %>"_s);
        row("without its comment", u"<p>zsx2s</p>"_s, u"<p><%= b %></p>"_s);
        row("an unknown number", u"zsx9v zsx10s"_s, u"zsx9v zsx10s"_s);
        row("words that only begin like a mark", u"zsx zsxa zsx0 zsx0z zs0v"_s, u"zsx zsxa zsx0 zsx0z zs0v"_s);
        row("a number beyond all numbers", u"zsx99999999999999999999v"_s, u"zsx99999999999999999999v"_s);
    }

    void unmasks()
    {
        QFETCH(QString, html);
        ServerMarks marks(u"zs"_s);
        QCOMPARE(marks.mask(u"<td <%= a %>><!-- c --><%= b %>"_s), u"<td zsx0a><!--zsx1c--><!--zsx2s-->"_s);
        QTEST(marks.unmask(html), "expected");
    }

    void numbersGoOn()
    {
        ServerMarks marks(u"zs"_s);
        marks.mask(u"<% a %>");
        QCOMPARE(marks.mask(u"<% b %>"), u"<!--zsx1s-->"_s);
        QCOMPARE(marks.blocks(), (QStringList{u"<% a %>"_s, u"<% b %>"_s}));
    }

    void anyTextComesBack()
    {
        const QStringList pieces{u"<"_s,     u">"_s,        u"/"_s,         u"\""_s,      u"="_s,
                                 u" "_s,     u"a"_s,        u"<%"_s,        u"%>"_s,      u"<!--"_s,
                                 u"-->"_s,   u"<?php "_s,   u"?>"_s,        u"<cfif"_s,   u"<td "_s,
                                 u"<a b="_s, u"<script>"_s, u"</script>"_s, u"<title>"_s, u"</title>"_s};
        QRandomGenerator random(2);
        for (int round = 0; round < 20000; ++round) {
            const QString source = generatedText(random, pieces, 30);
            ServerMarks marks(u"zs"_s);
            const QString masked = marks.mask(source);
            QVERIFY2(!masked.contains(u"<%"), qPrintable(masked));
            QCOMPARE(marks.unmask(masked), source);
        }
    }

    void prefixesAreFresh()
    {
        const QString prefix = freshMarkPrefix(u"zs and more"_s);
        QVERIFY(prefix.startsWith(u"zs"));
        QVERIFY(prefix != freshMarkPrefix(u"zs and more"_s));
    }
};

ZEPHIRA_TEST(TstServerMarks)
#include "tst_servermarks.moc"
