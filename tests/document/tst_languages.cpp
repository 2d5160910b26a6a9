// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/languages.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("editorLanguage");
        QTest::addColumn<bool>("open");
        QTest::newRow("Text") << 0 << u"Text"_s << u""_s << false;
        QTest::newRow("HTML") << 1 << u"HTML"_s << u"HTML"_s << true;
        QTest::newRow("C") << 2 << u"C/C++"_s << u"C/C++"_s << false;
        QTest::newRow("Perl") << 3 << u"Perl"_s << u"Perl"_s << true;
        QTest::newRow("XML") << 4 << u"XML"_s << u"XML"_s << true;
        QTest::newRow("Basic") << 5 << u"Basic"_s << u"Basic"_s << false;
        QTest::newRow("Pascal") << 6 << u"Pascal"_s << u"Pascal"_s << false;
        QTest::newRow("Java") << 7 << u"Java / Script"_s << u"java"_s << true;
        QTest::newRow("CSS") << 8 << u"Style Sheets"_s << u"java"_s << true;
        QTest::newRow("SQL") << 9 << u"SQL"_s << u"java"_s << true;
    }

    void rows()
    {
        QFETCH(int, row);
        const LanguageRow &language = languageRows()[size_t(row)];
        QTEST(QStringView(language.text).toString(), "text");
        QTEST(QStringView(language.editorLanguage).toString(), "editorLanguage");
        QTEST(language.markupTools, "open");
    }

    void extension_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("row"); // -1: no step
        const auto add = [](const char *name, int row) { QTest::newRow(name) << QString::fromLatin1(name) << row; };
        add("/a/x.c", 2);
        add("/a/x.h", 2);
        add("x.pl", 3);
        add("x.js", 7);
        add("LOUD.JS", 7);
        add("x.txt", 0);
        add("x.ini", 0);
        add("x.log", 0);
        add("x.htm", 1);
        add("page.asp", 1);
        add("x.vbs", 1);
        add("x.cpp", 2);
        add("x.cgi", 3);
        add("x.xml", 4);
        add("x.bas", 5);
        add("x.frm", 5);
        add("x.vbp", 5);
        add("x.pas", 6);
        add("x.css", 8);
        add("x.sql", 9);
        add("x.html", 1);
        add("x.java", 7);
        add("archive.tar.gz", -1);
        add("x.jpeg", -1);
        add("html", -1);
        add("", -1);
    }

    void extension()
    {
        QFETCH(QString, name);
        QFETCH(int, row);
        const std::vector<SyntaxStep> steps = syntaxSteps(name);
        QCOMPARE(steps.size(), row < 0 ? size_t(0) : size_t(1));
        if (row >= 0)
            QCOMPARE(steps.front().row, row);
    }

    void headerNamesItsLanguageDirectly()
    {
        const std::vector<SyntaxStep> steps = syntaxSteps(u"stdio.H"_s);
        QCOMPARE(steps.size(), size_t(1));
        QVERIFY(steps.front() == (SyntaxStep{2, u"c/c++"_s}));
        QVERIFY(!syntaxSteps(u"a.c"_s).front().editorLanguage);
    }

    void saveFilters()
    {
        QCOMPARE(QStringView(languageRows()[0].saveFilter).toString(), u"Text Files|*.txt|All Files|*.*"_s);
        QCOMPARE(QStringView(languageRows()[1].saveFilter).toString(),
                 u"HTML Files|*.html|ASP File|*.asp|VBScript File|*.vbs|All Files|*.*"_s);
        QCOMPARE(QStringView(languageRows()[5].saveFilter).toString(),
                 u"Module (BAS) Files|*.bas|Basic Project File|*.vbp|Visual Basic Form File|*.frm|All Files|*.*"_s);
        QCOMPARE(QStringView(languageRows()[7].saveFilter).toString(),
                 u"Java Script|*.js|Java|*.java|All Files|*.*|Text Files|*.txt|Html Files|*.html;*.htm|"
                 u"Style Sheets|*.css|C Files|*.c|C++ Files|*.cpp|C/C++ H Files|*.h|Perl Files|*.pl|"
                 u"CGI/Perl Files|*.cgi|XML Files|*.xml|Pascal Files|*.pas|Basic Module Files|*.bas|"
                 u"Basic Form Files|*.frm|Basic Project Files|*.vbp"_s);
    }
};

ZEPHIRA_TEST(TstLanguages)
#include "tst_languages.moc"
