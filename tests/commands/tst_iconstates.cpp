// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/icons.h"
#include "commands/iconstates.h"
#include "support/palettes.h"
#include "support/testregistry.h"
#include "widgets/themeicon.h"

#include <QApplication>
#include <QListWidget>
#include <QPainter>
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

    /// Whether so much stands out from the background as a line across half of the picture has, at least as text does.
    static bool isSeen(const QImage &picture, const QColor &background, const QColor &text)
    {
        const qreal enough = std::min(2.9, contrast(text, background) - 0.1);
        int seen = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                seen += contrast(picture.pixelColor(x, y), background) >= enough;
        }
        return seen >= picture.width() / 2;
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

    void contrastsAreThoseOfTheGuidelines()
    {
        QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QVERIFY(std::abs(contrast(QColor(0x77, 0x77, 0x77), Qt::white) - 4.48) < 0.01);
        QCOMPARE(shareSeen(square(Qt::black).toImage(), Qt::white), 1.0);
        QCOMPARE(shareSeen(square(Qt::black).toImage(), Qt::black), 0.0);
        QCOMPARE(shareSeen(square(Qt::transparent).toImage(), Qt::black), 1.0);
    }

    /// The icons of files and folders, as lists paint them.
    void iconsInListsCanBeSeen_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::addColumn<int>("size");
        for (const auto &[name, palette] : desktopPalettes()) {
            for (const int size : {16, 32})
                QTest::addRow("%s, %d", name, size) << palette << size;
        }
    }
    void iconsInListsCanBeSeen()
    {
        QFETCH(QPalette, palette);
        QFETCH(int, size);
        const QPalette before = QApplication::palette();
        QApplication::setStyle(new IconStates);
        QApplication::setPalette(palette);
        const IconTheme theme(*qApp);
        const QStringList names{
            u"text-x-generic"_s, u"image-x-generic"_s, u"text-html"_s,        u"text-plain"_s,
            u"image-gif"_s,      u"text-css"_s,        u"audio-x-generic"_s,  u"application-zip"_s,
            u"unknown"_s,        u"video-x-generic"_s, u"network-server"_s,   u"application-x-executable"_s,
            u"folder"_s,         u"folder-open"_s,     u"folder-documents"_s, u"user-desktop"_s,
            u"user-home"_s,      u"computer"_s,        u"drive-harddisk"_s,   u"folder-network"_s};
        QListWidget list;
        list.setIconSize({size, size});
        list.setFrameShape(QFrame::NoFrame);
        list.setSelectionMode(QAbstractItemView::MultiSelection);
        for (const QString &name : names) {
            for (int copy = 0; copy < 2; ++copy)
                new QListWidgetItem(themeIcon(name), QString(), &list);
        }
        list.resize(200, 2 * static_cast<int>(names.size()) * (size + 8));
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        list.activateWindow();
        for (int row = 1; row < list.count(); row += 2)
            list.item(row)->setSelected(true);
        const QImage picture = list.viewport()->grab().toImage();
        QStringList unseen;
        for (int row = 0; row < list.count(); ++row) {
            const QRect box = list.visualItemRect(list.item(row));
            const QImage icon = picture.copy(QRect(box.topLeft(), QSize(size + 6, box.height())));
            const QColor behind = picture.pixelColor(box.right() - 2, box.center().y());
            const QColor text = palette.color(row % 2 ? QPalette::HighlightedText : QPalette::Text);
            if (!isSeen(icon, behind, text))
                unseen.append(names[row / 2] + (row % 2 ? u" selected"_s : QString()));
        }
        QApplication::setPalette(before);
        QVERIFY2(unseen.isEmpty(), qPrintable(unseen.join(u", "_s)));
    }

    void emptySelected() { QCOMPARE(drawn(QIcon::Selected, Qt::transparent, Qt::blue).pixelColor(8, 8).alpha(), 0); }

    void disabledIsFaint()
    {
        const QColor colour = drawn(QIcon::Disabled, Qt::black, Qt::blue).pixelColor(8, 8);
        QVERIFY2(std::abs(colour.alpha() - 102) <= 1, qPrintable(QString::number(colour.alpha())));
        QCOMPARE(colour.red(), 0);
    }

    /// A line in a menu looks the same with a text.
    void linesInMenusArePlain()
    {
        const IconStates style;
        const auto painted = [&style](const QString &text, QStyleOptionMenuItem::MenuItemType type) {
            QStyleOptionMenuItem row;
            row.rect = QRect(0, 0, 100, 20);
            row.menuItemType = type;
            row.text = text;
            QImage picture(100, 20, QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            style.drawControl(QStyle::CE_MenuItem, &row, &painter, nullptr);
            return picture;
        };
        QCOMPARE(painted(u"-"_s, QStyleOptionMenuItem::Separator), painted({}, QStyleOptionMenuItem::Separator));
        QVERIFY(painted(u"-"_s, QStyleOptionMenuItem::Normal) != painted({}, QStyleOptionMenuItem::Normal));
    }

    void activeIsTheSame() { QCOMPARE(drawn(QIcon::Active, Qt::red, Qt::blue).pixelColor(8, 8), QColor(Qt::red)); }
};

ZEPHIRA_TEST(TstIconStates)
#include "tst_iconstates.moc"
