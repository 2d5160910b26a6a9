// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/graphemes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstGraphemes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The rows are lines whose user-perceived characters are separated by bars. Stepping in either direction must stop
    /// at exactly these places.
    void stepsGoFromCharacterToCharacter_data()
    {
        QTest::addColumn<QString>("parted");
        QTest::newRow("nothing") << QString();
        QTest::newRow("letters") << u"a|b|c"_s;
        QTest::newRow("other letters") << u"ä|ש|中|x"_s;
        QTest::newRow("accents") << u"x|e\u0301|y|a\u0323\u0301"_s;
        QTest::newRow("an accent alone") << u"\u0301|x"_s;
        QTest::newRow("pictures") << u"😀|😀|x"_s;
        QTest::newRow("families") << u"👨‍👩‍👧|👨‍👩‍👧"_s;
        QTest::newRow("colours of skin") << u"👍🏽|👍"_s;
        QTest::newRow("flags") << u"🇩🇪|🇫🇷"_s;
        QTest::newRow("vowel signs") << u"שָׁ|ל"_s;
        QTest::newRow("a long line") << (u"a|"_s.repeated(300) + u"e\u0301|"_s.repeated(300) + u"b"_s);
    }
    void stepsGoFromCharacterToCharacter()
    {
        QFETCH(QString, parted);
        const QByteArray line = QString(parted).remove(u'|').toUtf8();
        std::vector<qsizetype> ends{0};
        const QStringList parts = parted.split(u'|');
        for (const QString &part : parts)
            ends.push_back(ends.back() + part.toUtf8().size());
        if (line.isEmpty())
            ends.pop_back();
        for (std::size_t i = 1; i < ends.size(); ++i) {
            QCOMPARE(graphemeBehind(line, ends[i - 1]), ends[i]);
            QCOMPARE(graphemeBefore(line, ends[i]), ends[i - 1]);
            QCOMPARE(graphemeStart(line, ends[i]), ends[i]);
            QCOMPARE(graphemeEnd(line, ends[i]), ends[i]);
            for (qsizetype at = ends[i - 1] + 1; at < ends[i]; ++at) {
                if ((static_cast<unsigned char>(line[at]) & 0xc0) == 0x80)
                    continue;
                QCOMPARE(graphemeStart(line, at), ends[i - 1]);
                QCOMPARE(graphemeEnd(line, at), ends[i]);
            }
        }
        QCOMPARE(graphemeBefore(line, 0), 0);
        QCOMPARE(graphemeBehind(line, line.size()), line.size());
    }
};

ZEPHIRA_TEST(TstGraphemes)

} // namespace zephira

#include "tst_graphemes.moc"
