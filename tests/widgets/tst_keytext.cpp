// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/keytext.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstKeyText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normal_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("normal"); // "-": not usable
        const auto row = [](const QString &text, const QString &normal) {
            QTest::newRow(qPrintable(u'"' + text + u'"')) << text << normal;
        };
        row({}, {});
        row(u"Ctrl+T"_s, u"Ctrl+T"_s);
        row(u"shift+CTRL+t"_s, u"Ctrl+Shift+T"_s);
        row(u"f7"_s, u"F7"_s);
        row(u"F35"_s, u"F35"_s);
        row(u"Shift+Del"_s, u"Shift+Del"_s);
        row(u"Ctrl++"_s, u"Ctrl++"_s);
        row(u"Ctrl+,"_s, u"Ctrl+,"_s);
        row(u"Alt+\u00C4"_s, u"Alt+\u00C4"_s);
        row(u"A"_s, u"A"_s);
        row(u"Ctrl+K, Ctrl+L"_s, u"-"_s);
        row(u"Blah"_s, u"-"_s);
        row(u"Ctrl+Blah"_s, u"-"_s);
        row(u"Ctrl+"_s, u"-"_s);
        row(u"Ctrl"_s, u"-"_s);
        row(u"@ByteArray(x)"_s, u"-"_s);
        row(QString(2000, u'x'), u"-"_s);
    }

    void normal()
    {
        QFETCH(QString, text);
        QTEST(normalKeys(text).value_or(u"-"_s), "normal");
    }

    /// A normal form is its own, and is shown as something.
    void normalFormsStay()
    {
        for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key) {
            for (const QString &modifiers : {u"Ctrl+"_s, u"Alt+"_s, u"Ctrl+Shift+"_s}) {
                const auto normal = normalKeys(modifiers + QChar(key));
                if (!normal)
                    continue;
                QCOMPARE(normalKeys(*normal), normal);
                QVERIFY(!shownKeys(*normal).isEmpty());
            }
        }
        QCOMPARE(shownKeys({}), QString());
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("sentence");
        for (const QString &keys : {u"A"_s, u"Shift+A"_s, u"1"_s, u"+"_s, u"Space"_s, u"\u0416"_s})
            QTest::newRow(qPrintable(keys))
                << keys << u"%1 types a character. Choose keys with Ctrl or Alt."_s.arg(keys);
        for (const QString &keys : {u"Return"_s, u"Enter"_s, u"Tab"_s, u"Shift+Tab"_s, u"Backspace"_s, u"Esc"_s,
                                    u"Left"_s, u"Shift+End"_s, u"PgUp"_s, u"Del"_s})
            QTest::newRow(qPrintable(keys))
                << keys << u"%1 is needed for writing. Choose keys with Ctrl or Alt."_s.arg(keys);
        for (const QString &keys : {u""_s, u"Ctrl+A"_s, u"Alt+Left"_s, u"F1"_s, u"Shift+F3"_s, u"Shift+Del"_s, u"Ins"_s,
                                    u"Meta+X"_s, u"Ctrl+Return"_s, u"Pause"_s})
            QTest::newRow(qPrintable(u"free "_s + keys)) << keys << QString();
    }

    void refusals()
    {
        QFETCH(QString, keys);
        QTEST(keysRefusal(keys), "sentence");
    }
};

ZEPHIRA_TEST(TstKeyText)
#include "tst_keytext.moc"
