// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/tabstrip.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList captions{u"Code"_s, u"A much longer caption"_s, u"View"_s};

/// Counts how often it is asked for a tab's size.
class CountedStrip final : public TabStrip
{
public:
    using TabStrip::TabStrip;
    int asked() const { return m_asked; }

protected:
    QSize sizeOfTab(int index) const override
    {
        ++m_asked;
        return TabStrip::sizeOfTab(index);
    }

private:
    mutable int m_asked = 0;
};

QList<QRect> places(const QTabBar &bar)
{
    QList<QRect> all;
    for (int index = 0; index < bar.count(); ++index)
        all.append(bar.tabRect(index));
    return all;
}

} // namespace

/// A tab bar that measures its tabs once and not after each one.
class TstTabStrip final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itLooksLikeAnyTabBar()
    {
        QTabBar bar;
        for (const QString &caption : captions)
            bar.addTab(caption);
        TabStrip strip;
        strip.fill([&strip] {
            for (const QString &caption : captions)
                strip.addTab(caption);
        });
        QCOMPARE(strip.sizeHint(), bar.sizeHint());
        QCOMPARE(strip.minimumSizeHint(), bar.minimumSizeHint());
        bar.resize(bar.sizeHint());
        strip.resize(bar.sizeHint());
        QCOMPARE(places(strip), places(bar));
        bar.addTab(u"Later"_s);
        strip.addTab(u"Later"_s);
        QCOMPARE(places(strip), places(bar));
    }

    void aVisibleOneIsLaidOutAnew()
    {
        TabStrip strip;
        strip.show();
        strip.fill([&strip] {
            for (const QString &caption : captions)
                strip.addTab(caption);
        });
        for (const QRect &place : places(strip))
            QVERIFY(!place.isEmpty());
    }

    void noTabIsMeasuredBeforeTheLastOne()
    {
        CountedStrip strip;
        strip.fill([&strip] {
            for (const QString &caption : captions)
                strip.addTab(caption);
            QCOMPARE(strip.asked(), 0);
        });
        QVERIFY(!strip.sizeHint().isEmpty());
        QVERIFY(strip.asked() >= captions.size());
    }
};

ZEPHIRA_TEST(TstTabStrip)
#include "tst_tabstrip.moc"
