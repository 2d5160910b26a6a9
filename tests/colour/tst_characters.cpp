// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/characters.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstCharacters final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codesOutsideTheUpperControlsAreTheirOwnCharacters()
    {
        for (int code = 32; code < 256; ++code) {
            if (code < 127 || code > 159)
                QCOMPARE(characterOfCode(code), QString(QChar(code)));
        }
    }

    void theUpperControls()
    {
        // The whole row as one text, with a question mark for a hole.
        QString row;
        for (int code = 127; code < 160; ++code) {
            const QString character = characterOfCode(code);
            QVERIFY(character.size() <= 1);
            row += character.isEmpty() ? u"?"_s : character;
        }
        QCOMPARE(row,
                 u"?\u20ac?\u201a\u0192\u201e\u2026\u2020\u2021\u02c6\u2030\u0160\u2039\u0152?\u017d?"
                 u"?\u2018\u2019\u201c\u201d\u2022\u2013\u2014\u02dc\u2122\u0161\u203a\u0153?\u017e\u0178"_s);
    }

    void codesOutsideTheMap()
    {
        for (const int code : {-1, 0, 31, 256, 100'000})
            QCOMPARE(characterOfCode(code), QString());
    }

    void captions()
    {
        QCOMPARE(characterCaption(32), u"32: space"_s);
        QCOMPARE(characterCaption(38), u"38: ampersand, &amp;"_s);
        QCOMPARE(characterCaption(65), u"65: latin capital letter a"_s);
        QCOMPARE(characterCaption(127), u"127: no character"_s);
        QCOMPARE(characterCaption(128), u"128: euro sign, &euro;"_s);
        QCOMPARE(characterCaption(129), u"129: no character"_s);
        QCOMPARE(characterCaption(159), u"159: latin capital letter y with diaeresis, &Yuml;"_s);
        QCOMPARE(characterCaption(160), u"160: no-break space, &nbsp;"_s);
        QCOMPARE(characterCaption(233), u"233: latin small letter e with acute, &eacute;"_s);
        QCOMPARE(characterCaption(255), u"255: latin small letter y with diaeresis, &yuml;"_s);
    }

    void everyCharacterHasAName()
    {
        int holes = 0;
        int entities = 0;
        QStringList captions;
        for (int code = firstCharacterCode; code <= lastCharacterCode; ++code) {
            const QString caption = characterCaption(code);
            holes += caption.endsWith(u"no character"_s);
            entities += caption.endsWith(u';');
            captions.append(caption.section(u": "_s, 1));
        }
        QCOMPARE(holes, 6);
        // All above 159, four in ASCII, and all but two of those between.
        QCOMPARE(entities, 96 + 25 + 4);
        captions.removeAll(u"no character"_s);
        QCOMPARE(captions.removeDuplicates(), 0);
    }
};

ZEPHIRA_TEST(TstCharacters)
#include "tst_characters.moc"
