// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "views/previewpane.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The preview's address bar over a browser that keeps what it is told.
class TstPreviewPane final : public QObject
{
    Q_OBJECT

private slots:
    void everyPartIsThereOnce()
    {
        FakeBrowser browser;
        const PreviewPane pane(browser);
        for (const char *name : {"cbtop", "toolbarnav", "txturl", "cmdgo", "back", "forward", "stop", "refresh", "home"})
            QCOMPARE(pane.findChildren<QObject *>(QString::fromLatin1(name)).size(), 1);
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
