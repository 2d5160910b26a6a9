// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completionplace.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

/// Which rules a place follows, and what is made of a text without its beginning.
class TstCompletionPlace final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages()
    {
        QCOMPARE(completionPlace("<", PlaceLanguage::Html).kind, PlaceKind::Tag);
        QCOMPARE(completionPlace("<", PlaceLanguage::Xml).kind, PlaceKind::Tag);
        QCOMPARE(completionPlace("p{", PlaceLanguage::StyleSheet).kind, PlaceKind::Property);
        const CompletionPlace word = completionPlace("if (a <b", PlaceLanguage::Other);
        QCOMPARE(word.kind, PlaceKind::Words);
        QCOMPARE(word.start, 7);
    }

    void cutTexts_data()
    {
        using enum PlaceKind;
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("kind");
        const auto add = [](const char *name, const char *text, PlaceKind kind) {
            QTest::newRow(name) << QByteArray(text) << static_cast<int>(kind);
        };
        add("in a tag", "lass=\"a\">text <p ", Attribute);
        add("in a comment", "a < b <i --> <p ", Attribute);
        add("in a script", "if (a < b '<p x=\"') </script><p ", Attribute);
        add("in a style sheet", " p { color: red } </STYLE><p ", Attribute);
        add("in a server block", "$a < $b; \"<p x='\" ?><p ", Attribute);
        add("in another one", "a < b %><p ", Attribute);
        add("in text", "text & text <", Tag);
        add("a whole comment", "x <!-- < --> <", Tag);
        add("without a tag", "nothing", Words);
    }

    void cutTexts()
    {
        QFETCH(QByteArray, text);
        const CompletionPlace place = completionPlace(text, PlaceLanguage::Html, true);
        QTEST(static_cast<int>(place.kind), "kind");
        if (place.kind == PlaceKind::Attribute || place.kind == PlaceKind::Tag)
            QCOMPARE(place.start, text.size());
    }

    void cutStyleSheet()
    {
        const QByteArray text = "color: red } p { to";
        const CompletionPlace place = completionPlace(text, PlaceLanguage::StyleSheet, true);
        QCOMPARE(place.kind, PlaceKind::Property);
        QCOMPARE(text.sliced(place.start), QByteArray("to"));
    }

    /// Whatever the bytes are, the place lies in them.
    void anyBytes()
    {
        const QByteArray pieces[] = {"<",        ">",        "\"",   "'",        "=",  " ",    "\n", "a",
                                     "/",        "&",        "<!--", "-->",      "<?", "?>",   "<%", "%>",
                                     "<style>",  "</style>", "{",    "}",        ":",  "/*",   "*/", ";",
                                     "url(",     ")",        "\\",   "@import ", "(",  "\xff", "</", "<script>",
                                     "style=\"", "#",        ".",    "!",        "[",  "\0"};
        quint32 state = 1;
        const auto next = [&](std::size_t most) {
            state = state * 1664525U + 1013904223U;
            return (state >> 8U) % most;
        };
        for (int round = 0; round < 20000; ++round) {
            QByteArray text;
            for (std::size_t count = next(12); count > 0; --count)
                text += pieces[next(std::size(pieces))];
            for (const PlaceLanguage language : {PlaceLanguage::Html, PlaceLanguage::Xml, PlaceLanguage::StyleSheet}) {
                const CompletionPlace place = completionPlace(text, language, round % 2 == 0);
                QVERIFY2(place.start >= 0 && place.start <= text.size(), text.constData());
            }
        }
    }
};

ZEPHIRA_TEST(TstCompletionPlace)

#include "tst_completionplace.moc"
