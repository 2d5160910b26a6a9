// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datafile.h"
#include "support/testregistry.h"
#include "tags/builtintags.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The captions of the built-in tags of the tree.
QStringList builtInCaptions()
{
    QStringList captions;
    for (const BuiltInTag &tag : builtInTags())
        captions << tag.caption.toString();
    return captions;
}

} // namespace

/// The tags, the ASP codes and the selectors: each line is an entry that is pasted unchanged.
class TstShippedLists final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachLineIsAnEntry_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("atLeast");
        QTest::newRow("tags") << u"tags.dat"_s << 90;
        QTest::newRow("ASP codes") << u"asptags.dat"_s << 150;
        QTest::newRow("selectors") << u"deps/csssel.dat"_s << 200;
    }

    void eachLineIsAnEntry()
    {
        QFETCH(QString, file);
        QFETCH(int, atLeast);
        QCOMPARE(faultOf(file, u"\n"_s), QString());
        QVERIFY(shippedText(file).endsWith(u'\n'));
        const QStringList lines = shippedLines(file);
        QVERIFY(lines.size() >= atLeast);
        QVERIFY(!lines.contains(QString()));
        QCOMPARE(repeated(lines), QStringList());
        for (const QString &line : lines)
            QVERIFY2(isBalanced(line), qPrintable(line));
    }

    void noTagIsInTheTreeTwice()
    {
        QStringList captions = builtInCaptions();
        QCOMPARE(captions.size(), 37);
        captions += shippedLines(u"tags.dat"_s);
        for (QString &caption : captions)
            caption = caption.toLower();
        QCOMPARE(repeated(captions), QStringList());
    }

    void tagsAreClosedUnlessTheyAreVoid()
    {
        static const QRegularExpression element(u"^<([a-z][a-z0-9]*)( [^<>]*)?>(</\\1>)?$"_s);
        const QStringList voids = u"area base br col embed hr img input link meta source track wbr"_s.split(u' ');
        const QStringList all = shippedLines(u"tags.dat"_s);
        for (const QString &line : all) {
            if (line.startsWith(u"<!"))
                continue;
            const QRegularExpressionMatch match = element.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            QVERIFY2(voids.contains(match.captured(1)) == match.captured(3).isEmpty(), qPrintable(line));
        }
    }

    void elementsOfHtml_data()
    {
        QTest::addColumn<QString>("element");
        for (const char *name :
             {"a",          "abbr",   "address",  "article",  "aside",   "audio",      "b",        "bdi",    "bdo",
              "blockquote", "body",   "br",       "button",   "canvas",  "caption",    "cite",     "code",   "col",
              "colgroup",   "data",   "datalist", "dd",       "del",     "details",    "dfn",      "dialog", "div",
              "dl",         "dt",     "em",       "fieldset", "figure",  "figcaption", "footer",   "form",   "h1",
              "h4",         "h6",     "head",     "header",   "hgroup",  "hr",         "html",     "i",      "iframe",
              "img",        "input",  "ins",      "kbd",      "label",   "legend",     "li",       "link",   "main",
              "map",        "mark",   "menu",     "meta",     "meter",   "nav",        "noscript", "object", "ol",
              "optgroup",   "option", "output",   "p",        "picture", "pre",        "progress", "q",      "rp",
              "rt",         "ruby",   "s",        "samp",     "script",  "search",     "section",  "select", "slot",
              "small",      "source", "span",     "strong",   "style",   "sub",        "summary",  "sup",    "table",
              "tbody",      "td",     "template", "textarea", "tfoot",   "th",         "thead",    "time",   "title",
              "tr",         "track",  "u",        "ul",       "var",     "video",      "wbr"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void elementsOfHtml()
    {
        QFETCH(QString, element);
        const QString captions = u'\n' + (builtInCaptions() + shippedLines(u"tags.dat"_s)).join(u'\n');
        QVERIFY(captions.contains(QRegularExpression(u"\n<%1[ >]"_s.arg(element))));
    }

    void aspBlocksAreClosed()
    {
        const QStringList lines = shippedLines(u"asptags.dat"_s);
        for (const QString &line : lines) {
            QCOMPARE(line.count(u"<%"), line.count(u"%>"));
            QCOMPARE(line.count(u"<!--"), line.count(u"-->"));
        }
    }

    void aspObjects_data()
    {
        QTest::addColumn<QString>("entry");
        for (const char *entry : {"<%= %>",
                                  "<!-- #include virtual=\"\" -->",
                                  "<!-- #include file=\"\" -->",
                                  "<% Option Explicit %>",
                                  "Request.Form(\"\")",
                                  "Request.QueryString(\"\")",
                                  "Request.Cookies(\"\")",
                                  "Request.ServerVariables(\"\")",
                                  "Response.Write \"\"",
                                  "Response.Redirect \"\"",
                                  "Response.Cookies(\"\") = \"\"",
                                  "Server.MapPath(\"\")",
                                  "Server.HTMLEncode(\"\")",
                                  "Server.CreateObject(\"\")",
                                  "Session(\"\")",
                                  "Session.Abandon",
                                  "Application(\"\")",
                                  "Application.Lock",
                                  "Application.Unlock",
                                  "records.MoveNext"})
            QTest::newRow(entry) << QString::fromLatin1(entry);
    }

    void aspObjects()
    {
        QFETCH(QString, entry);
        QVERIFY(shippedLines(u"asptags.dat"_s).contains(entry));
    }

    void selectors_data()
    {
        QTest::addColumn<QString>("selector");
        for (const char *selector : {"*",
                                     "body",
                                     ".class",
                                     "#id",
                                     "[attribute]",
                                     "[attribute=\"value\"]",
                                     "[attribute^=\"start\"]",
                                     "[attribute$=\"end\"]",
                                     "[attribute*=\"part\"]",
                                     "[attribute~=\"word\"]",
                                     "[attribute|=\"en\"]",
                                     "ul > li",
                                     "h2 + p",
                                     "h2 ~ p",
                                     "article p",
                                     "&:hover",
                                     ":is()",
                                     ":where()",
                                     ":has()",
                                     ":not()",
                                     ":focus-visible",
                                     ":focus-within",
                                     ":nth-child(2n+1)",
                                     ":nth-last-of-type(2)",
                                     ":checked",
                                     ":user-invalid",
                                     ":open",
                                     ":modal",
                                     ":popover-open",
                                     ":target",
                                     ":host()",
                                     ":lang(en)",
                                     "::before",
                                     "::after",
                                     "::marker",
                                     "::placeholder",
                                     "::selection",
                                     "::backdrop",
                                     "::part()",
                                     "::slotted()",
                                     "::view-transition",
                                     "::file-selector-button"})
            QTest::newRow(selector) << QString::fromLatin1(selector);
    }

    void selectors()
    {
        QFETCH(QString, selector);
        QVERIFY(shippedLines(u"deps/csssel.dat"_s).contains(selector));
    }

    /// Logs and meta tags are saved only into folders that exist.
    void foldersToSaveInExist()
    {
        for (const QString &folder : {u"Logon"_s, u"Tags"_s})
            QVERIFY2(QFileInfo(shippedFolder() + folder).isDir(), qPrintable(folder));
    }
};

ZEPHIRA_TEST(TstShippedLists)

#include "tst_shippedlists.moc"
