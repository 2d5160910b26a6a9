// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/tidied.h"
#include "tools/tidy/tidylibrary.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// What begins a line of a page and how it is counted: letters, tabs, characters outside ASCII, control characters.
const QStringList linePieces{u"x"_s,      u"\t"_s,     u" "_s,  u"ä"_s,      u"€"_s,
                             u"😀"_s,      u"\u0001"_s, u"\f"_s, u"\u007f"_s, u"\u0085"_s,
                             u"\u2028"_s, u"\u00a0"_s, u"א"_s,  u"<b>"_s,    QString(QChar(0)),
                             u"&lt;"_s,   u"\u0300"_s};

const QStringList soup{u"<p>"_s,
                       u"</p>"_s,
                       u"<b>"_s,
                       u"</b>"_s,
                       u"<table>"_s,
                       u"<tr>"_s,
                       u"<td>"_s,
                       u"</table>"_s,
                       u"<ul>"_s,
                       u"<li>"_s,
                       u"</ul>"_s,
                       u"<font size=2>"_s,
                       u"</font>"_s,
                       u"<center>"_s,
                       u"</center>"_s,
                       u"<a href="_s,
                       u"\""_s,
                       u"'"_s,
                       u">"_s,
                       u"<"_s,
                       u"<!--"_s,
                       u"-->"_s,
                       u"<script>"_s,
                       u"</script>"_s,
                       u"<style>"_s,
                       u"</style>"_s,
                       u"<?php "_s,
                       u"?>"_s,
                       u"<% "_s,
                       u"%>"_s,
                       u"&amp"_s,
                       u"&#8364;"_s,
                       u"&foo;"_s,
                       u"ä"_s,
                       u"text "_s,
                       u"\n"_s,
                       u"<select>"_s,
                       u"<option>"_s,
                       u"<form>"_s,
                       u"<input"_s,
                       u"<frameset>"_s,
                       u"<body "_s,
                       u"<html>"_s,
                       u"<head>"_s,
                       u"<title>"_s,
                       u"</title>"_s,
                       u"<pre>"_s,
                       u"</pre>"_s,
                       u"<dl>"_s,
                       u"<dd>"_s,
                       u"<![CDATA["_s,
                       u"]]>"_s,
                       u"<object>"_s,
                       u"<embed>"_s,
                       u"<!DOCTYPE "_s,
                       u"<meta charset=x>"_s,
                       u"<br/>"_s,
                       u"<hr"_s,
                       u"<div align=center>"_s,
                       u"</div>"_s};

Result<TidyOutcome> cleaned(const QByteArray &file, const TidyChoices &choices = {})
{
    TidyWatch watch;
    return tidied(TidyLibrary(), file, choices, watch);
}

/// The sentences of a kind.
QStringList sentences(const TidyOutcome &outcome, TidyMessage::Kind kind)
{
    QStringList found;
    for (const TidyMessage &message : outcome.messages) {
        if (message.kind == kind)
            found.append(message.text);
    }
    return found;
}

/// What stands between the body's tags.
QString bodyOf(const QString &page)
{
    const qsizetype begin = page.indexOf(u"<BODY>\r\n");
    const qsizetype end = page.indexOf(u"</BODY>");
    return begin < 0 || end < 0 ? page : page.sliced(begin + 8, end - begin - 8);
}

TidyChoices ticked(const QStringList &boxes, const QString &charEncoding = u"ascii"_s)
{
    return {.ticked = QSet<QString>(boxes.begin(), boxes.end()), .charEncoding = charEncoding};
}

} // namespace

