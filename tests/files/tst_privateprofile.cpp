// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/privateprofile.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstPrivateProfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data()
    {
        QTest::addColumn<QByteArray>("profile");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &profile, const QString &expected,
                            const QString &section = u"s"_s, const QString &key = u"k"_s) {
            QTest::newRow(name) << profile << section << key << expected;
        };
        const QString none = u"<none>"_s;
        row("plain", "[s]\r\nk=v\r\n", u"v"_s);
        row("last line without an end", "[s]\r\nk=v", u"v"_s);
        row("LF", "[s]\nk=v\nx=y\n", u"v"_s);
        row("CR", "[s]\rk=v\rx=y\r", u"v"_s);
        row("section in another case", "[STARTUP]\nselprj=1\n", u"1"_s, u"startup"_s, u"SelPrj"_s);
        row("case beyond ASCII", "[\xC3\x84]\nk\xC3\x96=1\n", u"1"_s, u"\u00E4"_s, u"K\u00F6"_s);
        row("blanks around names and value", "  [ s ]  \n  k  =  v w  \n", u"v w"_s);
        row("blanks around the names asked for", "[s]\nk=v\n", u"v"_s, u" s "_s, u" k "_s);
        row("tabs are no blanks", "[s]\nk=\tv\t\n", u"\tv\t"_s);
        row("double quotes", "[s]\nk=\" v \"\n", u" v "_s);
        row("single quotes", "[s]\nk=' v '\n", u" v "_s);
        row("one pair of quotes only", "[s]\nk=\"\"v\"\"\n", u"\"v\""_s);
        row("quotes that don't pair", "[s]\nk=\"v'\n", u"\"v'"_s);
        row("a lone quote", "[s]\nk=\"\n", u"\""_s);
        row("quotes with nothing in them", "[s]\nk=\"\"\n", u""_s);
        row("empty value", "[s]\nk=\n", u""_s);
        row("equals sign in the value", "[s]\nk=a=b\n", u"a=b"_s);
        row("semicolon in the value", "[s]\nk=a;b\n", u"a;b"_s);
        row("brackets before the section", "x=[s]\n[y\nz [s]\n   [s]\nk=v\n", u"v"_s);
        row("brackets and blanks after CR", "x=[ [[\r [ s]\rk=v\r", u"v"_s);
        row("brackets alone", "[[[\n[", none);
        row("brackets in the value", "[s]\nk=[t]\nx=1\n", u"[t]"_s);
        row("comment", "[s]\n;k=no\n  ; k=no\nk=v\n", u"v"_s);
        row("first key wins", "[s]\nk=1\nk=2\n", u"1"_s);
        row("first section wins", "[s]\nx=1\n[s]\nk=2\n", none);
        row("key of another section", "[t]\nk=1\n[s]\nx=2\n", none);
        row("key before all sections", "k=1\n[s]\nx=2\n", none);
        row("no section", "k=1\n", none);
        row("no file", "", none);
        row("text after the section's name", "[s] ; main\nk=v\n", u"v"_s);
        row("section that isn't closed", "[s]\n[t\nk=v\n", u"v"_s);
        row("line without an equals sign", "[s]\nk\nk=v\n", u"v"_s);
        row("line of an equals sign", "[s]\n=x\nk=v\n", u"v"_s);
        row("byte order mark", "\xEF\xBB\xBF[s]\nk=v\n", u"v"_s);
        row("UTF-8 value", "[s]\nk=\xC3\xA4\n", u"\u00E4"_s);
        row("value that is no UTF-8", "[s]\nk=\xE4\x80\n", u"\u00E4\u20AC"_s);
        row("value like a UTF-8 mark", "[s]\nk=\xEF\xBB\xBFv\n", u"\uFEFFv"_s);
        row("value like a UTF-16 mark", "[s]\nk=\xFF\xFEv\n", u"\u00FF\u00FEv"_s);
        row("NUL in the value", QByteArray("[s]\nk=a\0b\n", 10), u"a"_s + QChar(u'\0') + u"b"_s);
        row("empty section name", "[]\nk=v\n", u"v"_s, u""_s);
    }

    void reading()
    {
        QFETCH(QByteArray, profile);
        QFETCH(QString, section);
        QFETCH(QString, key);
        QTEST(profileValue(profile, section, key).value_or(u"<none>"_s), "expected");
    }

    void writing_data()
    {
        QTest::addColumn<QByteArray>("profile");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, const QByteArray &profile, const QByteArray &expected,
                            const QString &value = u"v"_s) { QTest::newRow(name) << profile << value << expected; };
        row("no file", "", "[s]\r\nk=v\r\n");
        row("byte order mark alone", "\xEF\xBB\xBF", "\xEF\xBB\xBF[s]\r\nk=v\r\n");
        row("replaced", "[s]\r\nk=old\r\nx=1\r\n", "[s]\r\nk=v\r\nx=1\r\n");
        row("replaced in another case", "[S]\r\nK=old\r\n", "[S]\r\nK=v\r\n");
        row("replaced in the last line", "[s]\nk=old", "[s]\nk=v");
        row("replaced in its own style", "[s]\n  k = \"old\"  \n", "[s]\n  k = v\n");
        row("only the first is replaced", "[s]\nk=1\nk=2\n[s]\nk=3\n", "[s]\nk=v\nk=2\n[s]\nk=3\n");
        row("new key", "[s]\nx=1\n[t]\ny=2\n", "[s]\nx=1\nk=v\n[t]\ny=2\n");
        row("new key before blank lines", "[s]\nx=1\n\n  \n[t]\ny=2\n", "[s]\nx=1\nk=v\n\n  \n[t]\ny=2\n");
        row("new key after a comment", "[s]\nx=1\n; end\n\n", "[s]\nx=1\n; end\nk=v\n\n");
        row("new key in an empty section", "[s]\n\n[t]\n", "[s]\nk=v\n\n[t]\n");
        row("new key after a line without an end", "[s]\nx=1", "[s]\nx=1\nk=v\n");
        row("new section", "[t]\nk=1\n", "[t]\nk=1\n[s]\nk=v\n");
        row("new section after a line without an end", "[t]\nk=1", "[t]\nk=1\n[s]\nk=v\n");
        row("new section in a file of CR", "[t]\rk=1\r", "[t]\rk=1\r[s]\rk=v\r");
        row("line ends as the first one", "[t]\r\nk=1\n", "[t]\r\nk=1\n[s]\r\nk=v\r\n");
        row("everything else stays",
            "\xEF\xBB\xBF; head\xFF\r\n\n[s]\rjunk\r\n;k=1\r\n\tk=2\r\nk=x\r\n[unclosed\r\n  z  =  ' '",
            "\xEF\xBB\xBF; head\xFF\r\n\n[s]\rjunk\r\n;k=1\r\n\tk=2\r\nk=v\r\n[unclosed\r\n  z  =  ' '");
        row("empty value", "[s]\nk=old\n", "[s]\nk=\n", u""_s);
        row("blanks", "", "[s]\r\nk=\" v \"\r\n", u" v "_s);
        row("one blank", "", "[s]\r\nk=\" \"\r\n", u" "_s);
        row("pair of quotes", "", "[s]\r\nk=\"\"v\"\"\r\n", u"\"v\""_s);
        row("quote at one end", "", "[s]\r\nk=\"v\r\n", u"\"v"_s);
        row("line break", "", "[s]\r\nk=a [t] x=1\r\n", u"a\r\n[t]\nx=1"_s);
        row("line break at the end", "", "[s]\r\nk=\"a \"\r\n", u"a\n"_s);
        row("NUL", "", "[s]\r\nk=a b\r\n", u"a"_s + QChar(u'\0') + u"b"_s);
        row("beyond ASCII", "", "[s]\r\nk=\xC3\xA4\r\n", u"\u00E4"_s);
    }

    void writing()
    {
        QFETCH(QByteArray, profile);
        QFETCH(QString, value);
        QFETCH(QByteArray, expected);
        QCOMPARE(withProfileValue(profile, u"s"_s, u"k"_s, value).value(), expected);
    }

    void namesThatCannotStandInAProfile()
    {
        const auto written = [](const QString &section, const QString &key) {
            return withProfileValue("[s]\nk=1\n", section, key, u"v"_s).has_value();
        };
        QVERIFY(written(u"a b"_s, u"c d"_s));
        QVERIFY(written(u"a=b;c"_s, u"c;[d]"_s));
        for (const QString &section : {u"a]b"_s, u"a\nb"_s, u"a\rb"_s, u"a"_s + QChar(u'\0')})
            QVERIFY(!written(section, u"k"_s));
        for (const QString &key :
             {u""_s, u" "_s, u"a=b"_s, u"a\nb"_s, u"a\rb"_s, u"[a"_s, u" ;a"_s, u"a"_s + QChar(u'\0')})
            QVERIFY(!written(u"s"_s, key));
    }

    void writtenValuesReadBackAndNothingElseChanges()
    {
        QRandomGenerator random(5);
        const auto text = [&random](QStringView letters, int longest) {
            QString result;
            for (int i = random.bounded(longest + 1); i > 0; --i)
                result += letters[random.bounded(letters.size())];
            return result;
        };
        int written = 0;
        for (int round = 0; round < 100'000; ++round) {
            const QByteArray profile = text(u"[]sStk=kv \"';\r\n\n\u00E4", 30).toUtf8();
            const QString section = text(u"sSt ]\u00E4", 2);
            const QString key = text(u"kK= ;[v", 2);
            const QString value = text(u"v \"'=[];\u00E4\uFEFF\t", 5);
            const std::optional<QByteArray> result = withProfileValue(profile, section, key, value);
            if (!result)
                continue;
            ++written;
            QCOMPARE(profileValue(*result, section, key), std::optional(value));
            QCOMPARE(withProfileValue(*result, section, key, value), result);
            const std::vector<ProfileEntry> before = profileEntries(profile);
            const std::vector<ProfileEntry> after = profileEntries(*result);
            const bool isNew = !profileValue(profile, section, key);
            QCOMPARE(after.size(), before.size() + (isNew ? 1 : 0));
            int different = 0;
            for (std::size_t i = 0, j = 0; i < after.size() && j < before.size(); ++i) {
                const bool same = after[i].section == before[j].section && after[i].key == before[j].key
                    && after[i].value == before[j].value;
                different += !same;
                j += same || !isNew;
            }
            QVERIFY(different <= 1);
        }
        QVERIFY2(written > 20'000, "too few of the cases were real ones");
    }

    void hugeProfile()
    {
        QByteArray profile;
        for (int section = 0; section < 1000; ++section) {
            profile += "[section" + QByteArray::number(section) + "]\r\n";
            for (int key = 0; key < 300; ++key)
                profile += "key" + QByteArray::number(key) + "=a value of some length\r\n";
        }
        QCOMPARE(profileValue(profile, u"section999"_s, u"key299"_s), std::optional(u"a value of some length"_s));
        const QByteArray changed = withProfileValue(profile, u"section500"_s, u"key150"_s, u"short"_s).value();
        QCOMPARE(changed.size(),
                 profile.size() - static_cast<qsizetype>(std::char_traits<char>::length("a value of some length")) + 5);
        QCOMPARE(profileValue(changed, u"section500"_s, u"key150"_s), std::optional(u"short"_s));
        QVERIFY(!profileValue(QByteArray(10'000'000, '['), u"s"_s, u"k"_s));
        QVERIFY(!profileValue(QByteArray(10'000'000, '='), u"s"_s, u"k"_s));
    }

    void entriesInTheirOrder()
    {
        const std::vector<ProfileEntry> entries = profileEntries("a=1\n[x]\nb= 2 \nb='3'\n;c=4\n[ y ]\nd\n=5\n");
        QStringList shown;
        for (const ProfileEntry &entry : entries)
            shown += entry.section + u'|' + entry.key + u'|' + entry.value;
        QCOMPARE(shown, (QStringList{u"|a|1"_s, u"x|b|2"_s, u"x|b|3"_s, u"y||5"_s}));
    }
};

ZEPHIRA_TEST(TstPrivateProfile)

} // namespace zephira

#include "tst_privateprofile.moc"
