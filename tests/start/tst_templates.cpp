// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/languages.h"
#include "start/customtemplates.h"
#include "start/templates.h"
#include "support/fakes.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTemplates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttons_data();
    void buttons();
    void everyButtonOnce();
    void everyFileIsShipped();
    void languageByName_data();
    void languageByName();
    void text_data();
    void text();
    void missingFile();
    void unreadableFile();
    void customNames();
    void renaming();
    void renamingToTheOwnName();
    void renamingFails();
};

void TstTemplates::buttons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("language");
    const struct {
        const char *name;
        int page;
        const char *caption;
        const char *file;
        int language;
    } rows[] = {
        {"Command2", 0, "Blank Page", "blank.html", 1},
        {"Command3", 0, "F.A.Q. Page", "faq.html", 1},
        {"Command4", 0, "Feedback Page", "feedback.html", 1},
        {"Command5", 0, "About Page", "about.html", 1},
        {"Command6", 0, "2 Column Article Page", "2columnbody.html", 1},
        {"Command7", 0, "Redirection Page", "redirect.html", 1},
        {"Command8", 0, "2 Column Staggered ", "staggeredbody.html", 1},
        {"Command9", 0, "Table of Contents ", "toc.html", 1},
        {"Command11", 0, "One Center Column", "onecolumn.html", 1},
        {"Command12", 0, "Confirmation Page", "confirm.html", 1},
        {"Command16", 1, "", "footer.html", 1},
        {"Command17", 1, "", "scframe.html", 1},
        {"Command18", 1, "", "schframe.html", 1},
        {"Command19", 1, "", "linkheaderframe.html", 1},
        {"Command20", 1, "", "schfframe.html", 1},
        {"Command21", 1, "", "123topframe.html", 1},
        {"Command22", 1, "", "slhcframe.html", 1},
        {"Command23", 1, "", "5050.html", 1},
        {"Command13", 2, "Cool Blue", "coolblue.css", 8},
        {"Command15", 2, "Street Style", "street.css", 8},
        {"Command24", 2, "RGB", "redgreenblue.css", 8},
        {"Command25", 2, "Neon", "neon.css", 8},
        {"Command26", 2, "Mellow Yellow", "mellowyellow.css", 8},
        {"Command27", 2, "Explore", "explorer.css", 8},
        {"Command36", 3, "CGI Script", "cgi.cgi", 3},
        {"Command33", 3, "Warranty Disclaimer", "warranty.html", 1},
        {"Command14", 3, "Javascript Source", "js.js", 7},
        {"Command29", 3, "Robot Exclusion", "robots.txt", 0},
        {"Command30", 3, "Java Program", "java.java", 7},
        {"Command31", 3, "Company \u00a9 Notice", "copyright.html", 1},
        {"Command32", 3, "Mission Statement", "mission.html", 1},
        {"Command28", 4, "C File", "", 2},
        {"Command34", 4, "Basic File", "", 5},
        {"Command35", 4, "Pascal File", "", 6},
    };
    for (const auto &row : rows) {
        QTest::newRow(row.name) << QString::fromUtf8(row.name) << row.page << QString::fromUtf8(row.caption)
                                << QString::fromUtf8(row.file) << row.language;
    }
}

void TstTemplates::buttons()
{
    QFETCH(QString, name);
    const auto buttons = templateButtons();
    const auto button = std::ranges::find_if(buttons, [&](const TemplateButton &each) { return each.name == name; });
    QVERIFY(button != buttons.end());
    QTEST(static_cast<int>(button->page), "page");
    QTEST(button->caption.toString(), "caption");
    QTEST(button->file.toString(), "file");
    QTEST(button->language, "language");
}

void TstTemplates::everyButtonOnce()
{
    QSet<QString> names;
    for (const TemplateButton &button : templateButtons())
        names.insert(button.name.toString());
    QCOMPARE(templateButtons().size(), 34U);
    QCOMPARE(names.size(), 34);
}

void TstTemplates::everyFileIsShipped()
{
    const QDir folder(sourcePath(u"data/templates"_s));
    for (const TemplateButton &button : templateButtons()) {
        if (!button.file.isEmpty())
            QVERIFY2(folder.exists(button.file.toString()), qPrintable(button.file.toString()));
    }
}

