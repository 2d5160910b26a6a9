// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "editor/hotkeys.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QFile>
#include <QKeySequence>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What the shipped tips say about keys and menus is true of the program.
class TstShippedTips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keysExist();
    void entriesExist_data();
    void entriesExist();

private:
    QString m_tips;
    QSet<QKeySequence> m_keys;
    QStringList m_captions;
};

void TstShippedTips::initTestCase()
{
    QFile file(sourcePath(u"data/TIPOFDAY.TXT"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_tips = QString::fromUtf8(file.readAll());
    WindowBench bench;
    const QList<QAction *> entries = bench.start().findChildren<QAction *>();
    for (const QAction *entry : entries) {
        m_captions.append(entry->text().remove(u'&'));
        const QList<QKeySequence> keys = entry->shortcuts();
        m_keys.unite(QSet<QKeySequence>(keys.begin(), keys.end()));
    }
    for (const CodeMaxHotKey &row : initialHotKeys())
        m_keys.insert(QKeySequence(row.keys));
    // The way round the parts of the window is a short-cut without an entry.
    m_keys.insert(QKeySequence(u"Ctrl+F6"_s));
}

void TstShippedTips::keysExist()
{
    static const QRegularExpression key(uR"(\b(?:(?:Ctrl|Shift|Alt)\+)+[A-Z0-9]+\b|\bF[0-9]+\b)"_s);
    int found = 0;
    QRegularExpressionMatchIterator matches = key.globalMatch(m_tips);
    while (matches.hasNext()) {
        const QString text = matches.next().captured();
        QVERIFY2(m_keys.contains(QKeySequence(text)), qPrintable(text));
        ++found;
    }
    QVERIFY(found >= 20);
}

void TstShippedTips::entriesExist_data()
{
    QTest::addColumn<QString>("caption");
    for (const QString &caption :
         {u"Save Document as Template"_s, u"Exit"_s, u"Format Source Code"_s, u"Link Extractor"_s, u"QuickView"_s,
          u"Insert Link to this file"_s, u"Edit Filters"_s, u"Add Entry"_s, u"Color Spy"_s})
        QTest::newRow(qPrintable(caption)) << caption;
}

void TstShippedTips::entriesExist()
{
    QFETCH(QString, caption);
    QVERIFY(m_captions.contains(caption));
    QVERIFY(m_tips.contains(caption));
}

ZEPHIRA_TEST(TstShippedTips)

#include "tst_shippedtips.moc"
