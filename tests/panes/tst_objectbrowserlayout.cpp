// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/objectbrowserlayout.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

class TstObjectBrowserLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// In twips: the tree is at 30, 30, its width is that of the form minus 1450, its height that of the form minus 50;
    /// the buttons are 120 to the right of it.
    void places_data()
    {
        QTest::addColumn<QSize>("form");
        QTest::addColumn<QRect>("tree");
        QTest::addColumn<int>("buttonLeft");
        QTest::newRow("400 x 300") << QSize(400, 300) << QRect(2, 2, 303, 297) << 313;
        QTest::newRow("1000 x 700") << QSize(1000, 700) << QRect(2, 2, 903, 697) << 913;
        QTest::newRow("as wide as the rest") << QSize(97, 100) << QRect(2, 2, 0, 97) << 10;
    }

    void places()
    {
        QFETCH(QSize, form);
        const ObjectBrowserLayout layout = objectBrowserLayout(form);
        QTEST(layout.tree, "tree");
        QTEST(layout.buttonLeft, "buttonLeft");
        QVERIFY(layout.buttonLeft + layout.buttonWidth <= form.width());
    }

    void nothingIsNegative()
    {
        for (int side = 0; side < 120; ++side) {
            const ObjectBrowserLayout layout = objectBrowserLayout({side, side});
            QVERIFY(layout.tree.width() >= 0 && layout.tree.height() >= 0 && layout.buttonWidth >= 0);
        }
    }
};

ZEPHIRA_TEST(TstObjectBrowserLayout)
#include "tst_objectbrowserlayout.moc"
