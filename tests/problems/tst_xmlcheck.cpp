// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/told.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Where a document isn't well-formed.
class TstXmlCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &text, const QStringList &expected = {}) {
            QTest::newRow(name) << text << expected;
        };
        row("empty", " \n");
        row("fine", "<?xml version=\"1.0\"?>\n<a b=\"c\"><d/>&lt;</a>\n");
        row("in another encoding", "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><a>\u05e9</a>");
        row("outer entities", "<!DOCTYPE a SYSTEM \"a.dtd\"><a>&nbsp;</a>");
        row("mismatch", "<a>\n<b>\u05e9\u05dc\u05d5\u05dd</c></a>", {u"15 </c: Opening and ending tag mismatch."_s});
        row("not closed", "<a><b></b>", {u"6 </b: Premature end of document."_s});
        row("entity", "<a>&nbsp;</a>", {u"3 &nbsp: Entity 'nbsp' not declared."_s});
        row("no root", "text", {u"0 text: Start tag expected."_s});
        row("attribute twice", "<a b='1' b='2'/>", {u"0 <a: Attribute 'b' redefined."_s});
        row("server code", "<a><% if x %><b><% end if %></a>");
        row("php", "<?php header('x') ?><?xml version=\"1.0\"?><a></a>");
    }

    void tells()
    {
        QFETCH(QByteArray, text);
        QTEST(told(orderFor(text, PlaceLanguage::Xml)), "expected");
    }
};

ZEPHIRA_TEST(TstXmlCheck)

#include "tst_xmlcheck.moc"
