// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tags/builtintags.h"
#include "tags/tagfile.h"

#include <QTest>

#include <algorithm>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const BuiltInTag &tagOf(const QString &key)
{
    const auto row = std::ranges::find(builtInTags(), QStringView(key), &BuiltInTag::key);
    if (row == builtInTags().end())
        qFatal("no tag has the key %s", qPrintable(key));
    return *row;
}

} // namespace

class TstBuiltInTags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counts()
    {
        QCOMPARE(builtInTags().size(), std::size_t{37});
        qsizetype attributes = 0;
        for (const BuiltInTag &tag : builtInTags())
            attributes += attributeCaptions(tag).size();
        QCOMPARE(attributes, 326);
    }

    void keysAndCaptions_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("attributes");
        QTest::newRow("a") << u"ANCHOR"_s << u"<a></a>"_s << 13;
        QTest::newRow("frame keeps its capital") << u"Frame"_s << u"<Frame>"_s << 13;
        QTest::newRow("marquee's key is misspelt") << u"MARAQUEE"_s << u"<marquee></marquee>"_s << 15;
        QTest::newRow("p has no end tag") << u"PARAGRAPH"_s << u"<p>"_s << 5;
        QTest::newRow("col") << u"Col"_s << u"<col>"_s << 6;
        QTest::newRow("colgroup") << u"Colgroup"_s << u"<colgroup>"_s << 7;
        QTest::newRow("multicol") << u"MULTICOL"_s << u"<multicol>"_s << 7;
        QTest::newRow("param has one") << u"Param"_s << u"<param></param>"_s << 5;
        QTest::newRow("sound has one") << u"SOUND"_s << u"<sound></sound>"_s << 7;
        QTest::newRow("the last heading") << u"h3"_s << u"<h3></h3>"_s << 5;
        QTest::newRow("style") << u"STYLE"_s << u"<style></style>"_s << 1;
        QTest::newRow("input") << u"INPUT"_s << u"<input>"_s << 20;
    }

    void keysAndCaptions()
    {
        QFETCH(QString, key);
        QTEST(tagOf(key).caption.toString(), "caption");
        QTEST(static_cast<int>(attributeCaptions(tagOf(key)).size()), "attributes");
    }

    void attributes_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("attributes");
        QTest::newRow("with values") << u"LINK"_s << u" rel=\"\"| href=\"\"| type=\"\"| title=\"\""_s;
        QTest::newRow("a bare one")
            << u"HR"_s
            << u" align=\"\"| size=\"\"| color=\"\"| width=\"\"| noshade| style=\"\"| id=\"\"| class=\"\"| title=\"\""_s;
        QTest::newRow("a hyphen within") << u"META"_s << u" id=\"\"| http-equiv=\"\"| name=\"\"| content=\"\""_s;
        QTest::newRow("id twice")
            << u"SCRIPT"_s
            << u" id=\"\"| type=\"\"| language=\"\"| src=\"\"| for=\"\"| defer=\"\"| runat=\"\"| id=\"\"| charset=\"\""_s;
        QTest::newRow("nowrap with a value")
            << u"TR"_s
            << u" bgcolor=\"\"| bordercolor=\"\"| bordercolorlight=\"\"| bordercolordark=\"\"| align=\"\"| "
               "valign=\"\"| nowrap=\"\"| style=\"\"| id=\"\"| class=\"\"| title=\"\""_s;
    }

    void attributes()
    {
        QFETCH(QString, key);
        QTEST(attributeCaptions(tagOf(key)).join(u'|'), "attributes");
    }

    void bareAttributes()
    {
        QStringList bare;
        for (const BuiltInTag &tag : builtInTags()) {
            const QStringList all = attributeCaptions(tag);
            for (const QString &caption : all) {
                if (!caption.endsWith(u"=\"\""))
                    bare.append(tag.key.toString() + caption);
            }
        }
        QCOMPARE(bare,
                 (QStringList{u"Frame noresize"_s, u"HR noshade"_s, u"IMG controls"_s, u"INPUT notab"_s,
                              u"INPUT checked"_s, u"INPUT border"_s, u"INPUT width"_s, u"INPUT height"_s,
                              u"INPUT vspace"_s, u"INPUT hspace"_s, u"TABLE nowrap"_s}));
    }

    void eachKeyOnce()
    {
        QStringList keys;
        for (const BuiltInTag &tag : builtInTags())
            keys.append(tag.key.toString());
        QCOMPARE(keys.removeDuplicates(), 0);
    }

    void linesOfTheFile_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("none") << QStringList() << QStringList();
        QTest::newRow("blank lines") << QStringList{u""_s, u"   "_s} << QStringList();
        QTest::newRow("blanks stay") << QStringList{u"  <em></em> "_s} << QStringList{u"  <em></em> "_s};
        QTest::newRow("a tab is no blank") << QStringList{u"\t"_s} << QStringList{u"\t"_s};
        QTest::newRow("order and doubles stay")
            << QStringList{u"b"_s, u""_s, u"a"_s, u"b"_s} << QStringList{u"b"_s, u"a"_s, u"b"_s};
    }

    void linesOfTheFile()
    {
        QFETCH(QStringList, lines);
        QTEST(tagCaptions(lines), "captions");
    }
};

ZEPHIRA_TEST(TstBuiltInTags)
#include "tst_builtintags.moc"
