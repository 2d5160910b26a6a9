// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/gotodialog.h"
#include "support/testregistry.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace zephira {

class TstGoToDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsChosen()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"1\r\n2\r\n3"_s);
        f.editor.select({1, 0, 1, 0});
        f.editor.executeCmd(EditorCommand::GoToLine, -1);
        auto *dialog = f.editor.findChild<GoToDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        auto *line = dialog->findChild<QLineEdit *>(u"txtLine"_s);
        QCOMPARE(line->text(), u"2"_s);
        QCOMPARE(dialog->findChild<QLabel *>(u"lblLine"_s)->text(), u"&Line number (1 to 3):"_s);
        QTest::keyClicks(line, u"3"_s);
        QTest::keyClick(line, Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{2, 0, 2, 0}));
        // The next time the same dialog opens, with the current line.
        f.editor.executeCmd(EditorCommand::GoToLine);
        QCOMPARE(f.editor.findChildren<GoToDialog *>().size(), 1);
        QCOMPARE(line->text(), u"3"_s);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{2, 0, 2, 0}));
    }

    void whatIsNoLineIsRefused_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char *typed : {"0", "4", "-1", "x", "", "1.5", "99999999999"})
            QTest::newRow(typed) << QString::fromLatin1(typed);
    }
    void whatIsNoLineIsRefused()
    {
        QFETCH(QString, typed);
        EditorFixture f;
        f.show();
        f.editor.setText(u"1\r\n2\r\n3"_s);
        f.editor.executeCmd(EditorCommand::GoToLine, -1);
        auto *dialog = f.editor.findChild<GoToDialog *>();
        auto *line = dialog->findChild<QLineEdit *>(u"txtLine"_s);
        line->setText(typed);
        QTest::keyClick(line, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->findChild<QLabel *>(u"lblMessage"_s)->text(), u"Please enter a number from 1 to 3."_s);
        QCOMPARE(f.editor.selection(false), CodeMaxRange());
        line->setText(u" 2 "_s);
        QTest::keyClick(line, Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(f.editor.selection(false).EndLineNo, 1);
    }

    void aLineByNumberNeedsNoDialog()
    {
        EditorFixture f;
        f.editor.setText(u"1\r\n2\r\n3"_s);
        f.editor.executeCmd(EditorCommand::GoToLine, 99);
        QCOMPARE(f.editor.selection(false).EndLineNo, 2);
        f.editor.executeCmd(EditorCommand::GoToLine, 0);
        QCOMPARE(f.editor.selection(false), CodeMaxRange());
        QVERIFY(!f.editor.findChild<QDialog *>());
    }
};

ZEPHIRA_TEST(TstGoToDialog)

} // namespace zephira

#include "tst_gotodialog.moc"
