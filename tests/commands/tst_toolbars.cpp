// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/toolbars.h"
#include "commands/toolbartable.h"
#include "support/testregistry.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstToolBars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standard();
    void formatting();
    void tipsNameTheKeysOfTheirEntries();
    void buttonsReportTheirCommands();
    void languagesCloseWhatIsAboutMarkup();
};

void TstToolBars::standard()
{
    CommandToolBar bar(standardToolBar());
    QCOMPARE(bar.objectName(), u"tBar"_s);
    QStringList keys;
    const QList<QAction *> all = bar.actions();
    for (const QAction *action : all) {
        if (action->isSeparator())
            continue;
        keys.append(action->objectName());
        QVERIFY(!action->toolTip().isEmpty());
        // A shortcut here would make that of the menu ambiguous.
        QVERIFY(action->shortcut().isEmpty());
    }
    QCOMPARE(keys,
             (QStringList{u"new"_s, u"open"_s, u"save"_s, u"print"_s, u"cut"_s, u"copy"_s, u"paste"_s, u"delete"_s,
                          u"undo"_s, u"redo"_s}));
}

void TstToolBars::tipsNameTheKeysOfTheirEntries()
{
    CommandToolBar bar(standardToolBar());
    const QAction *button = bar.action(u"new"_s);
    const QWidget *control = bar.widgetForAction(bar.action(u"new"_s));
    QCOMPARE(button->toolTip(), u"New document (Ctrl+N)"_s);
    QCOMPARE(control->accessibleName(), button->toolTip());
    bar.showKeys(u"mnunewdoc", u"F11"_s);
    QCOMPARE(button->toolTip(), u"New document (F11)"_s);
    QCOMPARE(button->text(), button->toolTip());
    QCOMPARE(control->accessibleName(), button->toolTip());
    bar.showKeys(u"mnunewdoc", {});
    QCOMPARE(button->toolTip(), u"New document"_s);
    bar.showKeys(u"nothing", u"F1"_s);
    QCOMPARE(bar.action(u"save"_s)->toolTip(), u"Save the document (Ctrl+S)"_s);
}

void TstToolBars::formatting()
{
    CommandToolBar bar(formattingToolBar());
    QCOMPARE(bar.objectName(), u"Toolbar1"_s);
    QCOMPARE(bar.actions().size(), 15);
    for (const auto &[button, entry] : {std::pair{u"preview"_s, u"pie"_s}, std::pair{u"links"_s, u"linkextract"_s},
                                        std::pair{u"htmltags"_s, u"dqw"_s}}) {
        QAction *action = bar.action(button);
        QVERIFY(action->menu()->actions().contains(bar.action(entry)));
        const auto *toolButton = qobject_cast<QToolButton *>(bar.widgetForAction(action));
        QCOMPARE(toolButton->popupMode(), QToolButton::MenuButtonPopup);
    }
    QVERIFY(!bar.action(u"nothing"_s));
}

void TstToolBars::buttonsReportTheirCommands()
{
    CommandToolBar bar(formattingToolBar());
    QSignalSpy chosen(&bar, &CommandToolBar::chosen);
    for (const QString &key : {u"bold"_s, u"preview"_s, u"picb"_s})
        bar.action(key)->trigger();
    QCOMPARE(chosen.size(), 3);
    const std::span<const ToolButton> buttons = formattingToolBar().buttons;
    QCOMPARE(chosen[0].first().value<Command>(), buttons[0].command);
    QCOMPARE(chosen[1].first().value<Command>(), buttons[8].command);
    QCOMPARE(chosen[2].first().value<Command>(), buttons[8].pullDown[2].command);
}

void TstToolBars::languagesCloseWhatIsAboutMarkup()
{
    CommandToolBar bar(formattingToolBar());
    bar.setMet(Need::Markup, false);
    for (int position = 1; position <= 15; ++position)
        QCOMPARE(bar.actions()[position - 1]->isEnabled(), position >= 13);
    bar.setMet(Need::Markup, true);
    const QList<QAction *> all = bar.actions();
    for (const QAction *action : all)
        QVERIFY(action->isEnabled());
}

ZEPHIRA_TEST(TstToolBars)
#include "tst_toolbars.moc"
