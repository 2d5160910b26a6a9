// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/languages.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// A caption of a dialog's filter, and the extensions of its patterns.
struct FilterGroup {
    QString caption;
    QStringList extensions;
};

QList<FilterGroup> groupsOf(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QList<FilterGroup> groups;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList extensions = parts[i + 1].split(u';');
        for (QString &extension : extensions)
            extension = extension.section(u'.', -1);
        groups.append({parts[i], extensions});
    }
    return groups;
}

/// The language of an extension without its dot; nothing for an unknown one.
std::optional<language::Row> languageOf(const QString &extension)
{
    const FileType *type = fileTypeOf(u'.' + extension);
    return type ? type->row : std::nullopt;
}

/// The extensions that choose a language, in alphabetical order.
QStringList languageExtensions()
{
    QStringList extensions;
    for (const FileType &type : fileTypes()) {
        if (type.row)
            extensions.append(type.extension.toString());
    }
    extensions.sort();
    return extensions;
}

} // namespace

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
        const LanguageRow &language = languageRows()[static_cast<std::size_t>(row)];
        QTEST(language.text.toString(), "text");
        QTEST(language.editorLanguage.toString(), "editorLanguage");
        QTEST(language.markupTools, "open");
    }

    void extension_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("row"); // -1: none
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
        const std::optional<LanguageChoice> choice = languageOfFile(name);
        QCOMPARE(choice.has_value(), row >= 0);
        if (choice)
            QCOMPARE(choice->row, row);
    }

    void headerNamesItsLanguageDirectly()
    {
        QCOMPARE(languageOfFile(u"stdio.H"), (LanguageChoice{2, u"c/c++"_s}));
        QCOMPARE(languageOfFile(u"a.c"), (LanguageChoice{2, u""_s}));
    }

    void previews()
    {
        using enum PreviewKind;
        const PreviewKind kinds[] = {None, Page, None, None, File, None, None, File, StyleSheet, Unchanged};
        for (int row = 0; row < languageCount; ++row)
            QCOMPARE(languageRow(row)->preview, kinds[row]);
        QVERIFY(!languageRow(-1));
        QVERIFY(!languageRow(languageCount));
    }

    void imagesBecomeLinks_data()
    {
        QTest::addColumn<bool>("links");
        for (const char *language : {"HTML", "XML", "Perl", "Java Script"})
            QTest::newRow(language) << true;
        for (const char *language :
             {"Text", "C/C++", "Basic", "Pascal", "Java / Script", "Style Sheets", "SQL", "html", ""})
            QTest::addRow("not %s", language) << false;
    }

    void imagesBecomeLinks()
    {
        QTEST(linksImages(QString::fromLatin1(QTest::currentDataTag()).remove(u"not "_s)), "links");
    }

    void images_data()
    {
        QTest::addColumn<bool>("isImage");
        for (const char *name : {"a.gif", "a.BMP", "/x.y/a.jpg"})
            QTest::newRow(name) << true;
        for (const char *name : {"a.jpeg", "a.png", "gif", "a.gif/b", ""})
            QTest::addRow("%s", name) << false;
    }

    void images()
    {
        const FileType *type = fileTypeOf(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(type && type->isImage, "isImage");
    }

    void pictures_data()
    {
        QTest::addColumn<bool>("isPicture");
        for (const char *name :
             {"a.gif", "a.BMP", "a.jpg", "a.jpeg", "a.png", "a.svg", "a.webp", "a.avif", "a.ico", "b.tar.PNG", ".gif"})
            QTest::newRow(name) << true;
        for (const char *name : {"a.html", "a.gif.txt", "png", "a.png/b", "a.giff", ""})
            QTest::addRow("%s", name) << false;
    }

    void pictures() { QTEST(isPicture(QString::fromLatin1(QTest::currentDataTag())), "isPicture"); }

    void everyImageIsAPicture()
    {
        for (const FileType &type : fileTypes())
            QVERIFY2(type.isPicture || !type.isImage, qPrintable(type.extension.toString()));
    }

    void pages_data()
    {
        QTest::addColumn<bool>("isPage");
        for (const char *name : {"a.htm", "/x.y/A.HTML", "a.xhtml", "a.xht", "a.shtml", "a.htmltemp.html"})
            QTest::newRow(name) << true;
        for (const char *name : {"a.asp", "a.xml", "a.vbs", "html", "a.html/b", "a.html5", ""})
            QTest::addRow("%s", name) << false;
    }

    void pages() { QTEST(isPage(QString::fromLatin1(QTest::currentDataTag())), "isPage"); }

    void serverPages()
    {
        QVERIFY(isServerPage(u"/a/page.asp"));
        QVERIFY(isServerPage(u"http://localhost/a%20b.ASP"));
        QVERIFY(!isServerPage(u"/a/page.aspx"));
        QVERIFY(!isServerPage(u"/site.asp/page.htm"));
        QVERIFY(!isServerPage(u""));
    }

    void everyExtensionStandsOnce()
    {
        for (const FileType &type : fileTypes()) {
            const auto isSame = [&](const FileType &other) { return other.extension == type.extension; };
            QCOMPARE(std::ranges::count_if(fileTypes(), isSame), 1);
            QCOMPARE(type.extension.toString(), type.extension.toString().toLower());
        }
    }

    void openFilterIsLetterForLetter()
    {
        QCOMPARE(openFilter(),
                 u"All Supported Files|*.vbs;*.asp;*.ini;*.log;*.txt;*.htm;*.html;*.java;*css;*.js;*.c;*.cpp;*.h;*.pl;"
                 u"*.cgi;*.xml;*.pas;*.bas;*.frm;*.vbp;*.sql|All Files|*.*|Text / INI / LOG Files|*.txt;*.ini;*.log|"
                 u"Html Files|*.html;*.htm|Java / Script Files|*.js;*.java|Style Sheets|*.cs|C/C++ Files|"
                 u"*.c;*.cpp;*.h|Perl Files|*.pl|CGI/Perl Files|*.cgi|XML Files|*.xml|Pascal Files|*.pas|"
                 u"Basic Files|*.bas;*.frm;*.vbp|ASP / VBScript Files|*.asp;*.vbs|SQL Files|*.sql"_s);
    }

    void picturePatternsAreThoseOfAllPictures()
    {
        QCOMPARE(picturePatterns(), u"*.gif;*.bmp;*.jpg;*.png;*.svg;*.webp;*.jpeg;*.avif;*.ico"_s);
    }

    /// The groups have an order of their own, but each extension that chooses a language is in one of them, together
    /// with others of its language. Only the group of style sheets has a pattern for files that aren't any.
    void openGroupsHoldEveryExtensionOfALanguage()
    {
        QStringList listed;
        const QList<FilterGroup> groups = groupsOf(openFilter()).sliced(2);
        for (const FilterGroup &group : groups) {
            if (group.caption == u"Style Sheets") {
                QCOMPARE(group.extensions, QStringList{u"cs"_s});
                continue;
            }
            const std::optional<language::Row> row = languageOf(group.extensions.first());
            QVERIFY2(row, qPrintable(group.caption));
            for (const QString &extension : group.extensions)
                QVERIFY2(languageOf(extension) == row, qPrintable(extension));
            listed += group.extensions;
        }
        listed.append(u"css"_s);
        listed.sort();
        QCOMPARE(listed, languageExtensions());
    }

    /// Dialogs whose filters are texts of their own name no file type that the table doesn't know.
    void everyFilterInTheSourcesNamesKnownTypes()
    {
        static const QRegularExpression literals(u"\"((?:\\\\.|[^\"\\\\\\n])*)\""_s);
        static const QRegularExpression patterns(uR"([|;]\*\.(\w+))"_s);
        int found = 0;
        QDirIterator files(sourcePath(u"src"_s), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            // The list of filters in the table itself has a pattern for no type.
            if (file.fileName().endsWith(u"core/languages.cpp"))
                continue;
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (const QRegularExpressionMatch &literal : literals.globalMatch(text)) {
                for (const QRegularExpressionMatch &pattern : patterns.globalMatch(literal.captured(1))) {
                    QVERIFY2(fileTypeOf(u'.' + pattern.captured(1)),
                             qPrintable(file.fileName() + u": "_s + pattern.captured(1)));
                    ++found;
                }
            }
        }
        QVERIFY(found >= 10);
    }

    void defaultFiltersAreLetterForLetter()
    {
        QCOMPARE(defaultFilters(),
                 u"*.vbs;*.asp;*.ini;*.log;*.txt;*.htm;*.html;*css;*.js;*.c;*.cpp;*.h;*.pl;*.cgi;*.xml;*.pas;*.bas;"
                 u"*.frm;*.vbp;*.gif;*.bmp;*.jpg;*.java;*.sql"_s);
    }

    void shippedFiltersAddWhatIsNewer()
    {
        QCOMPARE(shippedFilters(),
                 defaultFilters()
                     + u";*.png;*.svg;*.webp;*.jpeg;*.avif;*.ico;*.json;*.php;*.xhtml;*.md;*.woff2;*.mjs;*.ts"_s);
    }

    void saveFilters()
    {
        const QStringList filters = {
            u"Text Files|*.txt|All Files|*.*"_s,
            u"HTML Files|*.html|ASP File|*.asp|VBScript File|*.vbs|All Files|*.*"_s,
            u"C++ File|*.cpp|All Files|*.*"_s,
            u"CGI Files|*.cgi|All Files|*.*"_s,
            u"XML Files|*.xml|All Files|*.*"_s,
            u"Module (BAS) Files|*.bas|Basic Project File|*.vbp|Visual Basic Form File|*.frm|All Files|*.*"_s,
            u"Pascal Files|*.pas|All Files|*.*"_s,
            u"Java Script|*.js|Java|*.java|All Files|*.*|Text Files|*.txt|Html Files|*.html;*.htm|"
            u"Style Sheets|*.css|C Files|*.c|C++ Files|*.cpp|C/C++ H Files|*.h|Perl Files|*.pl|"
            u"CGI/Perl Files|*.cgi|XML Files|*.xml|Pascal Files|*.pas|Basic Module Files|*.bas|"
            u"Basic Form Files|*.frm|Basic Project Files|*.vbp"_s,
            u"CSS Files|*.css|All Files|*.*"_s,
            u"SQL Files|*.sql|All Files|*.*"_s,
        };
        for (int row = 0; row < languageCount; ++row)
            QCOMPARE(languageRow(row)->saveFilter.toString(), filters.at(row));
    }

    /// Up to "All Files", the extensions are those of the language. Behind it, scripts list those of other languages.
    void saveFiltersNameExtensionsOfTheLanguage()
    {
        for (int row = 0; row < languageCount; ++row) {
            bool isBehindAll = false;
            const QList<FilterGroup> groups = groupsOf(languageRow(row)->saveFilter.toString());
            for (const FilterGroup &group : groups) {
                if (group.caption == u"All Files") {
                    QCOMPARE(group.extensions, QStringList{u"*"_s});
                    isBehindAll = true;
                    continue;
                }
                QVERIFY2(!isBehindAll || row == language::JavaScript, qPrintable(group.caption));
                const std::optional<language::Row> first = languageOf(group.extensions.first());
                for (const QString &extension : group.extensions) {
                    const std::optional<language::Row> found = languageOf(extension);
                    QVERIFY2(found && found == first && (found == row) != isBehindAll, qPrintable(extension));
                }
            }
            QVERIFY(isBehindAll);
        }
    }
};

ZEPHIRA_TEST(TstLanguages)
#include "tst_languages.moc"
