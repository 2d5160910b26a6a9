// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/fieldtemplate.h"
#include "wizards/scriptmarkup.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What the wizards write for scripts, compared as whole texts.
class TstScriptMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cookie_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("expires");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("text");
        QTest::newRow("as the form starts")
            << u""_s << u"10/26/2002"_s << u""_s
            << u"<%\r\n  Response.Cookies(\"Type\") = \"\"\r\n"
               "  Response.Cookies(\"Type\").Expires = \"10/26/2002\"\r\n"
               "  Response.Cookies(\"Type\").Domain =\"\"\r\n Response.Cookies(\"Type\").Path = \"\"\r\n"
               "Response.Cookies(\"Type\").Secure = FALSE \r\n%>"_s;
        QTest::newRow("all fields")
            << u"Größe"_s << u"soon"_s << u"/shop"_s
            << u"<%\r\n  Response.Cookies(\"Type\") = \"Größe\"\r\n"
               "  Response.Cookies(\"Type\").Expires = \"soon\"\r\n"
               "  Response.Cookies(\"Type\").Domain =\"\"\r\n Response.Cookies(\"Type\").Path = \"/shop\"\r\n"
               "Response.Cookies(\"Type\").Secure = FALSE \r\n%>"_s;
        QTest::newRow("quotes, marks and line breaks stay")
            << u"a\"b<c>&d"_s << u""_s << u"\U0001F36A\r\nx"_s
            << u"<%\r\n  Response.Cookies(\"Type\") = \"a\"b<c>&d\"\r\n"
               "  Response.Cookies(\"Type\").Expires = \"\"\r\n"
               "  Response.Cookies(\"Type\").Domain =\"\"\r\n Response.Cookies(\"Type\").Path = \"\U0001F36A\r\nx\"\r\n"
               "Response.Cookies(\"Type\").Secure = FALSE \r\n%>"_s;
    }

    void cookie()
    {
        QFETCH(QString, value);
        QFETCH(QString, expires);
        QFETCH(QString, path);
        QTEST(cookieMarkup({.value = value, .expires = expires, .path = path}), "text");
    }

    void ifStatement_data()
    {
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<QString>("text");
        QTest::newRow("all fields") << QStringList{u"a"_s, u">"_s, u"b"_s, u"x = 1"_s, u"x = 2"_s}
                                    << u"<% If a > b Then \r\nx = 1\r\nElse\r\nx = 2\r\nEnd If %>\r\n"_s;
        QTest::newRow("no Else") << QStringList{u"a"_s, u"="_s, u"b"_s, u"x = 1"_s, {}}
                                 << u"<% If a = b Then \r\nx = 1\r\nEnd If %>\r\n"_s;
        QTest::newRow("a blank is an Else") << QStringList{u"a"_s, u"<"_s, u"b"_s, {}, u" "_s}
                                            << u"<% If a < b Then \r\n\r\nElse\r\n \r\nEnd If %>\r\n"_s;
        QTest::newRow("nothing") << QStringList{{}, {}, {}, {}, {}} << u"<% If    Then \r\n\r\nEnd If %>\r\n"_s;
        QTest::newRow("quotes, marks and line breaks stay")
            << QStringList{u"\"ä\""_s, u"="_s, u"<&>"_s, u"x\r\ny"_s, u"\U0001F600"_s}
            << u"<% If \"ä\" = <&> Then \r\nx\r\ny\r\nElse\r\n\U0001F600\r\nEnd If %>\r\n"_s;
    }

    void ifStatement()
    {
        QFETCH(QStringList, fields);
        QTEST(ifMarkup({fields[0], fields[1], fields[2], fields[3], fields[4]}), "text");
    }

    void redirect_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("text");
        QTest::newRow("as the form starts") << u"http://"_s << u"Response.redirect\"http://\""_s;
        QTest::newRow("empty") << u""_s << u"Response.redirect\"\""_s;
        QTest::newRow("as typed") << u"/ü?a=\"b\"&c<d>"_s << u"Response.redirect\"/ü?a=\"b\"&c<d>\""_s;
    }

    void redirect()
    {
        QFETCH(QString, address);
        QTEST(redirectStatement(address), "text");
    }

    void anyFieldsFillTheTemplates()
    {
        QRandomGenerator random(7601);
        for (int i = 0; i < 2000; ++i) {
            const QStringList f = generatedFields(random, 5);
            QCOMPARE(cookieMarkup({f[0], f[1], f[2]}),
                     filled(u"<%\n  Response.Cookies('Type') = '①'\n  Response.Cookies('Type').Expires = '②'\n"
                            "  Response.Cookies('Type').Domain =''\n Response.Cookies('Type').Path = '③'\n"
                            "Response.Cookies('Type').Secure = FALSE \n%>"_s,
                            f));
            const QString otherwise = f[4].isEmpty() ? QString() : u"Else\n⑤\n"_s;
            QCOMPARE(ifMarkup({f[0], f[1], f[2], f[3], f[4]}),
                     filled(u"<% If ① ② ③ Then \n④\n"_s + otherwise + u"End If %>\n"_s, f));
            QCOMPARE(redirectStatement(f[0]), filled(u"Response.redirect'①'"_s, f));
        }
    }
};

ZEPHIRA_TEST(TstScriptMarkup)

#include "tst_scriptmarkup.moc"
