// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/usersettingstext.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Letters that need escaping, in names or values, more often than others.
QString randomText(QRandomGenerator &random, bool isName)
{
    const QString letters = u"aF0x 9;,=\"\\/%@()[]#\n\r\t\a\u0001\u001f\u007f\u0080\u00e4\u00ff\u0416\u20ac"_s;
    QString text;
    for (int left = random.bounded(isName ? 1 : 0, 9); left > 0; --left)
        text += letters[random.bounded(letters.size())];
    // A slash divides names.
    return isName ? u'n' + text.remove(u'/').remove(u'\\') : text;
}

} // namespace

/// The store is one of QSettings: what either writes, the other reads.
class TstUserSettingsText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithQSettings()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"a.ini"_s);
        QRandomGenerator random(17);
        for (int i = 0; i < 200; ++i) {
            const QString path = randomText(random, true) + u'/' + randomText(random, true);
            const QString value = randomText(random, false);
            const QByteArray ours = withStoredText({}, path, value);
            QCOMPARE(storedText(ours, path), value);
            // A name of its own for each, because QSettings keeps what it has read.
            const QString next = folder.filePath(QString::number(i));
            putFile(next, ours);
            QCOMPARE(QSettings(next, QSettings::IniFormat).value(path).toString(), value);
            QFile::remove(next);
            {
                QSettings settings(next, QSettings::IniFormat);
                settings.setValue(path, value);
            }
            QVERIFY2(storedText(contentOf(next), path) == value, contentOf(next).constData());
            QFile::remove(next);
        }
    }

    void otherLinesStay()
    {
        const QByteArray store("; mine\n[b]\nx=1\n\n[a]\ny=2\nz=3\n");
        QCOMPARE(withStoredText(store, u"b/x"_s, u"9"_s), "; mine\n[b]\nx=9\n\n[a]\ny=2\nz=3\n");
        QCOMPARE(withStoredText(store, u"b/w/v"_s, u"9"_s), "; mine\n[b]\nx=1\nw\\v=9\n\n[a]\ny=2\nz=3\n");
        QCOMPARE(withStoredText(store, u"c/x"_s, u""_s), "; mine\n[b]\nx=1\n\n[a]\ny=2\nz=3\n\n[c]\nx=\n");
        QCOMPARE(withStoredText(store, u"a/y"_s, {}), "; mine\n[b]\nx=1\n\n[a]\nz=3\n");
        QCOMPARE(withStoredText(store, u"a/none"_s, {}), store);
        QCOMPARE(withStoredText("[a]\nx=1\nx=2\n", u"a/x"_s, u"3"_s), "[a]\nx=3\n");
        QCOMPARE(withStoredText("[a]\r\nx=1", u"a/y"_s, u"3"_s), "[a]\r\nx=1\ny=3\n");
    }

    void theLastOfSeveralCounts() { QCOMPARE(storedText("[a]\nx=1\n[b]\n[a]\nx=2", u"a/x"_s), u"2"_s); }
    void whatIsMissing()
    {
        QVERIFY(!storedText({}, u"a/x"_s));
        QVERIFY(!storedText("[a]\n;x=1\nx\n[b]\nx=1\n", u"a/x"_s));
    }

    void names()
    {
        QCOMPARE(storedNames("[a]\nk\\x=1\nk\\y\\z=2\nk\\%20=3\n[b]\nk\\w=4\n", u"a/k"_s),
                 (QStringList{u"x"_s, u" "_s}));
    }
};

ZEPHIRA_TEST(TstUserSettingsText)

} // namespace zephira

#include "tst_usersettingstext.moc"
