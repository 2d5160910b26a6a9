// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/wrapbar.h"
#include "support/testregistry.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstWrapBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void liesOverTheLowerEdge()
    {
        QWidget window;
        window.resize(600, 400);
        QWidget below(&window);
        below.setGeometry(10, 20, 500, 300);
        WrapBar bar(below);
        QVERIFY(bar.isHidden());
        window.show();
        bar.open();
        QCOMPARE(bar.geometry().bottomLeft(), below.geometry().bottomLeft());
        QCOMPARE(bar.width(), below.width());
        below.resize(400, 350);
        QCOMPARE(bar.geometry().bottomRight(), below.geometry().bottomRight());
        bar.showProblem(u"Something"_s);
        QCOMPARE(bar.geometry().bottomRight(), below.geometry().bottomRight());
        below.hide();
        QVERIFY(bar.isHidden());
    }

    void saysWhatIsTyped()
    {
        QWidget window;
        QWidget below(&window);
        WrapBar bar(below);
        window.show();
        bar.open();
        const QSignalSpy edited(&bar, &WrapBar::edited);
        const QSignalSpy accepted(&bar, &WrapBar::accepted);
        const QSignalSpy left(&bar, &WrapBar::left);
        auto *line = bar.findChild<QLineEdit *>(u"wrapAbbreviation"_s);
        QTest::keyClicks(line, u" p "_s);
        QCOMPARE(edited.size(), 3);
        QCOMPARE(bar.abbreviation(), u"p"_s);
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
        QVERIFY(bar.isVisible());
        QTest::keyClick(line, Qt::Key_Escape);
        QCOMPARE(left.size(), 1);
        QVERIFY(bar.isHidden());
        bar.open();
        QCOMPARE(bar.abbreviation(), QString());
    }

    void showsTheResultOrTheProblem()
    {
        QWidget window;
        QWidget below(&window);
        WrapBar bar(below);
        bar.open();
        bar.showResult(u"<p>x</p>"_s);
        QCOMPARE(bar.findChild<QPlainTextEdit *>(u"wrapResult"_s)->toPlainText(), u"<p>x</p>"_s);
        auto *problem = bar.findChild<QLabel *>(u"wrapProblem"_s);
        QVERIFY(problem->isHidden());
        bar.showProblem(u"No."_s);
        QVERIFY(!problem->isHidden());
        QCOMPARE(problem->text(), u"No."_s);
        bar.showResult({});
        QVERIFY(problem->isHidden());
    }
};

ZEPHIRA_TEST(TstWrapBar)

#include "tst_wrapbar.moc"
