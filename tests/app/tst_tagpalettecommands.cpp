// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The commands that open the tag palette.
class TstTagPaletteCommands final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCommandOpensThePalette_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("button of the formatting toolbar") << u"htmltags"_s;
        QTest::newRow("entry of its pull-down") << u"dts"_s;
    }

    void aCommandOpensThePalette()
    {
        QFETCH(QString, command);
        WindowBench bench;
        frmmain &window = bench.start(bench.write(u"page.html"_s, "[old]"));
        window.show();
        window.rt().select({0, 1, 0, 4});
        QString form;
        QTimer::singleShot(0, &window, [&form] {
            QWidget *palette = QApplication::activeModalWidget();
            QVERIFY(palette);
            form = palette->objectName();
            auto *list = palette->findChild<QListWidget *>(u"TagList"_s);
            list->setCurrentItem(list->findItems(u"<u>"_s, Qt::MatchExactly).constFirst());
            palette->findChild<QPushButton *>(u"Command1"_s)->click();
            palette->findChild<QPushButton *>(u"Command2"_s)->click();
        });
        QVERIFY(bench.find<QAction>(command)->isEnabled());
        bench.choose(command);
        QCOMPARE(form, u"frmTags"_s);
        QCOMPARE(window.rt().text(), u"[<u> </u>]"_s);
        QVERIFY(window.docModified());
    }
};

ZEPHIRA_TEST(TstTagPaletteCommands)
#include "tst_tagpalettecommands.moc"