void TstTemplates::languageByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("editorLanguage");
    const struct {
        const char *name;
        int row;
        const char *editorLanguage;
    } rows[] = {
        {"x.c", 2, "c/c++"}, {"x.H", 2, "c/c++"}, {"x.pl", 3, ""},   {"x.js", 7, ""},   {"x.txt", 0, ""},
        {"x.ini", 0, ""},    {"x.log", 0, ""},    {"x.htm", 1, ""},  {"x.asp", 1, ""},  {"x.vbs", 1, ""},
        {"x.cpp", 2, ""},    {"x.cgi", 3, ""},    {"x.xml", 4, ""},  {"x.bas", 5, ""},  {"x.frm", 5, ""},
        {"x.vbp", 5, ""},    {"x.pas", 6, ""},    {"x.css", 8, ""},  {"x.HTML", 1, ""}, {".js", 7, ""},
        {"x.sql", -1, ""},   {"x.java", -1, ""},  {"x.php", -1, ""}, {"x", -1, ""},     {"xjs", -1, ""},
        {"", -1, ""},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << QString::fromUtf8(row.name) << row.row << QString::fromUtf8(row.editorLanguage);
}

void TstTemplates::languageByName()
{
    QFETCH(QString, name);
    QFETCH(int, row);
    QFETCH(QString, editorLanguage);
    const auto language = languageOfTemplate(name);
    QCOMPARE(language.has_value(), row >= 0);
    if (language)
        QCOMPARE(*language, (LanguageChoice{row, editorLanguage}));
}

void TstTemplates::text_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("line feeds") << QByteArray("a\nb\n") << u"a\r\nb\r\n"_s;
    QTest::newRow("both") << QByteArray("a\r\nb") << u"a\r\nb"_s;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf\xc3\xa4") << u"ä"_s;
    QTest::newRow("Windows-1252") << QByteArray("\xe4 \x80") << u"ä €"_s;
    QTest::newRow("empty") << QByteArray() << u""_s;
}

void TstTemplates::text()
{
    QFETCH(QByteArray, bytes);
    MemoryFileStore files;
    files.contents[u"/t/x.html"_s] = bytes;
    const Result<QString> text = readTemplate(files, u"/t/x.html"_s);
    QVERIFY(text.ok());
    QTEST(text.value(), "text");
}

void TstTemplates::missingFile()
{
    const Result<QString> text = readTemplate(MemoryFileStore(), u"/app/templates/faq.html"_s);
    QVERIFY(!text.ok());
    QCOMPARE(text.error().sentence, u"The template file \"faq.html\" was not found in the folder\r\n/app/templates"_s);
}

void TstTemplates::unreadableFile()
{
    MemoryFileStore files;
    files.unreadable[u"/t/x"_s] = {Error::Code::Unreadable, u"No."_s};
    const Result<QString> text = readTemplate(files, u"/t/x"_s);
    QVERIFY(!text.ok());
    QCOMPARE(text.error().sentence, u"No."_s);
}

void TstTemplates::customNames()
{
    const QTemporaryDir folder;
    for (const QString &name : {u"b.html"_s, u"A.txt"_s, u"noext"_s})
        QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    QVERIFY(QDir(folder.path()).mkdir(u"sub"_s));
    QCOMPARE(customTemplateNames(folder.path()), (QStringList{u"A.txt"_s, u"b.html"_s, u"noext"_s}));
    QCOMPARE(customTemplateNames(folder.filePath(u"none"_s)), QStringList());
}

void TstTemplates::renaming()
{
    MemoryFileStore files;
    files.contents[u"/c/old.html"_s] = "text";
    QVERIFY(renameCustomTemplate(files, u"/c"_s, u"old.html"_s, u"new.html"_s).ok());
    QCOMPARE(files.log, (QStringList{u"write /c/new.html"_s, u"remove /c/old.html"_s}));
    QCOMPARE(files.contents.at(u"/c/new.html"_s), "text");
}

void TstTemplates::renamingToTheOwnName()
{
    MemoryFileStore files;
    files.contents[u"/c/x.html"_s] = "text";
    QVERIFY(renameCustomTemplate(files, u"/c"_s, u"x.html"_s, u"x.html"_s).ok());
    QVERIFY(files.contents.empty());
}

void TstTemplates::renamingFails()
{
    MemoryFileStore files;
    files.contents[u"/c/x.html"_s] = "text";
    files.unwritable[u"/c/y/z"_s] = {Error::Code::Unwritable, u"No such folder."_s};
    QVERIFY(!renameCustomTemplate(files, u"/c"_s, u"x.html"_s, u"y/z"_s).ok());
    QVERIFY(!renameCustomTemplate(files, u"/c"_s, u"none"_s, u"y"_s).ok());
    QCOMPARE(files.contents.size(), 1U);
}

ZEPHIRA_TEST(TstTemplates)

#include "tst_templates.moc"
