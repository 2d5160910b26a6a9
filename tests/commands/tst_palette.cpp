// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/icons.h"
#include "commands/palette.h"
#include "commands/palettetable.h"
#include "support/testregistry.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_theme = std::make_unique<IconTheme>(*qGuiApp); }
    void cleanupTestCase() { m_theme.reset(); }

    void tabs();
    void oneToolbarShows();
    void theOtherToolbarsCanComeLater();
    void namesAreThereFromTheStart();
    void buttonsComeWithTheFirstShowing();
    void everyButtonHasALook();
    void keyedButtons();
    void positionalButtons();
    void headings();
    void selectorIsAToggle();
    void aTabReportsEveryClick();
    void rowsAreEquallyHigh();
    void whatTheSystemLacksSaysSo();

private:
    std::unique_ptr<IconTheme> m_theme;
};

void TstPalette::tabs()
{
    Palette palette;
    const QTabBar *tabs = palette.findChild<QTabBar *>(u"toolpane"_s);
    QCOMPARE(tabs, palette.tabs());
    const QStringList captions{u"Tools"_s, u"Common"_s, u"Text"_s,    u"Tables"_s, u"Style"_s, u"Frames"_s,
                               u"Lists"_s, u"Forms"_s,  u"Scripts"_s, u"CFML"_s,   u"ASP"_s,   u"SSI"_s};
    QCOMPARE(tabs->count(), captions.size());
    for (int i = 0; i < tabs->count(); ++i) {
        QCOMPARE(tabs->tabText(i), captions[i]);
        QCOMPARE(tabs->tabData(i).toString(), captions[i]);
    }
}

void TstPalette::theOtherToolbarsCanComeLater()
{
    const Palette atOnce;
    const auto names = [](const Palette &palette) {
        QStringList list;
        for (const QToolBar *bar : palette.findChildren<QToolBar *>(Qt::FindDirectChildrenOnly))
            list.append(bar->objectName());
        return list;
    };
    const auto first = QStringList{u"Toolbar_0"_s};
    Palette later(nullptr, Palette::Contents::Later);
    QCOMPARE(later.tabs()->count(), atOnce.tabs()->count());
    QCOMPARE(names(later), first);
    QVERIFY(!later.isSelectorPressed());
    later.build();
    QCOMPARE(names(later), names(atOnce));
    later.build();
    QCOMPARE(names(later), names(atOnce));

    Palette clicked(nullptr, Palette::Contents::Later);
    clicked.show();
    clicked.tabs()->setCurrentIndex(3);
    QCOMPARE(names(clicked), names(atOnce));
    QVERIFY(clicked.toolBar(3)->isVisible());

    Palette pressed(nullptr, Palette::Contents::Later);
    pressed.setSelectorPressed(true);
    QVERIFY(pressed.isSelectorPressed());
}

void TstPalette::oneToolbarShows()
{
    Palette palette;
    palette.show();
    for (const int index : {0, 7, 11, 3}) {
        palette.tabs()->setCurrentIndex(index);
        for (int i = 0; i < 12; ++i)
            QCOMPARE(palette.toolBar(i)->isVisible(), i == index);
    }
}

void TstPalette::namesAreThereFromTheStart()
{
    Palette palette;
    for (int i = 0; i < 12; ++i) {
        QToolBar *bar = palette.findChild<QToolBar *>(u"Toolbar_%1"_s.arg(i));
        QCOMPARE(bar, palette.toolBar(i));
        const PaletteToolbar &table = paletteToolbars()[static_cast<std::size_t>(i)];
        QCOMPARE(bar->actions().size(), static_cast<qsizetype>(table.buttons.size()));
        for (std::size_t row = 0; row < table.buttons.size(); ++row) {
            const QAction *action = bar->actions()[static_cast<qsizetype>(row)];
            QCOMPARE(action->objectName(), table.buttons[row].key.toString());
            QCOMPARE(action->isSeparator(), table.buttons[row].kind == TagKind::Separator);
            const bool isElsewhere = table.buttons[row].kind == TagKind::Missing;
            if (!action->isSeparator())
                QCOMPARE(action->text(), table.buttons[row].label.toString());
            if (!action->isSeparator() && !isElsewhere)
                QCOMPARE(action->toolTip(), action->text());
        }
    }
    QVERIFY(palette.findChild<QToolBar *>(u"Toolbar_3"_s)->findChild<QAction *>(u"td"_s));
}

void TstPalette::buttonsComeWithTheFirstShowing()
{
    Palette palette;
    palette.show();
    const auto buttons = [&](int index) { return palette.toolBar(index)->actions().first(); };
    QVERIFY(palette.toolBar(0)->widgetForAction(buttons(0)));
    QVERIFY(!palette.toolBar(6)->widgetForAction(buttons(6)));
    palette.tabs()->setCurrentIndex(6);
    QVERIFY(palette.toolBar(6)->widgetForAction(buttons(6)));
    // The buttons are in the order of the actions.
    int right = -1;
    const QList<QAction *> all = palette.toolBar(6)->actions();
    for (QAction *action : all) {
        const QWidget *button = palette.toolBar(6)->widgetForAction(action);
        QVERIFY(button->x() > right);
        right = button->geometry().right();
    }
}

