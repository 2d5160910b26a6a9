// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/live/livetext.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLiveText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("marked");
        const auto same = [](const char *what, const QString &source, const QString &marked) {
            QTest::newRow(what) << source << source << marked;
        };
        same("nothing", {}, {});
        same("text", u"a < b"_s, u"a < b"_s);
        same("tags", u"<p>a</p>\r\n<P class=b>c<br/>"_s, u"<p m=0 >a</p>\r\n<P m=10  class=b>c<br m=22 />"_s);
        same("no tags", u"<!DOCTYPE html><!-- <p> --><script>'<p>'</script>"_s,
             u"<!DOCTYPE html><!-- <p> --><script m=27 >'<p>'</script>"_s);
        same("content without scripts", u"<NOSCRIPT><img src=a></noscript><i>"_s,
             u"<NOSCRIPT m=0 ></noscript><i m=32 >"_s);
        same("half typed", u"<p><a hre"_s, u"<p m=0 ><a m=3  hre"_s);
        QTest::newRow("server code") << u"<?php a() ?><p <%= b %> title=\"x<?= c ?>y\">d<% e %></p>"_s
                                     << u"<p  title=\"xy\">d</p>"_s << u"<p m=12   title=\"xy\">d</p>"_s;
        QTest::newRow("tags of the server") << u"<asp:label id=a>b</asp:label>"_s << u"b"_s << u"b"_s;
        QTest::newRow("a name by the server") << u"<p><<%= a %>>b</p>"_s << u"<p>b</p>"_s << u"<p m=0 >b</p>"_s;
    }
    void texts()
    {
        QFETCH(QString, source);
        const LiveText text = liveText(source, u"m"_s);
        QTEST(text.shown, "shown");
        QTEST(text.marked, "marked");
    }
};

ZEPHIRA_TEST(TstLiveText)

#include "tst_livetext.moc"
