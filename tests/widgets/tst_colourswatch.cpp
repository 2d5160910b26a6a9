// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/colourswatch.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstColourSwatch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheColourOfItsField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("empty") << QString() << QColor();
        QTest::newRow("name") << u"Navy"_s << QColor(0, 0, 128);
        QTest::newRow("number") << u"#10fF00"_s << QColor(16, 255, 0);
        QTest::newRow("blanks") << u" red "_s << QColor(255, 0, 0);
        QTest::newRow("no colour") << u"DodgeBlue"_s << QColor();
        QTest::newRow("long") << u"#"_s.repeated(1000000) << QColor();
    }

    void showsTheColourOfItsField()
    {
        QFETCH(QString, text);
        QFETCH(QColor, colour);
        QLineEdit field(u"lime"_s);
        ColourSwatch swatch;
        swatch.follow(&field);
        QCOMPARE(swatch.colour(), QColor(0, 255, 0));
        swatch.resize(swatch.sizeHint());
        field.setMaxLength(2000000);
        field.setText(text);
        QCOMPARE(swatch.colour(), colour);
        const QImage picture = swatch.grab().toImage();
        // This pixel lies beside the line that crosses out a swatch without a colour.
        const QColor painted = picture.pixelColor(picture.width() / 4, picture.height() / 3);
        QCOMPARE(painted, colour.isValid() ? colour : swatch.palette().color(QPalette::Base));
    }

    void pressedByKeyboard()
    {
        ColourSwatch swatch;
        swatch.show();
        QVERIFY(QTest::qWaitForWindowExposed(&swatch));
        const QSignalSpy clicked(&swatch, &ColourSwatch::clicked);
        QTest::keyClick(&swatch, Qt::Key_Space);
        QCOMPARE(clicked.size(), 1);
        QVERIFY((swatch.focusPolicy() & Qt::TabFocus) != 0);
    }
};

ZEPHIRA_TEST(TstColourSwatch)

#include "tst_colourswatch.moc"
