// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/servercode.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

/// What belongs to a server and what to the page.
class TstServerCode final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void covers_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("covered"); // "~" is the cover
        QTest::addColumn<QByteArray>("kinds");   // "p" for a program, "v" for a value
        const auto row = [](const char *name, const QByteArray &text, const QByteArray &covered,
                            const QByteArray &kinds) { QTest::newRow(name) << text << covered << kinds; };
        row("nothing", "<p>a < b</p>", "<p>a < b</p>", "");
        row("asp", "a<% if x > 1 then %>b", "a~~~~~~~~~~~~~~~~~~~b", "p");
        row("asp value", "<a href=\"<%= u %>\">", "<a href=\"~~~~~~~~\">", "v");
        row("asp without end", "a<% x", "a~~~~", "p");
        row("comment", "a<%-- %> --%>b", "a~~~~~~~~~~~~b", "");
        row("php", "a<?php echo 1 ?>b", "a~~~~~~~~~~~~~~~b", "p");
        row("php value", "<?= 1 ?>b", "~~~~~~~~b", "v");
        row("end in a string", "<?php '?>' ?>b", "~~~~~~~~~~~~~b", "p");
        row("escaped quote", "<?php '\\'?>' ?>b", "~~~~~~~~~~~~~~~b", "p");
        row("end in a comment of a line", "<?php // don't ?>b'", "~~~~~~~~~~~~~~~~~b'", "p");
        row("end in a comment", "<?php /* ' ?> */ ?>b", "~~~~~~~~~~~~~~~~~~~b", "p");
        row("heredoc", "<?php <<<A\n' ?>\nA; ?>b", "~~~~~~~~~~\n~~~~\n~~~~~b", "p");
        row("line ends stay", "<?php\r\n\n?>b", "~~~~~\r\n\n~~b", "p");
        row("declaration", "<?xml version=\"1.0\"?><p>", "~~~~~~~~~~~~~~~~~~~~~<p>", "");
        row("include", "<!--#include file=\"a\" -->b", "~~~~~~~~~~~~~~~~~~~~~~~~~b", "p");
        row("comment of the page", "<!-- <b> -->", "<!-- <b> -->", "");
        row("server tag", "<asp:Label id=\"a>b\" runat='server' />c", "~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~c", "p");
        row("its end", "</asp:Label>c", "~~~~~~~~~~~~c", "p");
        row("cold fusion", "<cfif a gt b>c</cfif>", "~~~~~~~~~~~~~c~~~~~~~", "pp");
        row("namespace of pages", "<o:p>a</o:p>", "~~~~~a~~~~~~", "");
        row("template value", "<p>{{ a }}</p>", "<p>~~~~~~~</p>", "v");
        row("template program", "{% if a %}b", "~~~~~~~~~~b", "p");
        row("template block", "{{#if a}}b{{else}}c{{/if}}", "~~~~~~~~~b~~~~~~~~c~~~~~~~", "ppp");
        row("raw value", "{{{ a }}}b", "~~~~~~~~~b", "v");
        row("braces of a style", "a{b:c}@media x{d{e:f}}", "a{b:c}@media x{d{e:f}}", "");
        row("braces without an end", "{{ a", "{{ a", "");
        row("beyond ASCII", "\u05d0<%\u05d0%>\u05d0", "\u05d0~~~~~~\u05d0", "p");
    }

    void covers()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, covered);
        QFETCH(QByteArray, kinds);
        const QByteArray before(text.constData(), text.size());
        const CoveredText result = coverServerCode(text, false);
        QByteArray shown = result.text;
        QCOMPARE(shown.replace(CoveredText::cover, '~'), covered);
        QCOMPARE(text, before); // the caller's text is its own
        QByteArray found;
        for (const ServerBlock &block : result.blocks) {
            found += block.isProgram ? 'p' : 'v';
            QCOMPARE(result.text[block.start], CoveredText::cover);
            QCOMPARE(result.text[block.end - 1], CoveredText::cover);
        }
        QCOMPARE(found, kinds);
    }

    void instructionsOfXml()
    {
        QCOMPARE(coverServerCode("<?xml version=\"1.0\"?><?x y?><a:b/>", true).text,
                 QByteArray("<?xml version=\"1.0\"?><?x y?><a:b/>"));
        QCOMPARE(coverServerCode("<a><?php ?></a>", true).blocks.size(), 1U);
    }

    /// What has no end costs no more than its length.
    void floods()
    {
        for (const QByteArray &piece : {QByteArray("<%"), QByteArray("<?php '"), QByteArray("{{"), QByteArray("{%"),
                                        QByteArray("<a:b \""), QByteArray("<!--#"), QByteArray("<?php <<<A")}) {
            const QByteArray text = piece.repeated(100'000);
            QCOMPARE(coverServerCode(text, false).text.size(), text.size());
        }
    }
};

ZEPHIRA_TEST(TstServerCode)

#include "tst_servercode.moc"
