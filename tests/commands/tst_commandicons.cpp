// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/glyphs.h"
#include "commands/icons.h"
#include "commands/menutable.h"
#include "commands/palettetable.h"
#include "commands/tagsmenu.h"
#include "commands/toolbartable.h"
#include "support/testregistry.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void collect(std::span<const MenuItem> items, QSet<QString> &icons)
{
    for (const MenuItem &item : items) {
        icons.insert(item.icon.toString());
        collect(item.children, icons);
    }
}

/// Every icon that a table names.
QSet<QString> namedIcons()
{
    QSet<QString> icons;
    collect(menuBarTable(), icons);
    collect(popupTable(), icons);
    for (const QuickTag &tag : tagsMenu())
        icons.insert(tag.icon.toString());
    for (const PaletteToolbar &bar : paletteToolbars()) {
        for (const QuickTag &tag : bar.buttons)
            icons.insert(tag.icon.toString());
    }
    for (const ToolBarTable *table : {&standardToolBar(), &formattingToolBar()}) {
        for (const ToolButton &button : table->buttons) {
            icons.insert(button.icon.toString());
            for (const PullDownEntry &entry : button.pullDown)
                icons.insert(entry.icon.toString());
        }
    }
    icons.remove(QString());
    return icons;
}

/// Average lightness of what an icon paints, 0 to 255; -1 if it paints nothing.
int lightnessOf(const QIcon &icon, QSize size)
{
    const QImage image = icon.pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32);
    qint64 sum = 0;
    qint64 count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 128) {
                sum += QColor(image.pixel(x, y)).lightness();
                ++count;
            }
        }
    }
    return count ? static_cast<int>(sum / count) : -1;
}

QPalette plainPalette(bool dark)
{
    return dark ? QPalette(QColor(49, 54, 59), QColor(35, 38, 41))
                : QPalette(QColor(239, 240, 241), QColor(239, 240, 241));
}

} // namespace

class TstCommandIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setPalette(QPalette()); }

    void everyNamedIconExists_data();
    void everyNamedIconExists();
    void textsAreNoIcons();
    void unknownShapesAreNull();
    void shapesFollowTheSize();
    void shapesFollowThePalette();
    void themeFollowsThePalette();
};

void TstCommandIcons::everyNamedIconExists_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<bool>("dark");
    QStringList icons = namedIcons().values();
    icons.sort();
    for (const QString &icon : std::as_const(icons)) {
        QTest::addRow("%s, light", qPrintable(icon)) << icon << false;
        QTest::addRow("%s, dark", qPrintable(icon)) << icon << true;
    }
}

void TstCommandIcons::everyNamedIconExists()
{
    QFETCH(QString, icon);
    QFETCH(bool, dark);
    QGuiApplication::setPalette(plainPalette(dark));
    IconTheme theme(*qGuiApp);
    QCOMPARE(QIcon::themeName(), dark ? u"breeze-dark"_s : u"breeze"_s);
    if (icon.startsWith(u':')) {
        QVERIFY(icon.size() > 1);
        return;
    }
    QVERIFY(!iconFor(icon).isNull());
    QVERIFY(lightnessOf(iconFor(icon), {22, 22}) >= 0);
    if (!icon.startsWith(u'#'))
        QVERIFY(QIcon::hasThemeIcon(icon));
}

void TstCommandIcons::textsAreNoIcons()
{
    QVERIFY(iconFor(u":td").isNull());
    QVERIFY(iconFor(u"").isNull());
    QAction action(u"Insert Table Data"_s);
    setCommandIcon(&action, u":td");
    QCOMPARE(action.iconText(), u"td"_s);
    QCOMPARE(action.text(), u"Insert Table Data"_s);
    QVERIFY(action.icon().isNull());
}

void TstCommandIcons::unknownShapesAreNull()
{
    QVERIFY(iconFor(u"#nothing").isNull());
    QVERIFY(!shapeNames().isEmpty());
    const QStringList names = shapeNames();
    for (const QString &name : names)
        QVERIFY2(lightnessOf(shapeGlyph(name), {22, 22}) >= 0, qPrintable(name));
}

void TstCommandIcons::shapesFollowTheSize()
{
    // Drawn at each size, not scaled: a line that fills one pixel at 22 fills two at 44 without grey next to it.
    for (const int scale : {1, 2}) {
        const QImage image = shapeGlyph(u"frame").pixmap(22 * scale, 22 * scale).toImage();
        QCOMPARE(image.size(), QSize(22 * scale, 22 * scale));
        for (int x = 0; x < scale; ++x)
            QCOMPARE(qAlpha(image.pixel(3 * scale + x, 12 * scale)), 255);
        QCOMPARE(qAlpha(image.pixel(3 * scale - 1, 12 * scale)), 0);
        QCOMPARE(qAlpha(image.pixel(4 * scale, 12 * scale)), 0);
    }
}

void TstCommandIcons::shapesFollowThePalette()
{
    const QIcon icon = iconFor(u"#checkbox");
    QGuiApplication::setPalette(plainPalette(false));
    const int onLight = lightnessOf(icon, {22, 22});
    QGuiApplication::setPalette(plainPalette(true));
    const int onDark = lightnessOf(icon, {22, 22});
    QVERIFY2(onLight < 128 && onDark > 128, qPrintable(u"%1, %2"_s.arg(onLight).arg(onDark)));
}

void TstCommandIcons::themeFollowsThePalette()
{
    QGuiApplication::setPalette(plainPalette(false));
    IconTheme theme(*qGuiApp);
    const QIcon icon = iconFor(u"document-save");
    const int onLight = lightnessOf(icon, {22, 22});
    QGuiApplication::setPalette(plainPalette(true));
    QCoreApplication::processEvents();
    QCOMPARE(QIcon::themeName(), u"breeze-dark"_s);
    const int onDark = lightnessOf(icon, {22, 22});
    QVERIFY2(onLight < 128 && onDark > 128, qPrintable(u"%1, %2"_s.arg(onLight).arg(onDark)));
}

ZEPHIRA_TEST(TstCommandIcons)
#include "tst_commandicons.moc"
