// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/desktopusersettings.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstDesktopUserSettings : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    DesktopUserSettings m_settings;

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path())); }

    void fallbackWhereNothingIsStored()
    {
        QCOMPARE(m_settings.read(u"zephira"_s, u"Options"_s, u"Show Tips at Startup"_s, u"1"_s), u"1"_s);
    }

    void valuesComeBack_data()
    {
        QTest::addColumn<QString>("branch");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const auto row = [](const char *name, const QString &branch, const QString &section, const QString &key,
                            const QString &value) { QTest::newRow(name) << branch << section << key << value; };
        row("tips", u"zephira"_s, u"Options"_s, u"Show Tips at Startup"_s, u"0"_s);
        row("placement", u"zephira"_s, u"frmmain"_s, u"Top"_s, u"-120"_s);
        row("folder", u"Zephira"_s, u"data"_s, u"apppath"_s, u"/home/me/My Program, new\\"_s);
        row("separators in names", u"a/b"_s, u"c"_s, u"d"_s, u"1"_s);
        row("the same, divided elsewhere", u"a"_s, u"b/c"_s, u"d"_s, u"2"_s);
        row("backslash in a name", u"a\\b"_s, u"c"_s, u"d"_s, u"3"_s);
        row("percent in a name", u"a%2Fb"_s, u"c"_s, u"d"_s, u"4"_s);
        row("empty names", u""_s, u""_s, u""_s, u"5"_s);
        row("empty value", u"x"_s, u"y"_s, u"z"_s, u""_s);
        row("value like a list", u"x"_s, u"y"_s, u"list"_s, u"a, b; \"c\""_s);
        row("value like a variant", u"x"_s, u"y"_s, u"variant"_s, u"@ByteArray(x)"_s);
        row("line break in a value", u"x"_s, u"y"_s, u"lines"_s, u" a\r\n[b]\nc=d "_s);
        row("beyond ASCII", u"\u00E4"_s, u"\u0416"_s, u"\U0001F600"_s, u"\u00E4\u0416\U0001F600"_s);
    }

    void valuesComeBack()
    {
        QFETCH(QString, branch);
        QFETCH(QString, section);
        QFETCH(QString, key);
        QFETCH(QString, value);
        m_settings.write(branch, section, key, value);
        QCOMPARE(DesktopUserSettings().read(branch, section, key, u"fallback"_s), value);
    }

    void allAreKeptApart()
    {
        QCOMPARE(m_settings.read(u"a/b"_s, u"c"_s, u"d"_s, u""_s), u"1"_s);
        QCOMPARE(m_settings.read(u"a"_s, u"b/c"_s, u"d"_s, u""_s), u"2"_s);
        QCOMPARE(m_settings.read(u"a%2Fb"_s, u"c"_s, u"d"_s, u""_s), u"4"_s);
    }

    void theKeysOfASectionAreListed()
    {
        const QStringList names = {u"save"_s, u"a/b"_s, u"c\\d"_s, u"e%2Ff"_s, u"\u00E4 b.Main"_s, u""_s};
        for (const QString &name : names)
            QVERIFY(m_settings.write(u"k"_s, u"Keys"_s, name, u"F11"_s));
        QVERIFY(m_settings.write(u"k"_s, u"Keys below"_s, u"other"_s, u"F11"_s));
        const auto sorted = [](QStringList list) {
            list.sort();
            return list;
        };
        QCOMPARE(sorted(DesktopUserSettings().keys(u"k"_s, u"Keys"_s)), sorted(names));
        QCOMPARE(m_settings.keys(u"k"_s, u"nothing"_s), QStringList());
        for (const QString &name : names)
            QVERIFY(m_settings.remove(u"k"_s, u"Keys"_s, name));
        QVERIFY(m_settings.remove(u"k"_s, u"Keys"_s, u"nothing"_s));
        QCOMPARE(DesktopUserSettings().keys(u"k"_s, u"Keys"_s), QStringList());
        QCOMPARE(m_settings.read(u"k"_s, u"Keys"_s, u"save"_s, u"fallback"_s), u"fallback"_s);
        QCOMPARE(m_settings.keys(u"k"_s, u"Keys below"_s), QStringList{u"other"_s});
    }

    /// A file stands where the folder would be, which stops even the superuser.
    void aStoreThatCantBeWritten()
    {
        const QString place = m_folder.path() + u"/file"_s;
        QFile file(place);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(place));
        const bool written = m_settings.write(u"r"_s, u"s"_s, u"t"_s, u"2"_s);
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path()));
        QVERIFY(!written);
    }

    void isWrittenAtOnce()
    {
        m_settings.write(u"Zephira"_s, u"data"_s, u"version"_s, u"210"_s);
        QVERIFY(DesktopUserSettings::fileName().startsWith(m_folder.path() + u"/Zephira/"_s));
        QFile file(DesktopUserSettings::fileName());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("data\\version=210"));
    }
};

ZEPHIRA_TEST(TstDesktopUserSettings)

} // namespace zephira

#include "tst_desktopusersettings.moc"
