// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/documentkind.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstDocumentKind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byName_data()
    {
        QTest::addColumn<bool>("isPlain");
        for (const char *name :
             {"", "/site/page", "/site/a.htm", "/site/a.HTML", "/site/a.asp", "/site/a.php", "/a.css/b"})
            QTest::newRow(name) << false;
        for (const char *name : {"/a.vbs", "/a.js",  "/a.java", "/a.xml", "/a.css", "/a.c",   "/a.cpp",
                                 "/a.h",   "/a.pl",  "/a.cgi",  "/a.pas", "/a.bas", "/a.frm", "/a.vbp",
                                 "/a.txt", "/a.ini", "/a.log",  "/a.sql", "/a.mjs", "/a.ts",  "/a.html.TXT"})
            QTest::newRow(name) << true;
    }

    void byName()
    {
        QFETCH(bool, isPlain);
        const DocumentKind kind = documentKind(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(kind == DocumentKind::PlainText, isPlain);
    }
};

ZEPHIRA_TEST(TstDocumentKind)
#include "tst_documentkind.moc"