void TstPalette::everyButtonHasALook()
{
    Palette palette;
    palette.resize(1600, 100);
    palette.show();
    for (int i = 0; i < 12; ++i) {
        palette.tabs()->setCurrentIndex(i);
        const QList<QAction *> all = palette.toolBar(i)->actions();
        for (QAction *action : all) {
            if (action->isSeparator())
                continue;
            auto *button = qobject_cast<QToolButton *>(palette.toolBar(i)->widgetForAction(action));
            QVERIFY2(button, qPrintable(action->text()));
            const bool hasIcon = !button->icon().isNull() && !button->icon().pixmap(22, 22).isNull();
            const bool hasShortText = button->icon().isNull() && button->text() != action->text();
            // The tool tip of "##" is its text.
            QVERIFY2(hasIcon || hasShortText || button->text() == u"##", qPrintable(action->text()));
            QCOMPARE(button->accessibleName(), action->text());
        }
    }
}

void TstPalette::keyedButtons()
{
    Palette palette;
    QSignalSpy clicked(&palette, &Palette::clicked);
    palette.action(3, u"td"_s)->trigger();
    palette.action(5, u"base"_s)->trigger();
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(clicked[0].first().value<QuickTag>().label, QStringView(u"Insert Table Data"));
    QCOMPARE(clicked[1].first().value<QuickTag>().label, QStringView(u"Inserts a BASE TARGET tag"));
}

void TstPalette::positionalButtons()
{
    Palette palette;
    QSignalSpy clicked(&palette, &Palette::clicked);
    palette.toolBar(7)->actions()[3]->trigger();
    palette.toolBar(11)->actions()[0]->trigger();
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(clicked[0].first().value<QuickTag>().label, QStringView(u"Button"));
    QCOMPARE(clicked[1].first().value<QuickTag>().label, QStringView(u"Include File"));
}

void TstPalette::headings()
{
    Palette palette;
    QSignalSpy clicked(&palette, &Palette::clicked);
    QSignalSpy headings(&palette, &Palette::headingClicked);
    const QMenu *menu = palette.toolBar(2)->actions()[5]->menu();
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 6);
    for (int size = 1; size <= 6; ++size) {
        QAction *entry = menu->actions()[size - 1];
        QCOMPARE(entry->objectName(), u"H%1"_s.arg(size));
        QCOMPARE(palette.findChild<QAction *>(entry->objectName()), entry);
        entry->trigger();
        QCOMPARE(headings.takeFirst(), QVariantList{size});
    }
    QVERIFY(clicked.isEmpty());
}

void TstPalette::selectorIsAToggle()
{
    Palette palette;
    QSignalSpy clicked(&palette, &Palette::clicked);
    QAction *selector = palette.action(4, u"selector"_s);
    QVERIFY(selector->isCheckable());
    selector->trigger();
    QVERIFY(palette.isSelectorPressed());
    QCOMPARE(clicked.size(), 1);
    palette.setSelectorPressed(false);
    QVERIFY(!selector->isChecked());
    QCOMPARE(clicked.size(), 1);
}

void TstPalette::aTabReportsEveryClick()
{
    Palette palette;
    palette.show();
    QSignalSpy tabs(&palette, &Palette::tabClicked);
    const auto click = [&](int index) {
        QTest::mouseClick(palette.tabs(), Qt::LeftButton, {}, palette.tabs()->tabRect(index).center());
    };
    click(2);
    click(2);
    palette.tabs()->setCurrentIndex(5);
    QCOMPARE(tabs.size(), 3);
    QCOMPARE(tabs[0], QVariantList{2});
    QCOMPARE(tabs[1], QVariantList{2});
    QCOMPARE(tabs[2], QVariantList{5});
}

void TstPalette::rowsAreEquallyHigh()
{
    Palette palette;
    palette.show();
    const int height = palette.toolBar(0)->height();
    for (int i = 1; i < 12; ++i) {
        palette.tabs()->setCurrentIndex(i);
        QTest::qWait(0);
        QVERIFY2(palette.toolBar(i)->height() >= height, qPrintable(QString::number(i)));
        QCOMPARE(palette.sizeHint().height(), palette.tabs()->sizeHint().height() + height);
    }
}

void TstPalette::whatTheSystemLacksSaysSo()
{
    Palette palette;
    const QAction *outside = palette.action(4, u"topstyle"_s);
    QVERIFY(!outside->isEnabled());
    QCOMPARE(outside->toolTip(), u"Edit in TopStyle (not on this system)"_s);
    QCOMPARE(outside->statusTip(), outside->toolTip());
    QVERIFY(palette.action(0, u"imagemap"_s)->isEnabled());
    QVERIFY(palette.action(3, u"td"_s)->isEnabled());
}

ZEPHIRA_TEST(TstPalette)
#include "tst_palette.moc"
