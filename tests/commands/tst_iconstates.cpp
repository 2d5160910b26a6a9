// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/iconstates.h"
#include "support/testregistry.h"

#include <QStyleOption>
#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstIconStates : public QObject
{
    Q_OBJECT

    /// A square with a transparent border of one pixel.
    static QPixmap square(const QColor &colour)
    {
        QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        for (int row = 1; row < 15; ++row) {
            for (int column = 1; column < 15; ++column)
                image.setPixelColor(column, row, colour);
        }
        return QPixmap::fromImage(image);
    }

    static QImage drawn(QIcon::Mode mode, const QColor &icon, const QColor &selection)
    {
        QStyleOption option;
        option.palette.setColor(QPalette::Highlight, selection);
        option.palette.setColor(QPalette::HighlightedText, Qt::white);
        return IconStates().generatedIconPixmap(mode, square(icon), &option).toImage();
    }

private Q_SLOTS:
    void selected_data()
    {
        QTest::addColumn<QColor>("icon");
        QTest::addColumn<QColor>("selection");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("blue on blue") << QColor(61, 174, 233) << QColor(61, 174, 233) << QColor(Qt::white);
        QTest::newRow("nearly the same blue") << QColor(61, 174, 233) << QColor(48, 140, 198) << QColor(Qt::white);
        QTest::newRow("dark on blue") << QColor(35, 38, 41) << QColor(61, 174, 233) << QColor(35, 38, 41);
        QTest::newRow("light on blue") << QColor(252, 252, 252) << QColor(48, 140, 198) << QColor(252, 252, 252);
        QTest::newRow("yellow on blue") << QColor(255, 255, 0) << QColor(0, 0, 160) << QColor(255, 255, 0);
    }

    void selected()
    {
        QFETCH(QColor, icon);
        QFETCH(QColor, selection);
        QFETCH(QColor, expected);
        const QImage image = drawn(QIcon::Selected, icon, selection);
        QCOMPARE(image.pixelColor(8, 8).rgba(), expected.rgba());
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }

    void emptySelected() { QCOMPARE(drawn(QIcon::Selected, Qt::transparent, Qt::blue).pixelColor(8, 8).alpha(), 0); }

    void disabledIsFaint()
    {
        const QColor colour = drawn(QIcon::Disabled, Qt::black, Qt::blue).pixelColor(8, 8);
        QVERIFY2(std::abs(colour.alpha() - 102) <= 1, qPrintable(QString::number(colour.alpha())));
        QCOMPARE(colour.red(), 0);
    }

    void activeIsTheSame() { QCOMPARE(drawn(QIcon::Active, Qt::red, Qt::blue).pixelColor(8, 8), QColor(Qt::red)); }
};

ZEPHIRA_TEST(TstIconStates)
#include "tst_iconstates.moc"
