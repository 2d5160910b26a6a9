// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datafile.h"
#include "support/testregistry.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// All scripts of the library, relative to the shipped folder.
QStringList scriptFiles()
{
    QStringList files;
    QDirIterator scripts(shippedFolder() + u"Scripts"_s, QDir::Files, QDirIterator::Subdirectories);
    while (scripts.hasNext())
        files << QDir(shippedFolder()).relativeFilePath(scripts.next());
    files.sort();
    return files;
}

/// What the pattern's first group captures in each match.
QStringList allMatches(const QString &text, const QString &pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

void addFiles()
{
    QTest::addColumn<QString>("file");
    const QStringList all = scriptFiles();
    for (const QString &file : all)
        QTest::newRow(qPrintable(file)) << file;
}

} // namespace

/// The script library: pieces of code that are inserted into a page unchanged.
class TstShippedScripts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isALibrary()
    {
        const QStringList files = scriptFiles();
        QVERIFY(files.size() >= 90);
        QSet<QString> folders;
        QStringList titles;
        for (const QString &file : files) {
            const QFileInfo info(file);
            folders << info.path();
            titles << info.fileName();
            QVERIFY2(file.endsWith(u".spt"_s), qPrintable(file));
            // Names must work on every file system and read as titles.
            static const QRegularExpression name(u"^[A-Z][A-Za-z, -]+$"_s);
            QVERIFY2(name.match(info.completeBaseName()).hasMatch(), qPrintable(file));
        }
        QVERIFY(folders.size() >= 13);
        // Until a folder is chosen, the list shows the root, so the root must not be empty.
        QVERIFY(folders.contains(u"Scripts"_s));
        QCOMPARE(repeated(titles), QStringList());
    }

    void isText_data() { addFiles(); }

    void isText()
    {
        QFETCH(QString, file);
        QCOMPARE(faultOf(file, u"\r\n"_s), QString());
        const QString text = shippedText(file);
        QVERIFY(text.endsWith(u"\r\n"_s) && !text.endsWith(u"\r\n\r\n"_s));
        // It begins with a sentence on what it does and where to put it.
        const QStringList lines = shippedLines(file);
        const QString &first = lines[lines.first() == u"<%"_s || lines.first() == u"<!DOCTYPE html>"_s ? 1 : 0];
        QVERIFY2(first.startsWith(u"<!-- "_s) || first.startsWith(u"' "_s), qPrintable(first));
        QVERIFY2(first.size() > 30, qPrintable(first));
    }

    void isClosed_data() { addFiles(); }

    void isClosed()
    {
        QFETCH(QString, file);
        const QString text = shippedText(file);
        for (const QString &element :
             {u"script"_s, u"style"_s, u"template"_s, u"dialog"_s, u"form"_s, u"nav"_s, u"table"_s, u"button"_s,
              u"label"_s, u"ul"_s, u"ol"_s, u"div"_s, u"section"_s, u"figure"_s}) {
            const QRegularExpression begin(u"<%1[ >]"_s.arg(element));
            QCOMPARE(text.count(begin), text.count(u"</%1>"_s.arg(element)));
        }
        QCOMPARE(text.count(u"<!--"_s), text.count(u"-->"_s));
        QCOMPARE(text.count(u"<%"_s), text.count(u"%>"_s));
        const QStringList bodies = allMatches(text, u"<(?:script|style)[^>]*>(.*?)</(?:script|style)>"_s);
        for (const QString &body : bodies) {
            QVERIFY(!body.trimmed().isEmpty());
            for (const auto &[open, close] : {std::pair(u'{', u'}'), std::pair(u'(', u')')})
                QCOMPARE(body.count(open), body.count(close));
            // Each level is indented by two blanks.
            const QStringList all = body.split(u"\r\n"_s);
            for (const QString &line : all) {
                const auto blanks = std::ranges::find_if(line, [](QChar letter) { return letter != u' '; });
                QVERIFY2((blanks - line.begin()) % 2 == 0, qPrintable(line));
            }
        }
    }

    void namesFindTheirElements_data() { addFiles(); }

    void namesFindTheirElements()
    {
        QFETCH(QString, file);
        const QString text = shippedText(file);
        const QStringList names = allMatches(text, u" id=\"([^\"]+)\""_s);
        QCOMPARE(repeated(names), QStringList());
        QStringList asked = allMatches(text, u"getElementById\\(\"([^\"]+)\"\\)"_s);
        for (const QString &attribute : {u"for"_s, u"aria-controls"_s, u"aria-labelledby"_s, u"aria-describedby"_s,
                                         u"data-copy"_s, u"data-full"_s, u"data-player"_s, u"data-filter"_s}) {
            const QStringList values = allMatches(text, u" %1=\"([^\"$]+)\""_s.arg(attribute));
            for (const QString &value : values)
                asked += value.split(u' ');
        }
        for (const QString &name : std::as_const(asked))
            QVERIFY2(names.contains(name), qPrintable(name));
    }

    void isModernAndAccessible_data() { addFiles(); }

    void isModernAndAccessible()
    {
        QFETCH(QString, file);
        const QString text = shippedText(file);
        for (const QString &old : {u"document.write"_s, u"document.all"_s, u"language="_s, u"<font"_s, u"<center"_s,
                                   u"XMLHttpRequest"_s, u"eval("_s, u" == null"_s})
            QVERIFY2(!text.contains(old), qPrintable(old));
        const QStringList images = allMatches(text, u"(<img [^>]*>)"_s);
        for (const QString &image : images)
            QVERIFY2(image.contains(u" alt=\""_s), qPrintable(image));
        const QStringList bodies = allMatches(text, u"<script[^>]*>(.*?)</script>"_s);
        for (const QString &body : bodies) {
            QVERIFY(!body.contains(QRegularExpression(u"\\bvar "_s)));
            // Only strict comparisons are allowed.
            QVERIFY(!body.contains(QRegularExpression(u"[^=!]==[^=]|!=[^=]"_s)));
        }
        // Animations respect the user's preference for reduced motion.
        if (text.contains(u"requestAnimationFrame"_s) || text.contains(u"transition:"_s) || text.contains(u"smooth"_s))
            QVERIFY(text.contains(u"prefers-reduced-motion"_s));
    }
};

ZEPHIRA_TEST(TstShippedScripts)

#include "tst_shippedscripts.moc"
