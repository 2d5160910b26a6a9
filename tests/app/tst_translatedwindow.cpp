// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "commands/texttable.h"
#include "commands/toolbartable.h"
#include "desktop/desktoptranslation.h"
#include "support/testregistry.h"
#include "widgets/pickpopup.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The window on a German desktop.
struct GermanBench : WindowBench {
    DiskFileStore disk;
    Translation german{disk, {QStringLiteral(ZEPHIRA_BUILD)}, {u"de-DE"_s}};

    void show()
    {
        start().show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        window->rt().setFocus();
    }
};

/// The letters behind the signs "&" of some captions, and how many captions there are.
void checkMnemonics(const QStringList &captions)
{
    QSet<QChar> letters;
    for (const QString &caption : captions) {
        const qsizetype mark = caption.indexOf(u'&');
        QVERIFY2(mark >= 0, qPrintable(caption));
        const QChar letter = caption[mark + 1].toLower();
        QVERIFY2(!letters.contains(letter), qPrintable(caption));
        letters.insert(letter);
    }
}

QStringList captionsOf(std::span<const MenuItem> items)
{
    QStringList captions;
    for (const MenuItem &item : items)
        captions.append(captionOf(item));
    return captions;
}

} // namespace

/// What a German desktop changes in the window, and what it doesn't.
class TstTranslatedWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePaletteIsTranslated()
    {
        GermanBench bench;
        bench.show();
        QTest::keyClick(bench.window->windowHandle(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(field);
        QCOMPARE(field->placeholderText(), u"Befehl suchen"_s);
        QTest::keyClicks(field, u"Zusammenf"_s);
        const QAbstractItemModel *model = bench.find<QListView>(u"lstpick"_s)->model();
        QVERIFY(model->rowCount() > 0);
        QCOMPARE(model->index(0, 0).data().toString().section(u'\n', 0, 0), u"Zeilen zusammenfügen"_s);
        QTest::keyClick(field, Qt::Key_Escape);
    }

    void theMenusStayAsTheyAre()
    {
        GermanBench bench;
        bench.show();
        for (const std::span<const MenuItem> table : {menuBarTable(), popupTable()})
            compare(bench, table);
        QCOMPARE(bench.find<QMenu>(u"textLines"_s)->title(), u"&Zeilen"_s);
        QCOMPARE(bench.find<QAction>(u"textDuplicate"_s)->text(), u"&Verdoppeln"_s);
        for (const ToolButton &button : standardToolBar().buttons)
            QCOMPARE(translated("TextMenu", button.tip), button.tip.toString());
        QCOMPARE(bench.window->windowTitle(), u"Zephira - [New Document]"_s);
    }

    void theRecoveryBarIsTranslated()
    {
        GermanBench bench;
        bench.write(u"recovery/open-20240229-120000-000-1-page.html"_s, "<p>lost</p>");
        bench.show();
        QVERIFY(bench.find<QLabel>(u"recoveryText_0"_s)->text().startsWith(u"page.html war nicht gespeichert"));
        QCOMPARE(bench.find<QPushButton>(u"recoveryKeep_0"_s)->text(), u"Behalten"_s);
    }

    /// Each entry of the text's menus can be chosen by a letter, the entries of the code view's own menu among them.
    void lettersOfTheTextsMenus()
    {
        GermanBench bench;
        const auto own = [](const char *caption) { return QCoreApplication::translate("zephira::CodeMax", caption); };
        checkMnemonics(captionsOf(textMenuTable())
                       + QStringList{own("&Undo"), own("&Redo"), own("Cu&t"), own("&Copy"), own("&Paste"),
                                     own("&Delete"), own("Select &All"), own("Toggle &Bookmark"), own("Propert&ies…")});
        QCOMPARE(own("&Undo"), u"&Rückgängig"_s);
        for (const MenuItem &menu : textMenuTable())
            checkMnemonics(captionsOf(menu.children));
    }

private:
    static void compare(const WindowBench &bench, std::span<const MenuItem> items)
    {
        for (const MenuItem &item : items) {
            if (item.kind == MenuItem::Kind::Menu) {
                QCOMPARE(bench.find<QMenu>(item.name.toString())->title(), item.caption.toString());
                compare(bench, item.children);
            } else if (!item.name.isEmpty() && item.kind != MenuItem::Kind::Divider
                       && item.kind != MenuItem::Kind::Title && !item.caption.isEmpty()) {
                const QString text = bench.find<QAction>(item.name.toString())->text();
                QVERIFY2(text == item.caption, qPrintable(text));
            }
        }
    }
};

ZEPHIRA_TEST(TstTranslatedWindow)
#include "tst_translatedwindow.moc"
