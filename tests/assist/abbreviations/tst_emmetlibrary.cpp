// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/emmetlibrary.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;
using enum AbbreviationSyntax;

class TstEmmetLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expands_data()
    {
        QTest::addColumn<int>("syntax");
        QTest::addColumn<QString>("abbreviation");
        QTest::addColumn<QString>("text");
        const auto row = [](AbbreviationSyntax syntax, const char16_t *abbreviation, const char16_t *text) {
            const QString name = QString::fromUtf16(abbreviation);
            QTest::newRow(qPrintable(name)) << static_cast<int>(syntax) << name << QString::fromUtf16(text);
        };
        row(Html, u"ul>li.item$*2>a[href=x]{Text $}",
            u"<ul>\n\t<li class=\"item1\"><a href=\"x\">Text 1</a></li>\n\t<li class=\"item2\"><a href=\"x\">Text 2</a></li>\n</ul>");
        row(Html, u"#main+p", u"<div id=\"main\"></div>\n<p></p>");
        row(Html, u"p>br", u"<p><br></p>");
        row(Html, u"a{שלום}", u"<a href=\"\">שלום</a>");
        row(Xhtml, u"p>br", u"<p><br /></p>");
        row(Xml, u"item>name", u"<item>\n\t<name></name>\n</item>");
        row(StyleSheet, u"m10-20+bgc#f", u"margin: 10px 20px;\nbackground-color: #fff;");
        row(StyleAttribute, u"m10+p5", u"margin: 10px; padding: 5px;");
    }

    void expands()
    {
        QFETCH(int, syntax);
        QFETCH(QString, abbreviation);
        const auto made = m_library.expand(abbreviation, {.syntax = static_cast<AbbreviationSyntax>(syntax)});
        QVERIFY2(made.ok(), made.ok() ? "" : qPrintable(made.error().sentence));
        QTEST(made.value().text, "text");
    }

    void tellsTheFields()
    {
        const auto made = m_library.expand(u"a{é}+a"_s, {});
        QVERIFY(made.ok());
        QCOMPARE(made.value().text, u"<a href=\"\">é</a><a href=\"\"></a>"_s);
        const std::vector<AbbreviationField> expected{{1, 9, 0}, {2, 25, 0}, {3, 27, 0}};
        QCOMPARE(made.value().fields, expected);
        const auto input = m_library.expand(u"inp"_s, {});
        QCOMPARE(input.value().fields.front(), (AbbreviationField{2, 13, 4}));
    }

    void keepsIndentationAndLineEnds()
    {
        const auto made =
            m_library.expand(u"ul>li*2"_s, {.lineEnd = u"\r\n"_s, .indent = u"  "_s, .baseIndent = u"\t"_s});
        QCOMPARE(made.value().text, u"<ul>\r\n\t  <li></li>\r\n\t  <li></li>\r\n\t</ul>"_s);
    }

    void wraps()
    {
        const QStringList lines{u"one $ ${1}"_s, u"two <b>x</b>"_s};
        QCOMPARE(m_library.expand(u"ul>li*"_s, {.wrapped = lines}).value().text,
                 u"<ul>\n\t<li>one $ ${1}</li>\n\t<li>two <b>x</b></li>\n</ul>"_s);
        QCOMPARE(m_library.expand(u"div"_s, {.wrapped = lines}).value().text,
                 u"<div>\n\tone $ ${1}\n\ttwo <b>x</b>\n</div>"_s);
    }

    void finds()
    {
        const auto found = m_library.find(u"<b>ul>li*3"_s, 10, Html);
        QVERIFY(found);
        QCOMPARE(found->abbreviation, u"ul>li*3"_s);
        QCOMPARE(found->start, 3);
        QCOMPARE(found->end, 10);
        QCOMPARE(m_library.find(u"a { m10"_s, 7, StyleSheet)->abbreviation, u"m10"_s);
        QCOMPARE(m_library.find(u"\"m10\""_s, 4, StyleAttribute)->abbreviation, u"m10"_s);
        QCOMPARE(m_library.find(u"'ul'"_s, 3, Html)->abbreviation, u"ul"_s);
        QCOMPARE(m_library.find(u"a[b]"_s, 3, Html)->abbreviation, u"a[b]"_s);
        QVERIFY(!m_library.find(u"a  "_s, 3, Html));
        QVERIFY(!m_library.find(u""_s, 0, Html));
    }

    void findsInALongLine()
    {
        const QString before(1'000'000, u' ');
        const auto found = m_library.find(before + u"ul>li"_s + before, before.size() + 5, Html);
        QVERIFY(found);
        QCOMPARE(found->start, before.size());
        QCOMPARE(found->end, before.size() + 5);
    }

    void saysWhatItCant_data()
    {
        QTest::addColumn<QString>("abbreviation");
        QTest::addColumn<QString>("part");
        QTest::newRow("not understood") << u".שלום>p"_s << u"can't be understood"_s;
        QTest::newRow("empty") << QString() << u"can't be understood"_s;
        QTest::newRow("a million") << u"a*1000000"_s << u"may repeat elements 500 times"_s;
        QTest::newRow("beyond numbers") << u"a*99999999999999999999"_s << u"may repeat elements 500 times"_s;
        QTest::newRow("one too many") << u"a*501"_s << u"may repeat elements 500 times"_s;
        QTest::newRow("many times many") << u"a*100>b*100>c*100"_s << u"may repeat elements 500 times"_s;
        QTest::newRow("too long") << u"a>"_s.repeated(600) << u"may have 1000 characters"_s;
    }

    void saysWhatItCant()
    {
        QFETCH(QString, abbreviation);
        QFETCH(QString, part);
        QElapsedTimer clock;
        clock.start();
        const auto made = m_library.expand(abbreviation, {});
        QVERIFY(!made.ok());
        QVERIFY2(made.error().sentence.contains(part), qPrintable(made.error().sentence));
        QVERIFY(clock.elapsed() < 5000);
        QVERIFY(m_library.expand(u"a*500"_s, {}).ok());
    }

    void deepOnesAreHarmless()
    {
        const QString deep = u"a>"_s.repeated(499) + u'b';
        const auto made = m_library.expand(deep, {});
        QVERIFY(!made.ok() || made.value().text.contains(u"<b></b>"_s));
        m_library.expand(u"("_s.repeated(999), {}).ok();
        QCOMPARE(m_library.expand(u"b"_s, {}).value().text, u"<b></b>"_s);
    }

    /// Many lines to wrap are no repetition that somebody asked for.
    void wrapsManyLines()
    {
        const QStringList lines(1500, u"x"_s);
        QCOMPARE(m_library.expand(u"p*"_s, {.wrapped = lines}).value().text.count(u"<p>"_s), 1500);
        const QStringList more(2001, u"x"_s);
        QVERIFY(!m_library.expand(u"p*"_s, {.wrapped = more}).ok());
    }

private:
    EmmetLibrary m_library;
};

ZEPHIRA_TEST(TstEmmetLibrary)

#include "tst_emmetlibrary.moc"