/// Clean-ups with the real library.
class TstTidyLibrary final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPage()
    {
        const Result<TidyOutcome> outcome = cleaned("<title>x</title>\r\n<p>a <foo>b\r\n");
        QVERIFY(outcome.ok());
        QCOMPARE(sentences(outcome.value(), TidyMessage::Kind::Error),
                 QStringList{u"line 2 column 6 - Error: <foo> is not recognized!"_s});
        QCOMPARE(sentences(outcome.value(), TidyMessage::Kind::Warning),
                 (QStringList{u"line 1 column 1 - Warning: missing <!DOCTYPE> declaration"_s,
                              u"line 2 column 1 - Warning: inserting implicit <body>"_s,
                              u"line 2 column 6 - Warning: discarding unexpected <foo>"_s}));
        const QString text = outcome.value().text;
        QVERIFY2(text.startsWith(u"<!DOCTYPE html>\r\n<HTML>\r\n<HEAD>\r\n<META NAME=\"generator\""), qPrintable(text));
        QCOMPARE(bodyOf(text), u"<P>a b</P>\r\n"_s);
        QCOMPARE(text.count(u'\n'), text.count(u"\r\n"_s));
    }

    /// A check writes nothing, and gives each message its key.
    void aCheck()
    {
        TidyWatch watch;
        const Result<TidyEngine::Run> run =
            TidyLibrary().run("<!DOCTYPE html><title>x</title><p><b>a</p>", {}, TidyEngine::Steps::Checking, watch);
        QVERIFY(run.ok());
        QCOMPARE(run.value().output, QByteArray());
        QCOMPARE(run.value().messages.front().key, QByteArray("INSERTING_TAG"));
        QCOMPARE(run.value().messages.back().key, QByteArray("MISSING_ENDTAG_BEFORE"));
        const Result<TidyEngine::Run> cleaned =
            TidyLibrary().run("<!DOCTYPE html><title>x</title><p><b>a</p>", {}, TidyEngine::Steps::All, watch);
        QVERIFY(cleaned.ok() && !cleaned.value().output.isEmpty());
        QCOMPARE(cleaned.value().messages.front().key, QByteArray());
    }

    void everyEncodingOfTheFile_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("UTF-8") << QByteArray("<p>\xc3\xa4");
        QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbf<p>\xc3\xa4");
        QTest::newRow("Windows-1252") << QByteArray("<p>\xe4");
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0p\0>\0\xe4\0", 10);
    }

    void everyEncodingOfTheFile()
    {
        QFETCH(QByteArray, file);
        QCOMPARE(bodyOf(cleaned(file).value().text), u"<P>&auml;</P>\r\n"_s);
        for (const QString &encoding : {u"raw"_s, u"iso2022"_s, u"latin1"_s, u"utf8"_s})
            QCOMPARE(bodyOf(cleaned(file, ticked({}, encoding)).value().text), u"<P>ä</P>\r\n"_s);
    }

    void charEncodings_data()
    {
        QTest::addColumn<QString>("expected");
        QTest::newRow("ascii") << u"<P>&auml; &euro; &#1488; &auml; &nbsp;x &#128512;</P>\r\n"_s;
        QTest::newRow("raw") << u"<P>ä € א &auml; &nbsp;x 😀</P>\r\n"_s;
        QTest::newRow("iso2022") << u"<P>ä € א &auml; &nbsp;x 😀</P>\r\n"_s;
        QTest::newRow("latin1") << u"<P>ä &euro; &#1488; ä \u00a0x &#128512;</P>\r\n"_s;
        QTest::newRow("utf8") << u"<P>ä € א ä \u00a0x 😀</P>\r\n"_s;
    }

    void charEncodings()
    {
        const TidyChoices choices = ticked({}, QString::fromLatin1(QTest::currentDataTag()));
        QTEST(bodyOf(cleaned(u"<p>ä € א &auml; &nbsp;x 😀"_s.toUtf8(), choices).value().text), "expected");
    }

    void theNonBreakingSpaceInAscii()
    {
        QCOMPARE(bodyOf(cleaned("<p>a\xa0"
                                "b")
                            .value()
                            .text),
                 u"<P>a&nbsp;b</P>\r\n"_s);
        QCOMPARE(bodyOf(cleaned("<p>a\xa0"
                                "b",
                                ticked({u"Check13"_s}))
                            .value()
                            .text),
                 u"<P>a&#160;b</P>\r\n"_s);
        QCOMPARE(bodyOf(cleaned("<p>a\xa0"
                                "b",
                                ticked({u"Check15"_s}, u"utf8"_s))
                            .value()
                            .text),
                 u"<P>a&nbsp;b</P>\r\n"_s);
    }

    void eachBoxHasItsEffect_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("off");
        QTest::addColumn<QString>("on");
        const auto row = [](const char *box, const QString &page, const QString &off, const QString &on) {
            QTest::newRow(box) << page << off << on;
        };
        row("Check1", u"<body>x<hr>"_s, u"x\r\n<HR>\r\n"_s, u"<P>x</P>\r\n<HR>\r\n"_s);
        row("Check2", u"<body><form>x</form>"_s, u"<FORM>x</FORM>\r\n"_s, u"<FORM>\r\n<P>x</P>\r\n</FORM>\r\n"_s);
        row("Check8", u"<body><p><font color=red>x</font>"_s, u"<P><FONT COLOR=\"red\">x</FONT></P>\r\n"_s,
            u"<P><SPAN CLASS=\"c1\">x</SPAN></P>\r\n"_s);
        row("Check7", u"<center><font color=red>x</font></center>y"_s,
            u"<CENTER><FONT COLOR=\"red\">x</FONT></CENTER>\r\ny\r\n"_s, u"x y\r\n"_s);
        row("Check3", u"<p><i>x</i><b>y</b>"_s, u"<P><I>x</I><B>y</B></P>\r\n"_s,
            u"<P><EM>x</EM><STRONG>y</STRONG></P>\r\n"_s);
        row("Check4", u"<p><p>x"_s, u"<P></P>\r\n<P>x</P>\r\n"_s, u"<P>x</P>\r\n"_s);
        row("Check5", u"x<!-- a -- b -->"_s, u"x<!-- a -- b -->\r\n"_s, u"x<!-- a == b -->\r\n"_s);
        row("Check6", u"<p><a href='a\\b'>x</a>"_s, u"<P><A HREF='a\\b'>x</A></P>\r\n"_s,
            u"<P><A HREF='a/b'>x</A></P>\r\n"_s);
        row("Check13", u"<p>&eacute;"_s, u"<P>&eacute;</P>\r\n"_s, u"<P>&#233;</P>\r\n"_s);
        row("Check14", u"<p>\"x\""_s, u"<P>\"x\"</P>\r\n"_s, u"<P>&quot;x&quot;</P>\r\n"_s);
        row("Check16", u"<p>a&b"_s, u"<P>a&b</P>\r\n"_s, u"<P>a&amp;b</P>\r\n"_s);
        row("Check17", u"<div><p id=a title=b>x</p></div>"_s, u"<DIV>\r\n<P ID=\"a\" TITLE=\"b\">x</P>\r\n</DIV>\r\n"_s,
            {});
    }

    void eachBoxHasItsEffect()
    {
        const QString box = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QString, page);
        QFETCH(QString, on);
        QTEST(bodyOf(cleaned(page.toUtf8()).value().text), "off");
        const QString text = cleaned(page.toUtf8(), ticked({box})).value().text;
        if (on.isEmpty())
            QVERIFY2(text.contains(u"<DIV>\r\n      <P ID=\"a\"\r\n         TITLE=\"b\">"), qPrintable(text));
        else
            QCOMPARE(bodyOf(text), on);
    }

    void xmlOutput()
    {
        QVERIFY(cleaned("<p>x<br>", ticked({u"Check9"_s})).value().text.contains(u"<BR />"));
        const QString xhtml = cleaned("<p>x<br>", ticked({u"Check10"_s, u"Check11"_s})).value().text;
        QVERIFY2(xhtml.startsWith(u"<?xml version=\"1.0\""), qPrintable(xhtml));
        QVERIFY2(xhtml.contains(u"http://www.w3.org/1999/xhtml"), qPrintable(xhtml));
        QVERIFY(cleaned("<pre>x</pre>", ticked({u"Check9"_s, u"Check12"_s})).value().text.contains(u"XML:SPACE"));
    }

    void xmlInput()
    {
        TidyChoices choices;
        choices.isXml = true;
        const TidyOutcome outcome = cleaned("<?xml version=\"1.0\"?>\n<font><a>x</a></font>", choices).value();
        QVERIFY(outcome.messages.empty());
        QVERIFY2(outcome.text.contains(u"<A>x</A>"), qPrintable(outcome.text));
        choices.ticked.insert(fontTagsCheck.toString());
        // In XML the name means nothing.
        QVERIFY(cleaned("<font>x</font>", choices).value().text.contains(u"<FONT>x</FONT>"));
        QVERIFY(!cleaned("<a><b></a>", choices).value().messages.empty());
    }

    void documentTypes_data()
    {
        QTest::addColumn<QString>("expected");
        QTest::newRow("auto") << u"<!DOCTYPE html>\r\n"_s;
        QTest::newRow("omit") << u"<HTML>\r\n"_s;
        QTest::newRow("strict") << u"<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01//EN\""_s;
        QTest::newRow("loose") << u"<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\""_s;
        QTest::newRow("<fpi>") << u"<!DOCTYPE html>\r\n"_s;
    }

    void documentTypes()
    {
        QFETCH(QString, expected);
        TidyChoices choices;
        choices.documentType = QString::fromLatin1(QTest::currentDataTag());
        const QString text = cleaned("<title>x</title><p>x", choices).value().text;
        QVERIFY2(text.startsWith(expected), qPrintable(text));
    }

    void anIdentifierIsLeftAlone()
    {
        TidyChoices choices;
        choices.documentType = u"<fpi>"_s;
        const QByteArray type = "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2//EN\">";
        QVERIFY(cleaned(type + "<title>x</title><p>x", choices).value().text.startsWith(QString::fromLatin1(type)));
    }

    void aPageWithErrorsIsNeverEmpty()
    {
        for (const QByteArray page : {"<foo>text", "<p><bar>text</baz>", "<table><foo>text"}) {
            const TidyOutcome outcome = cleaned(page).value();
            QVERIFY(!sentences(outcome, TidyMessage::Kind::Error).isEmpty());
            QVERIFY2(outcome.text.contains(u"text"), qPrintable(outcome.text));
        }
    }

    void moreThanSixErrors()
    {
        const TidyOutcome outcome = cleaned(QByteArray("<foo>").repeated(100)).value();
        QCOMPARE(sentences(outcome, TidyMessage::Kind::Error).size(), 100);
    }

    void fontTagsWithStyleRules()
    {
        // They are gone before style rules are made of them.
        const QString text =
            cleaned("<center><font color=red>x</font></center>", ticked({u"Check7"_s, u"Check8"_s})).value().text;
        QVERIFY2(!text.contains(u"STYLE", Qt::CaseInsensitive), qPrintable(text));
        QCOMPARE(bodyOf(text), u"x\r\n"_s);
    }

    void fontTagsAndEverythingElse()
    {
        const QString page = uR"(<html><head><title>a</title>
<script>if (a < b) document.write("<font>x</font>");</script><style>p { color: red }</style></head>
<body bgcolor="#fff"><!-- <font> --><p>&eacute; &euro; a&nbsp;b &amp; <?php echo "<font>"; ?> <% x = "<center>" %>
<pre>  a)"
                             u"\t"
                             uR"(b
  <font size=1>c</font></pre><a title="<font>" href="a?b=c&d=e">x</a></body></html>)"_s;
        const QString with = cleaned(page.toUtf8(), ticked({}, u"utf8"_s)).value().text;
        const QString without = cleaned(page.toUtf8(), ticked({u"Check7"_s}, u"utf8"_s)).value().text;
        QCOMPARE(without, QString(with).remove(u"<FONT SIZE=\"1\">"_s).remove(u"</FONT>"_s));
        QVERIFY(without != with);
    }

    void theMessagesAreThoseOfTheOriginal()
    {
        const QByteArray page = "<p>x\n<font><foo>y\n</font>";
        QCOMPARE(cleaned(page, ticked({u"Check7"_s})).value().messages, cleaned(page).value().messages);
        QVERIFY(!cleaned(page).value().messages.empty());
    }

    void everyPlaceIsFound_data()
    {
        QTest::addColumn<QString>("charEncoding");
        const QStringList encodings = tidyCharEncodings();
        for (const QString &encoding : encodings)
            QTest::newRow(qPrintable(encoding)) << encoding;
    }

    void everyPlaceIsFound()
    {
        QFETCH(QString, charEncoding);
        QRandomGenerator random(62);
        const QStringList ends{u"\n"_s, u"\r\n"_s, u"\r"_s};
        for (int round = 0; round < 300; ++round) {
            const QString &end = ends[round % 3];
            QStringList lines;
            for (int line = 0; line < 5; ++line)
                lines.append(generatedText(random, linePieces, 12) + u"<foo>"_s + generatedText(random, linePieces, 3));
            const TidyOutcome outcome = cleaned(lines.join(end).toUtf8(), ticked({}, charEncoding)).value();
            int found = 0;
            for (const TidyMessage &message : outcome.messages) {
                if (message.kind != TidyMessage::Kind::Error)
                    continue;
                const QString rest = lines.value(message.line).mid(message.column);
                QVERIFY2(rest.startsWith(u"<foo>"),
                         lines.value(message.line).toUtf8().toPercentEncoding("<>&;").constData());
                ++found;
            }
            QCOMPARE(found, 5);
        }
    }

    void soupIsCleaned()
    {
        QRandomGenerator random(63);
        int givenUp = 0;
        for (int round = 0; round < 1500; ++round) {
            const QString text = generatedText(random, soup, 60);
            TidyChoices choices;
            for (const TidyCheck &check : tidyChecks()) {
                if (random.bounded(3) == 0)
                    choices.ticked.insert(check.control.toString());
            }
            choices.isXml = random.bounded(10) == 0;
            choices.charEncoding = tidyCharEncodings()[random.bounded(5)];
            const Result<TidyOutcome> outcome = cleaned(text.toUtf8(), choices);
            if (!outcome.ok()) {
                // Tidy gives up where it has made a knot of its own tree; without our way out, that would end the program.
                QCOMPARE(outcome.error().code, Error::Code::Malformed);
                ++givenUp;
                continue;
            }
            const qsizetype lines = text.count(u'\n') + 1;
            for (const TidyMessage &message : outcome.value().messages)
                QVERIFY2(message.line < lines && !message.text.isEmpty(), qPrintable(text));
            if (choices.ticked.contains(fontTagsCheck.toString()) && !choices.isXml)
                QVERIFY2(outcome.value().text.size() < 100'000, qPrintable(text));
        }
        QVERIFY2(givenUp < 15, qPrintable(QString::number(givenUp)));
    }

    void rubbish_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("zeros") << QByteArray(100'000, '\0');
        QByteArray bytes;
        QRandomGenerator random(64);
        for (int i = 0; i < 100'000; ++i)
            bytes.append(static_cast<char>(random.bounded(256)));
        QTest::newRow("bytes") << bytes;
        QTest::newRow("brackets") << QByteArray(100'000, '<');
        QTest::newRow("one line") << QByteArray("<p>word ").repeated(100'000);
        QTest::newRow("a long word") << "<p>" + QByteArray(1'000'000, 'x');
        QTest::newRow("a comment without an end") << "<!-- " + QByteArray(1'000'000, '-');
    }

    void rubbish()
    {
        QFETCH(QByteArray, file);
        const QStringList encodings = tidyCharEncodings();
        for (const QString &encoding : encodings)
            QVERIFY(cleaned(file, ticked({u"Check7"_s}, encoding)).ok());
    }

    void elementsTooDeepWithinOneAnother_data()
    {
        QTest::addColumn<QByteArray>("unit");
        QTest::newRow("div") << QByteArray("<div>x");
        QTest::newRow("b") << QByteArray("<b title=y>x");
        QTest::newRow("table") << QByteArray("<table><tr><td>");
    }

    void elementsTooDeepWithinOneAnother()
    {
        QFETCH(QByteArray, unit);
        const Result<TidyOutcome> outcome = cleaned(unit.repeated(200'000));
        QVERIFY(!outcome.ok());
        QCOMPARE(outcome.error().sentence,
                 u"The document can't be checked: too many of its elements lie within one another."_s);
        QVERIFY(cleaned(unit.repeated(1000)).ok());
    }

    void copiesWithoutEnd()
    {
        // Tidy opens each of these elements again in each paragraph, so that the document grows with the square.
        const QByteArray unit = "<b><i><u><font color=red><div>x";
        const Result<TidyOutcome> outcome = cleaned(unit.repeated(5000));
        QVERIFY(!outcome.ok());
        QCOMPARE(outcome.error().sentence, u"The document can't be checked: it needs too much memory."_s);
        QVERIFY(cleaned(unit.repeated(100)).ok());
    }

    void aCancelledRunEndsSoon()
    {
        TidyWatch watch;
        watch.cancel();
        const Result<TidyOutcome> outcome =
            tidied(TidyLibrary(), QByteArray("<p>x</p>\n").repeated(1'000'000), {}, watch);
        QVERIFY(!outcome.ok());
        QCOMPARE(outcome.error().sentence, u"The check was canceled."_s);
    }

    void progressGrows()
    {
        TidyWatch watch;
        QVERIFY(tidied(TidyLibrary(), QByteArray("<p>x</p>\n").repeated(1000), ticked({u"Check7"_s}), watch).ok());
        QVERIFY2(watch.permille() > 300, qPrintable(QString::number(watch.permille())));
        TidyWatch whole;
        QVERIFY(tidied(TidyLibrary(), QByteArray("<p>x</p>\n").repeated(1000), {}, whole).ok());
        QVERIFY2(whole.permille() > 750 && whole.permille() <= 1000, qPrintable(QString::number(whole.permille())));
    }
};

ZEPHIRA_TEST(TstTidyLibrary)

#include "tst_tidylibrary.moc"
