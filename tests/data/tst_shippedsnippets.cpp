// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datafile.h"
#include "files/iniconfiguration.h"
#include "panes/customtabfile.h"
#include "support/testregistry.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QStringList tabFiles()
{
    return QDir(shippedFolder() + u"ctabs"_s).entryList(QDir::Files);
}

/// The entries of a file of the folder ctabs.
std::vector<CustomTabFile::Entry> entriesOf(const QString &file)
{
    return parseCustomTab(shippedLines(u"ctabs/"_s + file)).entries;
}

bool hasEntry(const QString &file, const QString &title, const QString &code)
{
    const auto entries = entriesOf(file);
    return std::ranges::find(entries, CustomTabFile::Entry{title, code}) != entries.end();
}

void addFiles()
{
    QTest::addColumn<QString>("file");
    const QStringList all = tabFiles();
    for (const QString &file : all)
        QTest::newRow(qPrintable(file)) << file;
}

} // namespace

/// The snippets of the custom tabs.
class TstShippedSnippets final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachTabHasAFileOfItsOwn()
    {
        QStringList names;
        for (int tab = 1; tab <= 6; ++tab) {
            const QString name = ReadIni(u"ctab"_s, QString::number(tab), shippedFolder() + u"zephira.ini"_s);
            QVERIFY2(tabFiles().contains(name), qPrintable(name));
            names << name;
        }
        QCOMPARE(repeated(names), QStringList());
        QCOMPARE(names.first(), u"css.txt"_s);
    }

    void isWellFormed_data() { addFiles(); }

    void isWellFormed()
    {
        QFETCH(QString, file);
        QCOMPARE(faultOf(u"ctabs/"_s + file, u"\r\n"_s), QString());
        // An added entry begins with a line end, so one at the end of the file would result in an empty entry.
        QVERIFY(!shippedText(u"ctabs/"_s + file).endsWith(u'\n'));
        const QStringList lines = shippedLines(u"ctabs/"_s + file);
        QVERIFY(lines.size() >= 3);
        QVERIFY(!lines.first().isEmpty());
        for (qsizetype i = 1; i < lines.size(); i += 2) {
            QVERIFY2(lines[i].startsWith(u"#EXTINF,"_s) && lines[i].size() > 8, qPrintable(lines[i]));
            QVERIFY2(i + 1 < lines.size(), qPrintable(lines[i]));
            QVERIFY2(!lines[i + 1].isEmpty() && !lines[i + 1].startsWith(u'#'), qPrintable(lines[i + 1]));
        }
    }

    void isReadAsItStands_data() { addFiles(); }

    void isReadAsItStands()
    {
        QFETCH(QString, file);
        const QStringList lines = shippedLines(u"ctabs/"_s + file);
        const CustomTabFile tab = parseCustomTab(lines);
        QCOMPARE(tab.header, lines.first());
        QCOMPARE(static_cast<qsizetype>(tab.entries.size()), (lines.size() - 1) / 2);
        QStringList titles;
        QStringList codes;
        for (qsizetype i = 0; i < static_cast<qsizetype>(tab.entries.size()); ++i) {
            const auto &[title, code] = tab.entries[static_cast<std::size_t>(i)];
            QCOMPARE(u"#EXTINF,"_s + title, lines[2 * i + 1]);
            QCOMPARE(code, lines[2 * i + 2]);
            titles << title;
            codes << code;
        }
        QCOMPARE(repeated(titles), QStringList());
        QCOMPARE(repeated(codes), QStringList());
    }

    void cssPropertiesAreAnIndex()
    {
        const auto entries = entriesOf(u"css.txt"_s);
        QVERIFY(entries.size() >= 450);
        static const QRegularExpression name(u"^(--)?[a-z]+(-[a-z]+)*$"_s);
        QString before;
        for (const auto &[title, code] : entries) {
            QVERIFY2(name.match(title).hasMatch(), qPrintable(title));
            QVERIFY2(before < title, qPrintable(title));
            QCOMPARE(code, title + u": ;"_s);
            before = title;
        }
    }

    void cssProperties_data()
    {
        QTest::addColumn<QString>("property");
        for (const char *property : {"accent-color",
                                     "align-items",
                                     "all",
                                     "anchor-name",
                                     "animation",
                                     "aspect-ratio",
                                     "backdrop-filter",
                                     "background",
                                     "border",
                                     "border-block-start",
                                     "border-radius",
                                     "box-shadow",
                                     "box-sizing",
                                     "break-inside",
                                     "clip-path",
                                     "color",
                                     "color-scheme",
                                     "column-count",
                                     "contain",
                                     "container-type",
                                     "content-visibility",
                                     "cursor",
                                     "display",
                                     "fill",
                                     "filter",
                                     "flex",
                                     "font",
                                     "font-variation-settings",
                                     "gap",
                                     "grid-template-areas",
                                     "hyphens",
                                     "inset",
                                     "inset-inline",
                                     "isolation",
                                     "justify-content",
                                     "line-height",
                                     "margin",
                                     "margin-inline-start",
                                     "mask",
                                     "object-fit",
                                     "offset-path",
                                     "opacity",
                                     "order",
                                     "outline",
                                     "overflow",
                                     "overscroll-behavior",
                                     "padding-block",
                                     "place-items",
                                     "pointer-events",
                                     "position",
                                     "position-try-fallbacks",
                                     "print-color-adjust",
                                     "row-gap",
                                     "scale",
                                     "scroll-snap-type",
                                     "scrollbar-width",
                                     "shape-outside",
                                     "stroke-dasharray",
                                     "tab-size",
                                     "text-decoration",
                                     "text-underline-offset",
                                     "text-wrap",
                                     "touch-action",
                                     "transform",
                                     "transition-behavior",
                                     "user-select",
                                     "view-transition-name",
                                     "visibility",
                                     "white-space",
                                     "will-change",
                                     "writing-mode",
                                     "z-index",
                                     "--name"})
            QTest::newRow(property) << QString::fromLatin1(property);
    }

    void cssProperties()
    {
        QFETCH(QString, property);
        QVERIFY(hasEntry(u"css.txt"_s, property, property + u": ;"_s));
    }

    void entitiesAreReferences()
    {
        static const QRegularExpression reference(u"^&(#[0-9]+|[A-Za-z]+[0-9]*);$"_s);
        for (const auto &[title, code] : entriesOf(u"entities.txt"_s))
            QVERIFY2(reference.match(code).hasMatch(), qPrintable(code));
    }

    void accessibilityKeepsToItsNames()
    {
        static const QRegularExpression attribute(u"^aria-[a-z]+=\"[a-z0-9 ]*\"$"_s);
        static const QRegularExpression role(u"^role=\"[a-z]+\"$"_s);
        for (const auto &[title, code] : entriesOf(u"aria.txt"_s)) {
            QVERIFY2(!code.startsWith(u"aria-"_s) || attribute.match(code).hasMatch(), qPrintable(code));
            QCOMPARE(title.startsWith(u"Role: "_s), role.match(code).hasMatch());
        }
    }

    void bracketsAreClosed_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file : {"css.txt", "atrules.txt", "scripts.txt", "aria.txt"})
            QTest::newRow(file) << QString::fromLatin1(file);
    }

    void bracketsAreClosed()
    {
        QFETCH(QString, file);
        for (const auto &[title, code] : entriesOf(file))
            QVERIFY2(isBalanced(code), qPrintable(code));
    }

    void entries_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("code");
        const auto row = [](const QString &file, const QString &title, const QString &code) {
            QTest::newRow(qPrintable(title)) << file << title << code;
        };
        row(u"entities.txt"_s, u"©  copyright"_s, u"&copy;"_s);
        row(u"entities.txt"_s, u"&  ampersand"_s, u"&amp;"_s);
        row(u"entities.txt"_s, u"–  en dash"_s, u"&ndash;"_s);
        row(u"entities.txt"_s, u"ß  sharp s"_s, u"&szlig;"_s);
        row(u"atrules.txt"_s, u"@layer"_s, u"@layer base { }"_s);
        row(u"atrules.txt"_s, u"Reader prefers dark colors"_s, u"@media (prefers-color-scheme: dark) { }"_s);
        row(u"html.txt"_s, u"Document type"_s, u"<!DOCTYPE html>"_s);
        row(u"html.txt"_s, u"Head: character set"_s, u"<meta charset=\"utf-8\">"_s);
        row(u"scripts.txt"_s, u"Element by id"_s, u"document.getElementById(\"\")"_s);
        row(u"aria.txt"_s, u"Label"_s, u"aria-label=\"\""_s);
        row(u"aria.txt"_s, u"Role: status"_s, u"role=\"status\""_s);
        row(u"asp.txt"_s, u"Write"_s, u"<%= %>"_s);
    }

    void entries()
    {
        QFETCH(QString, file);
        QFETCH(QString, title);
        QFETCH(QString, code);
        QVERIFY(hasEntry(file, title, code));
    }
};

ZEPHIRA_TEST(TstShippedSnippets)

#include "tst_shippedsnippets.moc"
