// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/finddialog.h"
#include "editor/indicators.h"
#include "support/testregistry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr auto replaceCommand = EditorCommand::FindReplaceDialog;
constexpr auto findNextCommand = EditorCommand::FindNext;
constexpr auto findCommand = EditorCommand::FindDialog;

/// The dialog, driven through its widgets.
struct Driver {
    explicit Driver(EditorFixture &fixture, EditorCommand command) : editor(fixture.editor)
    {
        editor.executeCmd(command);
        dialog = editor.findChild<FindDialog *>();
    }
    template<typename T>
    T &child(const QString &name) const
    {
        return *dialog->findChild<T *>(name);
    }
    void find(const QString &text) const { child<QComboBox>(u"cboFind"_s).setEditText(text); }
    void replaceBy(const QString &text) const { child<QComboBox>(u"cboReplace"_s).setEditText(text); }
    void check(const QString &name, bool on) const
    {
        auto &box = child<QCheckBox>(name);
        if (box.isChecked() != on)
            box.click();
    }
    void press(const QString &name) const { child<QPushButton>(name).click(); }
    QString outcome() const { return child<QLabel>(u"lblOutcome"_s).text(); }

    CodeMax &editor;
    FindDialog *dialog = nullptr;
};

} // namespace

class TstFindDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoShapes()
    {
        EditorFixture f;
        f.show();
        Driver d(f, findCommand);
        QVERIFY(d.dialog && d.dialog->isVisible() && !d.dialog->isModal());
        QCOMPARE(d.dialog->windowTitle(), u"Find"_s);
        QVERIFY(!d.child<QPushButton>(u"cmdReplaceAll"_s).isVisible());
        QVERIFY(!d.child<QPushButton>(u"cmdFindNext"_s).isEnabled());
        f.editor.executeCmd(replaceCommand);
        QCOMPARE(f.editor.findChildren<FindDialog *>().size(), 1);
        QCOMPARE(d.dialog->windowTitle(), u"Find and Replace"_s);
        QVERIFY(d.child<QPushButton>(u"cmdReplaceAll"_s).isVisible());
        QTest::keyClick(d.dialog, Qt::Key_Escape);
        QVERIFY(!d.dialog->isVisible());
    }

    void readOnlyTextsAreOnlySearched()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"aa"_s);
        f.editor.setReadOnly(true);
        Driver d(f, replaceCommand);
        QVERIFY(!d.child<QPushButton>(u"cmdReplaceAll"_s).isVisible());
        d.find(u"a"_s);
        d.press(u"cmdFindNext"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(f.editor.text(), u"aa"_s);
        QCOMPARE(f.editor.selText(), u"a"_s);
    }

    void theSelectionIsThePattern()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two\r\nthree"_s);
        f.editor.select({0, 4, 0, 7});
        Driver d(f, findCommand);
        QCOMPARE(d.child<QComboBox>(u"cboFind"_s).currentText(), u"two"_s);
        QVERIFY(!d.child<QCheckBox>(u"chkInSelection"_s).isChecked());
        f.editor.select({0, 4, 1, 2});
        f.editor.executeCmd(findCommand);
        QCOMPARE(d.child<QComboBox>(u"cboFind"_s).currentText(), u"two"_s);
        QVERIFY(d.child<QCheckBox>(u"chkInSelection"_s).isChecked());
    }

    void findNextGoesOnAndRound()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab\r\nAB\r\nxab"_s);
        Driver d(f, findCommand);
        d.find(u"ab"_s);
        d.press(u"cmdFindNext"_s);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 0, 0, 2}));
        QTest::keyClick(&d.child<QComboBox>(u"cboFind"_s), Qt::Key_Return);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 0, 1, 2}));
        QCOMPARE(d.outcome(), QString());
        f.editor.executeCmd(findNextCommand);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{2, 1, 2, 3}));
        d.press(u"cmdFindNext"_s);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 0, 0, 2}));
        QCOMPARE(d.outcome(), u"Continued from the beginning."_s);
        d.child<QRadioButton>(u"optUp"_s).click();
        d.press(u"cmdFindNext"_s);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{2, 1, 2, 3}));
        QCOMPARE(d.outcome(), u"Continued from the end."_s);
        QTest::keyClick(&f.editor, Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 0, 0, 2}));
    }

    void withoutWrappingItEnds()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab x"_s);
        f.editor.select({0, 3, 0, 3});
        Driver d(f, findCommand);
        d.check(u"chkWrap"_s, false);
        d.find(u"ab"_s);
        d.press(u"cmdFindNext"_s);
        QCOMPARE(d.outcome(), u"Nothing found."_s);
        QCOMPARE(f.editor.selText(), QString());
    }

    void options()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abc AB ab"_s);
        Driver d(f, findCommand);
        d.find(u"ab"_s);
        d.check(u"chkMatchCase"_s, true);
        d.check(u"chkWholeWord"_s, true);
        d.press(u"cmdFindNext"_s);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 7, 0, 9}));
    }

    void findNextOpensTheDialogTheFirstTime()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one"_s);
        f.editor.executeCmd(findNextCommand);
        auto *dialog = f.editor.findChild<FindDialog *>();
        QVERIFY(dialog && dialog->isVisible());
    }

    void findNextThatFindsNothingSaysSo()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one"_s);
        Driver d(f, findCommand);
        d.find(u"one"_s);
        d.press(u"cmdFindNext"_s);
        d.dialog->close();
        f.editor.setText(u"two"_s);
        f.editor.executeCmd(findNextCommand);
        QVERIFY(d.dialog->isVisible());
        QCOMPARE(d.outcome(), u"Nothing found."_s);
    }

    void replaceOneByOne()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a-a-a"_s);
        Driver d(f, replaceCommand);
        d.find(u"a"_s);
        d.replaceBy(u"aa"_s);
        d.press(u"cmdReplace"_s); // finds the first
        QCOMPARE(f.editor.text(), u"a-a-a"_s);
        d.press(u"cmdReplace"_s);
        QCOMPARE(f.editor.text(), u"aa-a-a"_s);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 3, 0, 4}));
        d.press(u"cmdReplace"_s);
        d.press(u"cmdFindNext"_s);
        QCOMPARE(f.editor.text(), u"aa-aa-a"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"aa-a-a"_s);
    }

    /// Text that the user has selected is not replaced as a match, even if it equals one.
    void replaceTakesTheMatchAlone()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab ab"_s);
        Driver d(f, replaceCommand);
        d.find(u"ab"_s);
        d.replaceBy(u"x"_s);
        d.press(u"cmdFindNext"_s);
        f.editor.select({0, 1, 0, 2});
        d.press(u"cmdReplace"_s);
        QCOMPARE(f.editor.text(), u"ab ab"_s);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 3, 0, 5}));
    }

    void replaceAllIsOneStep_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("few") << 3;
        QTest::newRow("many") << 5000;
    }
    void replaceAllIsOneStep()
    {
        QFETCH(int, count);
        EditorFixture f;
        f.show();
        f.files.contents[u"/lf"_s] = "head\n" + QByteArray("x\ry\r\nä\n").repeated(count) + "tail";
        QVERIFY(f.editor.openFile(u"/lf"_s));
        Driver d(f, replaceCommand);
        d.check(u"chkRegularExpression"_s, true);
        d.find(u"(y)\\n(ä)"_s);
        d.replaceBy(u"\\2\\n\\1"_s);
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(d.outcome(), u"%1 replacements."_s.arg(count));
        QCOMPARE(changes.count(), 1);
        // The rest of the text keeps its line ends; new ones are of the kind that is most frequent in the text.
        const LineEnds typed = f.editor.typedLineEnds();
        const QByteArray end = typed == LineEnds::CrLf ? "\r\n" : typed == LineEnds::Lf ? "\n" : "\r";
        QVERIFY(f.editor.saveFile(u"/out"_s, false));
        QCOMPARE(f.files.contents[u"/out"_s], "head\n" + ("x\rä" + end + "y\n").repeated(count) + "tail");
        f.editor.undo();
        QVERIFY(f.editor.saveFile(u"/out"_s, false));
        QCOMPARE(f.files.contents[u"/out"_s], f.files.contents[u"/lf"_s]);
        QVERIFY(!f.editor.canUndo());
    }

    void replaceAllInTheSelection()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a\r\na\r\na\r\na"_s);
        f.editor.select({1, 0, 2, 1});
        Driver d(f, replaceCommand);
        d.find(u"a"_s);
        d.replaceBy(u"bbb"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(f.editor.text(), u"a\r\nbbb\r\nbbb\r\na"_s);
        // The selection has grown with the replaced text.
        d.find(u"b$"_s);
        d.check(u"chkRegularExpression"_s, true);
        d.replaceBy(u"c"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(f.editor.text(), u"a\r\nbbc\r\nbbc\r\na"_s);
    }

    void oneReplacementAndNone()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abc"_s);
        Driver d(f, replaceCommand);
        d.find(u"b"_s);
        d.replaceBy(u""_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(d.outcome(), u"1 replacement."_s);
        QCOMPARE(f.editor.text(), u"ac"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(d.outcome(), u"Nothing found."_s);
    }

    void emptyMatchesDontHang()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a\r\nb\r\nc"_s);
        Driver d(f, replaceCommand);
        d.check(u"chkRegularExpression"_s, true);
        d.find(u"^"_s);
        std::vector<int> lines;
        for (int i = 0; i < 4; ++i) {
            d.press(u"cmdFindNext"_s);
            lines.push_back(f.editor.selection(false).EndLineNo);
        }
        QCOMPARE(lines, (std::vector<int>{0, 1, 2, 0}));
        d.child<QRadioButton>(u"optUp"_s).click();
        d.press(u"cmdFindNext"_s);
        QCOMPARE(f.editor.selection(false).EndLineNo, 2);
        d.press(u"cmdFindNext"_s);
        QCOMPARE(f.editor.selection(false).EndLineNo, 1);
        d.find(u"$"_s);
        d.replaceBy(u";"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(f.editor.text(), u"a;\r\nb;\r\nc;"_s);
        d.find(u"x*"_s);
        d.replaceBy(u"-"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(f.editor.text(), u"-a-;-\r\n-b-;-\r\n-c-;-"_s);
    }

    void aWrongExpressionIsTold()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abc"_s);
        Driver d(f, findCommand);
        d.check(u"chkRegularExpression"_s, true);
        d.find(u"(b"_s);
        d.press(u"cmdFindNext"_s);
        QCOMPARE(d.outcome(), u"The regular expression is invalid at character 3: missing closing parenthesis."_s);
        QCOMPARE(f.editor.selText(), QString());
    }

    void searchesAreRemembered()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abc"_s);
        Driver d(f, findCommand);
        for (const QString &text : {u"a"_s, u"b"_s, u"A"_s, u"a"_s}) {
            d.find(text);
            d.press(u"cmdFindNext"_s);
        }
        auto &box = d.child<QComboBox>(u"cboFind"_s);
        QStringList history;
        for (int i = 0; i < box.count(); ++i)
            history += box.itemText(i);
        QCOMPARE(history, (QStringList{u"a"_s, u"A"_s, u"b"_s}));
        for (int i = 0; i < 30; ++i) {
            d.find(QString::number(i));
            d.press(u"cmdFindNext"_s);
        }
        QCOMPARE(box.count(), 20);
    }

    void theyAreKeptForTheUser()
    {
        EditorFixture f;
        MemoryUserSettings settings;
        CodeMax first({f.files, f.recovery, f.prompts, {}, &settings});
        CodeMax second({f.files, f.recovery, f.prompts, {}, &settings});
        const auto dialogOf = [](CodeMax &editor) {
            editor.executeCmd(replaceCommand);
            return editor.findChild<FindDialog *>();
        };
        const FindDialog *dialog = dialogOf(first);
        dialog->findChild<QComboBox *>(u"cboFind"_s)->setEditText(u"sought"_s);
        dialog->findChild<QComboBox *>(u"cboReplace"_s)->setEditText(u"put"_s);
        dialog->findChild<QPushButton *>(u"cmdFindNext"_s)->click();
        const FindDialog *other = dialogOf(second);
        QCOMPARE(other->findChild<QComboBox *>(u"cboFind"_s)->itemText(0), u"sought"_s);
        QCOMPARE(other->findChild<QComboBox *>(u"cboReplace"_s)->itemText(0), u"put"_s);
        QCOMPARE(other->findChild<QComboBox *>(u"cboFind"_s)->currentText(), QString());
    }

    /// While one types, and until the dialog is closed.
    void marksAndCounts()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab AB abc"_s);
        Driver d(f, findCommand);
        const auto isMarked = [&](qsizetype at) {
            return f.editor.engine().send(QsciScintillaBase::SCI_INDICATORVALUEAT, MatchIndicator, at) != 0;
        };
        const auto count = [&] { return d.child<QLabel>(u"lblCount"_s).text(); };
        auto &field = d.child<QComboBox>(u"cboFind"_s);
        QTest::keyClicks(field.lineEdit(), u"ab"_s);
        QTRY_COMPARE(count(), u"3 matches"_s);
        QVERIFY(isMarked(0) && isMarked(3) && isMarked(7) && !isMarked(8));
        d.check(u"chkMatchCase"_s, true);
        QTRY_COMPARE(count(), u"2 matches"_s);
        QVERIFY(!isMarked(3));
        QTest::keyClicks(field.lineEdit(), u"c"_s);
        QTRY_COMPARE(count(), u"1 match"_s);
        QTest::keyClicks(field.lineEdit(), u"d"_s);
        QTRY_COMPARE(count(), u"0 matches"_s);
        QVERIFY(!isMarked(6));
        d.check(u"chkRegularExpression"_s, true);
        d.find(u"(a+a+)+"_s);
        QTRY_COMPARE(count(), u"0 matches"_s);
        d.find(u"("_s);
        QCOMPARE(count(), QString());
        d.find(u"b"_s);
        QTRY_COMPARE(count(), u"2 matches"_s);
        // Nothing is selected, and what the find key finds is still to be chosen.
        QCOMPARE(f.editor.selText(), QString());
        d.press(u"cmdClose"_s);
        QCOMPARE(count(), QString());
        QVERIFY(!isMarked(1));
    }

    void theWordAtTheCaret()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"red reddish\r\nred. Red"_s);
        f.editor.select({0, 1, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_F3, Qt::ControlModifier);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 0, 1, 3}));
        QTest::keyClick(&f.editor, Qt::Key_F3, Qt::ControlModifier);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 5, 1, 8}));
        QTest::keyClick(&f.editor, Qt::Key_F3, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 0, 1, 3}));
        // The find key goes on with it.
        QTest::keyClick(&f.editor, Qt::Key_F3);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 5, 1, 8}));
        QTest::keyClick(&f.editor, Qt::Key_F3);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 0, 0, 3}));
    }

    void theSelectionAsItIs()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a.b axb a.bc a.b"_s);
        f.editor.select({0, 0, 0, 3});
        QTest::keyClick(&f.editor, Qt::Key_F3, Qt::ControlModifier);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{0, 8, 0, 11}));
        f.editor.setText(u"  \r\n"_s);
        QTest::keyClick(&f.editor, Qt::Key_F3, Qt::ControlModifier);
        QCOMPARE(f.editor.selText(), QString());
        QVERIFY(!f.editor.findChild<FindDialog *>());
    }

    void tenMegabytes()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"<td>some text é</td>\r\n"_s.repeated(450'000));
        Driver d(f, replaceCommand);
        d.find(u"td"_s);
        d.replaceBy(u"th"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(d.outcome(), u"900000 replacements."_s);
        QCOMPARE(f.editor.text(), u"<th>some text é</th>\r\n"_s.repeated(450'000));
        f.editor.undo();
        QVERIFY(!f.editor.text().contains(u"th"_s));
    }

    /// In one long line the search continues from one match to the next.
    void aLongLine()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"éx"_s.repeated(500'000));
        Driver d(f, replaceCommand);
        d.find(u"x"_s);
        d.replaceBy(u"yy"_s);
        d.press(u"cmdReplaceAll"_s);
        QCOMPARE(d.outcome(), u"500000 replacements."_s);
        QCOMPARE(f.editor.text(), u"éyy"_s.repeated(500'000));
    }
};

ZEPHIRA_TEST(TstFindDialog)

} // namespace zephira

#include "tst_finddialog.moc"
