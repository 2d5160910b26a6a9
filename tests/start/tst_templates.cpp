// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/languages.h"
#include "files/recoverycopies.h"
#include "start/customtemplates.h"
#include "start/documenttext.h"
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
    void init();
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
    void notAText();
    void utf16IsAText();
    void renaming();
    void renamingToTheOwnName();
    void renamingOverAnother();
    void renamingFails();
    void renamingWithoutAFolderForCopies();
    void documentText();
    void documentTextStaysWithoutACopy();

private:
    Result<void> rename(const QString &oldName, const QString &newName);
    QList<QByteArray> kept(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    FakeClock m_clock;
    MemoryFileStore m_files;
};

void TstTemplates::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_files = MemoryFileStore();
}

/// Renames a template in the folder "/c", with an empty folder for recovery copies.
Result<void> TstTemplates::rename(const QString &oldName, const QString &newName)
{
    RecoveryCopies recovery(m_folder->filePath(u"recovery"_s), m_files, m_clock);
    return renameCustomTemplate(m_files, recovery, u"/c"_s, oldName, newName);
}

/// The recovery copies of the file with that name.
QList<QByteArray> TstTemplates::kept(const QString &name) const
{
    QList<QByteArray> copies;
    for (const auto &[path, bytes] : m_files.contents) {
        if (path.startsWith(m_folder->filePath(u"recovery/disk-"_s)) && path.endsWith(u'-' + name))
            copies.append(bytes);
    }
    return copies;
}

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

void TstTemplates::notAText()
{
    MemoryFileStore files;
    files.contents[u"/t/logo.png"_s] = QByteArray("\x89PNG\r\n\0\1", 8);
    const Result<QString> text = readTemplate(files, u"/t/logo.png"_s);
    QVERIFY(!text.ok());
    QCOMPARE(text.error().sentence, u"The template file \"logo.png\" is not a text file."_s);
}

void TstTemplates::utf16IsAText()
{
    MemoryFileStore files;
    files.contents[u"/t/x.txt"_s] = QByteArray("\xff\xfe"
                                               "a\0",
                                               4);
    QCOMPARE(readTemplate(files, u"/t/x.txt"_s).valueOr({}), u"a"_s);
}

void TstTemplates::renaming()
{
    m_files.contents[u"/c/old.html"_s] = "text";
    QVERIFY(rename(u"old.html"_s, u"new.html"_s).ok());
    QCOMPARE(m_files.log, (QStringList{u"write /c/new.html"_s, u"remove /c/old.html"_s}));
    QCOMPARE(m_files.contents, (std::map<QString, QByteArray>{{u"/c/new.html"_s, "text"}}));
}

void TstTemplates::renamingToTheOwnName()
{
    m_files.contents[u"/c/x.html"_s] = "text";
    QVERIFY(rename(u"x.html"_s, u"x.html"_s).ok());
    QCOMPARE(m_files.log.mid(1), (QStringList{u"write /c/x.html"_s, u"remove /c/x.html"_s}));
    QCOMPARE(kept(u"x.html"_s), QList<QByteArray>{"text"});
    QCOMPARE(m_files.contents.size(), 1U);
}

void TstTemplates::renamingOverAnother()
{
    m_files.contents[u"/c/x.html"_s] = "text";
    m_files.contents[u"/c/y.html"_s] = "other";
    QVERIFY(rename(u"x.html"_s, u"y.html"_s).ok());
    QCOMPARE(kept(u"y.html"_s), QList<QByteArray>{"other"});
    QCOMPARE(m_files.contents.at(u"/c/y.html"_s), "text");
    QVERIFY(!m_files.contents.contains(u"/c/x.html"_s));
}

/// What fails before the copy is written changes nothing.
void TstTemplates::renamingFails()
{
    m_files.contents[u"/c/x.html"_s] = "text";
    m_files.contents[u"/c/y.html"_s] = "other";
    const std::map<QString, QByteArray> before = m_files.contents;
    m_files.unwritable[u"/c/z.html"_s] = {Error::Code::Unwritable, u"Full."_s};
    m_files.unreadable[u"/c/y.html"_s] = {Error::Code::Unreadable, u"No."_s};
    QCOMPARE(rename(u"x.html"_s, u"z.html"_s).error().sentence, u"Full."_s);
    QCOMPARE(
        rename(u"x.html"_s, u"y.html"_s).error().sentence,
        u"The template was not renamed, because the file \"y.html\", which would be overwritten, could not be backed "
        "up. No."_s);
    QVERIFY(!rename(u"none"_s, u"y"_s).ok());
    QCOMPARE(rename(u"x.html"_s, u"../x.html"_s).error().code, Error::Code::Refused);
    QCOMPARE(m_files.contents, before);
}

void TstTemplates::renamingWithoutAFolderForCopies()
{
    m_files.contents[u"/c/x.html"_s] = "text";
    QVERIFY(QFile(m_folder->filePath(u"file"_s)).open(QIODevice::WriteOnly));
    RecoveryCopies impossible(m_folder->filePath(u"file/recovery"_s), m_files, m_clock);
    QVERIFY(!renameCustomTemplate(m_files, impossible, u"/c"_s, u"x.html"_s, u"x.html"_s).ok());
    QCOMPARE(m_files.contents.at(u"/c/x.html"_s), "text");
    QVERIFY(m_files.log.isEmpty());
}

void TstTemplates::documentText()
{
    TestContext world;
    world.editor.setText(u"old"_s);
    RecoveryCopies recovery(m_folder->filePath(u"recovery"_s), world.files, world.clock);
    QVERIFY(replaceDocumentText(world, recovery, u"new"_s).ok());
    QCOMPARE(world.editor.text(), u"new"_s);
    QVERIFY(world.files.contents.empty()); // Nothing was unsaved.

    world.document.modified = true;
    world.document.dialogFile = u"/site/page.html"_s;
    QVERIFY(replaceDocumentText(world, recovery, u"newer"_s).ok());
    QCOMPARE(world.editor.text(), u"newer"_s);
    QCOMPARE(world.files.contents.size(), 1U);
    const auto &[path, bytes] = *world.files.contents.begin();
    QVERIFY2(path.startsWith(recovery.folder() + u"/open-"_s) && path.endsWith(u"-page.html"_s), qPrintable(path));
    QCOMPARE(bytes, "new");

    world.document.dialogFile.clear();
    QVERIFY(replaceDocumentText(world, recovery, u""_s).ok());
    QVERIFY(std::ranges::any_of(world.files.contents,
                                [](const auto &file) { return file.first.endsWith(u"-New Document"_s); }));
    QVERIFY(replaceDocumentText(world, recovery, u"last"_s).ok());
    QCOMPARE(world.files.contents.size(), 2U); // An empty text isn't worth a copy.
}

void TstTemplates::documentTextStaysWithoutACopy()
{
    TestContext world;
    world.editor.setText(u"old"_s);
    world.document.modified = true;
    QVERIFY(QFile(m_folder->filePath(u"file"_s)).open(QIODevice::WriteOnly));
    RecoveryCopies recovery(m_folder->filePath(u"file/recovery"_s), world.files, world.clock);
    const Result<void> replaced = replaceDocumentText(world, recovery, u"new"_s);
    QVERIFY(!replaced.ok());
    QVERIFY2(replaced.error().sentence.startsWith(
                 u"The document's text was not replaced, because its unsaved changes could not be backed up. "_s),
             qPrintable(replaced.error().sentence));
    QCOMPARE(world.editor.text(), u"old"_s);
}

ZEPHIRA_TEST(TstTemplates)

#include "tst_templates.moc"
