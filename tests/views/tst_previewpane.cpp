// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/actionwalk.h"
#include "support/fakes.h"
#include "support/testregistry.h"
#include "views/previewpane.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>

#include <utility>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The pane and its browser, in a window that has a shortcut.
struct PaneInWindow {
    FakeBrowser browser;
    QMainWindow window;
    QWidget page;
    int runs = 0;

    explicit PaneInWindow(const QKeySequence &shortcut)
    {
        auto *command = new QAction(&window);
        command->setShortcut(shortcut);
        QObject::connect(command, &QAction::triggered, &window, [this] { ++runs; });
        window.addAction(command);
        auto *pane = new PreviewPane(browser);
        window.setCentralWidget(pane);
        pane->setBrowserWidget(&page);
        page.setFocusPolicy(Qt::StrongFocus);
        window.show();
        window.activateWindow();
        page.setFocus();
    }
    ~PaneInWindow() { page.setParent(nullptr); }
};

} // namespace

/// The preview's address bar with a browser that records its calls.
class TstPreviewPane final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPartIsThereOnce()
    {
        FakeBrowser browser;
        const PreviewPane pane(browser);
        for (const char *name :
             {"cbtop", "toolbarnav", "txturl", "cmdgo", "back", "forward", "stop", "refresh", "home"})
            QCOMPARE(pane.findChildren<QObject *>(QString::fromLatin1(name)).size(), 1);
    }

    void eachButtonHasOneEffect()
    {
        FakeBrowser browser;
        const PreviewPane pane(browser);
        const QList<QAction *> actions = actionsOf(*pane.findChild<QToolBar *>(u"toolbarnav"_s));
        QCOMPARE(faultsOf(actions), QStringList());
        for (QAction *action : actions)
            action->trigger();
        QCOMPARE(browser.calls, (QStringList{u"back"_s, u"forward"_s, u"stop"_s, u"refresh"_s, u"home"_s}));
    }

    void remoteHosts_data()
    {
        QTest::addColumn<QStringList>("hosts");
        QTest::addColumn<QString>("text");
        QTest::newRow("one") << QStringList{u"a.org"_s} << u"This page wants to load from a.org."_s;
        QTest::newRow("two") << QStringList{u"a.org"_s, u"b.org"_s}
                             << u"This page wants to load from a.org and b.org."_s;
        QTest::newRow("four") << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}
                              << u"This page wants to load from a, b, c and d."_s;
        QTest::newRow("more") << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}
                              << u"This page wants to load from a, b, c and 2 others."_s;
    }

    void remoteHosts()
    {
        QFETCH(QStringList, hosts);
        QFETCH(QString, text);
        FakeBrowser browser;
        PreviewPane pane(browser);
        int allowed = 0;
        connect(&pane, &PreviewPane::remoteAllowed, &pane, [&] { ++allowed; });
        auto *bar = pane.findChild<QWidget *>(u"remoteBar"_s);
        QVERIFY(bar && bar->isHidden());
        for (const char *button : {"remoteAllow", "remoteNotNow"}) {
            browser.remoteRefused(hosts);
            QVERIFY(!bar->isHidden());
            QCOMPARE(pane.findChild<QLabel *>(u"remoteText"_s)->text(), text);
            for (const QString &host : std::as_const(hosts))
                QVERIFY(pane.findChild<QLabel *>(u"remoteText"_s)->toolTip().contains(host));
            pane.findChild<QPushButton *>(QString::fromLatin1(button))->click();
            QCOMPARE(allowed, 1);
        }
        QVERIFY(bar->isHidden());
        browser.remoteRefused(hosts);
        browser.remoteRefused({});
        QVERIFY(bar->isHidden());
    }

    void remoteHostsAreTakenBack()
    {
        FakeBrowser browser;
        PreviewPane pane(browser);
        auto *button = pane.findChild<QPushButton *>(u"remoteForbid"_s);
        QVERIFY(button && button->isHidden());
        QSignalSpy forbidden(&pane, &PreviewPane::remoteForbidden);
        pane.setRemoteAllowed(true);
        QVERIFY(!button->isHidden());
        button->click();
        QCOMPARE(forbidden.size(), 1);
        pane.setRemoteAllowed(false);
        QVERIFY(button->isHidden());
    }

    void keysOfTheToolBar_data()
    {
        QTest::addColumn<QString>("key");
        for (const char *key : {"back", "forward", "stop", "refresh", "home"})
            QTest::newRow(key) << QString::fromLatin1(key);
    }

    void keysOfTheToolBar()
    {
        QFETCH(QString, key);
        FakeBrowser browser;
        const PreviewPane pane(browser);
        pane.findChild<QToolBar *>(u"toolbarnav"_s)->findChild<QAction *>(key)->trigger();
        QCOMPARE(browser.calls, QStringList{key});
    }

    void theAddressIsGoneTo_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("the button") << false;
        QTest::newRow("Return") << true;
    }

    void theAddressIsGoneTo()
    {
        QFETCH(bool, byKey);
        FakeBrowser browser;
        const PreviewPane pane(browser);
        auto *address = pane.findChild<QLineEdit *>(u"txturl"_s);
        QTest::keyClicks(address, u"example.org/a b"_s);
        if (byKey)
            QTest::keyClick(address, Qt::Key_Return);
        else
            QTest::mouseClick(pane.findChild<QPushButton *>(u"cmdgo"_s), Qt::LeftButton);
        QCOMPARE(browser.calls, QStringList{u"example.org/a b"_s});
    }

    void theAddressFollowsTheBrowser()
    {
        FakeBrowser browser;
        const PreviewPane pane(browser);
        browser.location = u"http://example.org/"_s;
        browser.navigateComplete();
        QCOMPARE(pane.findChild<QLineEdit *>(u"txturl"_s)->text(), u"http://example.org/"_s);
    }

    void whoseKeysTheyAre_data()
    {
        QTest::addColumn<QKeyCombination>("key");
        QTest::addColumn<bool>("isTheWindows");
        QTest::newRow("undo") << QKeyCombination(Qt::CTRL | Qt::Key_Z) << false;
        QTest::newRow("redo") << QKeyCombination(Qt::CTRL | Qt::Key_Y) << false;
        QTest::newRow("cut") << QKeyCombination(Qt::CTRL | Qt::Key_X) << false;
        QTest::newRow("copy") << QKeyCombination(Qt::CTRL | Qt::Key_C) << false;
        QTest::newRow("paste") << QKeyCombination(Qt::CTRL | Qt::Key_V) << false;
        QTest::newRow("select all") << QKeyCombination(Qt::CTRL | Qt::Key_A) << false;
        QTest::newRow("delete") << QKeyCombination(Qt::Key_Delete) << false;
        QTest::newRow("refresh") << QKeyCombination(Qt::Key_F5) << false;
        QTest::newRow("next view") << QKeyCombination(Qt::Key_F8) << true;
        QTest::newRow("save") << QKeyCombination(Qt::CTRL | Qt::Key_S) << true;
        QTest::newRow("find") << QKeyCombination(Qt::CTRL | Qt::Key_F) << true;
    }

    void whoseKeysTheyAre()
    {
        QFETCH(QKeyCombination, key);
        QFETCH(bool, isTheWindows);
        PaneInWindow bench{QKeySequence(key)};
        QVERIFY(QTest::qWaitForWindowActive(&bench.window));
        QVERIFY(bench.page.hasFocus());
        QTest::keyClick(&bench.page, key.key(), key.keyboardModifiers());
        QCOMPARE(bench.runs, isTheWindows ? 1 : 0);
        QCOMPARE(bench.browser.calls, key.key() == Qt::Key_F5 ? QStringList{u"refresh"_s} : QStringList());
    }

    /// The window knows which of its keys edit the text; F5 stays the pane's.
    void theWindowSaysWhichKeysEdit()
    {
        for (const auto &[key, isTheWindows] :
             {std::pair(Qt::CTRL | Qt::Key_U, false), std::pair(Qt::CTRL | Qt::Key_Z, true),
              std::pair(Qt::CTRL | Qt::Key_S, true), std::pair(Qt::CTRL | Qt::Key_Y, false),
              std::pair(QKeyCombination(Qt::Key_F5), false)}) {
            PaneInWindow bench{QKeySequence(key)};
            static_cast<PreviewPane *>(bench.window.centralWidget())->editsText =
                [](const QKeySequence &keys) -> std::optional<bool> {
                if (keys == QKeySequence(u"Ctrl+Y"_s))
                    return std::nullopt;
                return keys == QKeySequence(u"Ctrl+U"_s);
            };
            QVERIFY(QTest::qWaitForWindowActive(&bench.window));
            QTest::keyClick(&bench.page, key.key(), key.keyboardModifiers());
            QCOMPARE(bench.runs, isTheWindows ? 1 : 0);
        }
    }

    void theAddressLoadsThePageAgainToo()
    {
        PaneInWindow bench{QKeySequence(Qt::Key_F5)};
        QVERIFY(QTest::qWaitForWindowActive(&bench.window));
        auto *address = bench.window.findChild<QLineEdit *>(u"txturl"_s);
        address->setFocus();
        QTest::keyClick(address, Qt::Key_F5);
        QCOMPARE(bench.runs, 0);
        QCOMPARE(bench.browser.calls, QStringList{u"refresh"_s});
    }

    void theBrowserFillsThePane()
    {
        FakeBrowser browser;
        PreviewPane pane(browser);
        auto *widget = new QWidget(&pane);
        pane.setBrowserWidget(widget);
        pane.resize(600, 400);
        pane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pane));
        QCOMPARE(widget->width(), 600);
        QVERIFY(widget->height() > 300);
        QCOMPARE(pane.focusProxy(), widget);
        QVERIFY(!pane.findChild<QAction *>(u"home"_s)->toolTip().isEmpty());
    }
};

ZEPHIRA_TEST(TstPreviewPane)
#include "tst_previewpane.moc"
