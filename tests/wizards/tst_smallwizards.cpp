// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/colourswatch.h"
#include "wizards/wizardbench.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The wizards with a handful of fields, worked as by a user.
class TstSmallWizards final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("controls");
        QTest::addColumn<QStringList>("values");
        const QString none;
        const auto row = [](const QString &name, const QString &controls, const QStringList &values) {
            QTest::newRow(qPrintable(name)) << name << controls << values;
        };
        row(u"frmRedirect"_s, u"Text1 Text2 Text3"_s, {u"http://"_s, u"0"_s, u"http://"_s});
        row(u"frminsbreak"_s, u"Option1_0 Option1_1 Option1_2 Option1_3"_s, {u"off"_s, u"off"_s, u"off"_s, u"off"_s});
        row(u"frmiframe"_s, u"source frname frwidth frheight frmw frmh fralign frscroll frborder"_s,
            {none, none, none, none, none, none, none, u"Auto (default)"_s, u"1 (default)"_s});
        row(u"frmvbwiz"_s, u"Text1 Combo1 Text2 Text3 Text4"_s, {none, u"="_s, none, none, none});
        row(u"frmwizcookie"_s, u"Text1 dtpicker1 Text3"_s, {none, u"10/26/2002"_s, none});
        row(u"frmcsv"_s, u"Combo1"_s, {none});
        row(u"doctype"_s, u"Combo1"_s, {none});
        row(u"frmwizMarquee"_s,
            u"Text1 Option1_0 Option1_1 Text3 Text2 Option2_0 Option2_1 Option2_2 Option3_0 Option3_1 Option3_2 Text4 "
            "Text5 Text6 Check3 Text7 Check4"_s,
            {none, u"on"_s, u"off"_s, u"0"_s, u"0"_s, u"on"_s, u"off"_s, u"off"_s, u"on"_s, u"off"_s, u"off"_s, none,
             none, u"0"_s, u"off"_s, u"#FFFFFF"_s, u"off"_s});
    }

    void defaults()
    {
        QFETCH(QString, name);
        QFETCH(QString, controls);
        const WizardBench wizard(name);
        QStringList values;
        const QStringList each = controls.split(u' ');
        for (const QString &control : each)
            values.append(wizard.form.value(control));
        QTEST(values, "values");
    }

    void lists_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("entries");
        const auto row = [](const QString &name, const QString &list, const QString &entries) {
            QTest::newRow(qPrintable(name + u'.' + list)) << name << list << entries;
        };
        row(u"frmiframe"_s, u"fralign"_s, u"Left|Center|Right"_s);
        row(u"frmiframe"_s, u"frscroll"_s, u"Auto (default)|Yes|No"_s);
        row(u"frmiframe"_s, u"frborder"_s, u"1 (default)|0"_s);
        row(u"frmvbwiz"_s, u"Combo1"_s, u"=|>|<"_s);
        row(u"doctype"_s, u"Combo1"_s,
            u"HTML 4.01 Transitional|HTML 4.01 Strict|HTML 4.01 Frameset|-|HTML 4.0 Transitional|HTML 4.0 Strict|"
            "HTML 4.0 Frameset"_s);
    }

    void lists()
    {
        QFETCH(QString, name);
        QFETCH(QString, list);
        const WizardBench wizard(name);
        const auto &box = wizard.form.get<QComboBox>(list);
        QStringList entries;
        for (int i = 0; i < box.count(); ++i)
            entries.append(box.itemText(i));
        QTEST(entries.join(u'|'), "entries");
    }

    /// The button that inserts closes the form, and the selection stays in front of the text.
    void theSelectionStaysInFront_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("text");
        const auto row = [](const QString &name, const QString &button, const QString &text) {
            QTest::newRow(qPrintable(name + u'.' + button)) << name << button << text;
        };
        row(u"frmRedirect"_s, u"Command1"_s, u"chosen<meta http-equiv=\"refresh\" content=\"0\"; url=\"http://\">"_s);
        row(u"frmRedirect"_s, u"Command3"_s, u"chosenResponse.redirect\"http://\""_s);
        row(u"frminsbreak"_s, u"Command1"_s, u"chosen<br clear=\"\" > "_s);
        row(u"frmiframe"_s, u"Command2"_s,
            u"chosen<iframe src=\"\" name=\"\" id=\"\" width=\"\" height=\"\" marginwidth=\"\" marginheight=\"\" "
            "align=\"\"></iframe>"_s);
        row(u"frmvbwiz"_s, u"Command1"_s, u"chosen<% If  =  Then \r\n\r\nEnd If %>\r\n"_s);
        row(u"frmwizcookie"_s, u"Command1"_s,
            u"chosen<%\r\n  Response.Cookies(\"Type\") = \"\"\r\n"
            "  Response.Cookies(\"Type\").Expires = \"10/26/2002\"\r\n  Response.Cookies(\"Type\").Domain =\"\"\r\n"
            " Response.Cookies(\"Type\").Path = \"\"\r\nResponse.Cookies(\"Type\").Secure = FALSE \r\n%>"_s);
    }

    void theSelectionStaysInFront()
    {
        QFETCH(QString, name);
        QFETCH(QString, button);
        QFETCH(QString, text);
        const WizardBench wizard(name);
        wizard.form.press(button);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList{text});
    }

    void cancelInsertsNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("button");
        const QStringList buttons{u"frmRedirect.Command2"_s,
                                  u"frmRedirect.Command4"_s,
                                  u"frminsbreak.Command2"_s,
                                  u"frmvbwiz.Command2"_s,
                                  u"frmwizcookie.Command2"_s,
                                  u"doctype.CancelButton"_s,
                                  u"frmwizMarquee.Command3"_s,
                                  u"frmRedirect."_s,
                                  u"frminsbreak."_s,
                                  u"frmiframe."_s,
                                  u"frmvbwiz."_s,
                                  u"frmwizcookie."_s,
                                  u"doctype."_s,
                                  u"frmwizMarquee."_s};
        for (const QString &button : buttons)
            QTest::newRow(qPrintable(button)) << button.section(u'.', 0, 0) << button.section(u'.', 1);
    }

    void cancelInsertsNothing()
    {
        QFETCH(QString, name);
        QFETCH(QString, button);
        const WizardBench wizard(name);
        const QString before = wizard.world.editor.text();
        if (button.isEmpty())
            wizard.form.key(Qt::Key_Escape);
        else
            wizard.form.press(button);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList());
        QCOMPARE(wizard.world.editor.text(), before);
    }

    void returnPressesTheButton_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("start");
        QTest::newRow("refresh") << u"frmRedirect"_s << u"Text1"_s << u"chosen<meta"_s;
        QTest::newRow("statement") << u"frmRedirect"_s << u"Text3"_s << u"chosenResponse"_s;
        QTest::newRow("break") << u"frminsbreak"_s << u"Option1_1"_s << u"chosen<br"_s;
        QTest::newRow("frame") << u"frmiframe"_s << u"frmh"_s << u"chosen<iframe"_s;
        QTest::newRow("if") << u"frmvbwiz"_s << u"Text4"_s << u"chosen<% If"_s;
        QTest::newRow("cookie") << u"frmwizcookie"_s << u"dtpicker1"_s << u"chosen<%"_s;
    }

    void returnPressesTheButton()
    {
        QFETCH(QString, name);
        QFETCH(QString, field);
        QFETCH(QString, start);
        const WizardBench wizard(name);
        wizard.form.get(field).setFocus();
        wizard.form.key(Qt::Key_Return);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted().size(), 1);
        QVERIFY(wizard.inserted().first().startsWith(start));
    }

    void theDefaultButtonFollowsTheGroup()
    {
        const WizardBench wizard(u"frmRedirect"_s);
        QVERIFY(wizard.form.get<QPushButton>(u"Command1"_s).isDefault());
        wizard.form.get(u"Text3"_s).setFocus();
        QVERIFY(wizard.form.get<QPushButton>(u"Command3"_s).isDefault());
        wizard.form.get(u"Text2"_s).setFocus();
        QVERIFY(wizard.form.get<QPushButton>(u"Command1"_s).isDefault());
    }

    void browseOfTheRedirectDoesNothing()
    {
        const WizardBench wizard(u"frmRedirect"_s);
        wizard.form.press(u"Command5"_s);
        QVERIFY(wizard.form.isOpen());
        QCOMPARE(wizard.form.value(u"Text3"_s), u"http://"_s);
        QCOMPARE(wizard.inserted(), QStringList());
    }

    void theBreakIsWhatIsChosen_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("text");
        QTest::newRow("normal") << u"Option1_0"_s << u"chosen<br>"_s;
        QTest::newRow("right") << u"Option1_1"_s << u"chosen<br clear=\"Right\" > "_s;
        QTest::newRow("left") << u"Option1_2"_s << u"chosen<br clear=\"Left\" > "_s;
        QTest::newRow("both") << u"Option1_3"_s << u"chosen<br clear=\"Both\" > "_s;
    }

    void theBreakIsWhatIsChosen()
    {
        QFETCH(QString, option);
        const WizardBench wizard(u"frminsbreak"_s);
        wizard.form.press(option);
        wizard.form.press(u"Command1"_s);
        QCOMPARE(wizard.inserted().size(), 1);
        QTEST(wizard.inserted().first(), "text");
    }

    void theFrameOpensAFileOfTheProject()
    {
        WizardBench wizard(u"frmiframe"_s);
        wizard.world.document.project = u"/site/"_s;
        wizard.world.prompts.expectFile(
            {.title = u"Browse for file"_s, .filter = u"All Files (*.*)|*.*"_s, .initialFolder = u"/site/"_s},
            u"/site/a/b.htm"_s);
        wizard.form.press(u"browseSource"_s);
        QVERIFY(wizard.world.prompts.verify());
        QCOMPARE(wizard.form.value(u"source"_s), u"a/b.htm"_s);
        wizard.form.press(u"Command2"_s);
        QVERIFY(wizard.inserted().value(0).startsWith(u"chosen<iframe src=\"a/b.htm\" name=\"\""));
    }

    void everyFieldTakesAnyText_data()
    {
        QTest::addColumn<QString>("form");
        const QStringList forms = wizardCatalogue().names();
        for (const QString &form : forms)
            QTest::newRow(qPrintable(form)) << form;
    }

    void everyFieldTakesAnyText()
    {
        QFETCH(QString, form);
        const QString text = u"\"<ü"_s.repeated(50'000) + u"\0\x01\r\n\t\U0001F600"_s;
        const WizardBench wizard(form);
        const QList<QLineEdit *> boxes = wizard.form.widget().findChildren<QLineEdit *>();
        for (QLineEdit *box : boxes) {
            // The year in the calendar.
            if (box->objectName() == u"qt_spinbox_lineedit")
                continue;
            box->selectAll();
            box->insert(text);
            QVERIFY2(box->text() == text || box->isReadOnly(), qPrintable(box->objectName()));
        }
        const QList<QComboBox *> lists = wizard.form.widget().findChildren<QComboBox *>();
        for (const QComboBox *list : lists)
            QVERIFY2(!list->isEditable() || list->currentText() == text, qPrintable(list->objectName()));
    }

    void anyTextFits()
    {
        const QString text = QString(100000, u'x') + QChar(0) + u"\"\U0001F600"_s;
        const WizardBench wizard(u"frmRedirect"_s);
        wizard.form.get<QLineEdit>(u"Text3"_s).selectAll();
        wizard.form.get<QLineEdit>(u"Text3"_s).insert(text);
        wizard.form.press(u"Command3"_s);
        QCOMPARE(wizard.inserted(), QStringList{u"chosenResponse.redirect\""_s + text + u'"'});
    }

    void theCalendarFillsTheDate_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QDate>("shown");
        QTest::newRow("as the form starts") << u"10/26/2002"_s << QDate(2002, 10, 26);
        QTest::newRow("no date") << u"soon"_s << QDate(2024, 2, 29);
        QTest::newRow("no such day") << u"02/30/2024"_s << QDate(2024, 2, 29);
    }

    void theCalendarFillsTheDate()
    {
        QFETCH(QString, typed);
        const WizardBench wizard(u"frmwizcookie"_s);
        wizard.form.set(u"dtpicker1"_s, typed);
        auto *menu = wizard.form.get<QToolButton>(u"calendar"_s).menu();
        menu->popup(QPoint());
        auto *calendar = menu->findChild<QCalendarWidget *>();
        QVERIFY(calendar);
        QTEST(calendar->selectedDate(), "shown");
        calendar->setSelectedDate(QDate(2031, 1, 9));
        Q_EMIT calendar->activated(calendar->selectedDate());
        QVERIFY(!menu->isVisible());
        QCOMPARE(wizard.form.value(u"dtpicker1"_s), u"01/09/2031"_s);
        QVERIFY(wizard.form.isOpen());
    }

    void aVariableReplacesTheSelectionAtAnyWayOfClosing_data()
    {
        QTest::addColumn<std::function<void(const LivingForm &)>>("close");
        using Close = std::function<void(const LivingForm &)>;
        QTest::newRow("Escape") << Close([](const LivingForm &form) { form.key(Qt::Key_Escape); });
        QTest::newRow("Return") << Close([](const LivingForm &form) { form.key(Qt::Key_Return); });
        QTest::newRow("the window's button") << Close([](const LivingForm &form) { form.widget().close(); });
    }

    void aVariableReplacesTheSelectionAtAnyWayOfClosing()
    {
        QFETCH(std::function<void(const LivingForm &)>, close);
        const WizardBench wizard(u"frmcsv"_s);
        wizard.form.key(Qt::Key_Down);
        close(wizard.form);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList{u"ALL_HTTP\t"_s});
        const WizardBench untouched(u"frmcsv"_s);
        close(untouched.form);
        QVERIFY(!untouched.form.isOpen());
        QCOMPARE(untouched.inserted(), QStringList());
    }

    void theDocumentTypeGoesToTheStart()
    {
        const QString line = u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\">\r\n"_s;
        WizardBench wizard(u"doctype"_s);
        FakeEditor &editor = wizard.world.editor;
        editor.setText(u"<html>\r\n<b>x</b>"_s);
        editor.selectOffsets(14, 11);
        wizard.form.set(u"Combo1"_s, u"HTML 4.0 Strict"_s);
        wizard.form.press(u"OKButton"_s);
        QVERIFY(!wizard.form.isOpen());
        const int length = static_cast<int>(line.size());
        QCOMPARE(editor.text(), line + u"<html>\r\n<b>x</b>"_s);
        QCOMPARE(editor.anchorOffset(), length + 14);
        QCOMPARE(editor.caretOffset(), length + 11);
        QCOMPARE(wizard.inserted(), QStringList());
        // The wizard doesn't look for a line that is there already, so that a second one comes before it.
        const LivingForm again(wizardCatalogue(), u"doctype"_s, wizard.world);
        again.set(u"Combo1"_s, u"HTML 4.0 Strict"_s);
        again.press(u"OKButton"_s);
        QCOMPARE(editor.text(), line + line + u"<html>\r\n<b>x</b>"_s);
    }

    void theDividerOrNoDocumentTypeWritesNothing_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::newRow("divider") << u"-"_s;
        QTest::newRow("none") << QString();
    }

    void theDividerOrNoDocumentTypeWritesNothing()
    {
        QFETCH(QString, choice);
        const WizardBench wizard(u"doctype"_s);
        if (!choice.isEmpty())
            wizard.form.set(u"Combo1"_s, choice);
        wizard.form.press(u"OKButton"_s);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.world.editor.text(), u"<p>chosen</p>"_s);
        QCOMPARE(wizard.world.editor.selText(), u"chosen"_s);
    }

    void theHiddenBoxesHoldTheLines()
    {
        const WizardBench wizard(u"doctype"_s);
        QStringList lines;
        for (int i = 1; i <= 6; ++i) {
            const auto &box = wizard.form.get<QLineEdit>(u"Text%1"_s.arg(i));
            QVERIFY(!box.isVisible());
            lines.append(box.text().section(u'"', 1, 1));
        }
        QCOMPARE(lines,
                 (QStringList{u"-//W3C//DTD HTML 4.01 Transitional//EN"_s, u"-//W3C//DTD HTML 4.01//EN"_s,
                              u"-//W3C//DTD HTML 4.01 Frameset//EN"_s, u"-//W3C//DTD HTML 4.0 Transitional//EN"_s,
                              u"-//W3C//DTD HTML 4.0//EN"_s, u"-//W3C//DTD HTML 4.0 Frameset//EN"_s}));
    }

    void aScrollingTextIsRequired()
    {
        WizardBench wizard(u"frmwizMarquee"_s);
        wizard.world.prompts.expectTell(u"Fill in some text to scoll"_s);
        wizard.form.press(u"Command2"_s);
        QVERIFY(wizard.form.isOpen());
        QVERIFY(wizard.world.prompts.verify());
        QCOMPARE(wizard.inserted(), QStringList());
        QCOMPARE(wizard.form.focus(), u"Text1"_s);
        wizard.form.type(u"Text1"_s, u"News"_s);
        wizard.form.key(Qt::Key_Return);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(),
                 QStringList{u"chosen<Marquee align=\"Left\" behavior=\"Scoll\" bgcolor=\"#FFFFFF\" direction=\"Left\" "
                             "scrollamount=\"0\" scrolldelay=\"0\">News</Marquee>"_s});
    }

    void theRepeatGroupChangesNothing()
    {
        const WizardBench wizard(u"frmwizMarquee"_s);
        for (const QString &control : {u"Text6"_s, u"Check3"_s})
            QCOMPARE(wizard.form.get(control).toolTip(), u"For your own notes: it isn't inserted"_s);
        wizard.form.set(u"Text1"_s, u"x"_s);
        wizard.form.set(u"Text6"_s, u"7"_s);
        wizard.form.press(u"Check3"_s);
        wizard.form.press(u"Command2"_s);
        QCOMPARE(wizard.inserted().size(), 1);
        QVERIFY(!wizard.inserted().first().contains(u'7'));
        QVERIFY(!wizard.inserted().first().contains(u"loop"));
    }

    void theSwatchChoosesTheColour()
    {
        WizardBench wizard(u"frmwizMarquee"_s);
        wizard.world.prompts.expectColour(0xffffff, std::nullopt);
        wizard.form.press(u"swatch"_s);
        QCOMPARE(wizard.form.value(u"Text7"_s), u"#FFFFFF"_s);
        wizard.world.prompts.expectColour(0xffffff, 0x0080ff);
        wizard.form.press(u"swatch"_s);
        QCOMPARE(wizard.form.value(u"Text7"_s), u"#FF8000"_s);
        const auto &swatch = wizard.form.get<ColourSwatch>(u"swatch"_s);
        QCOMPARE(swatch.colour(), QColor(0xff, 0x80, 0));
        wizard.form.set(u"Text7"_s, u"navy"_s);
        QCOMPARE(swatch.colour(), QColor(0, 0, 0x80));
        wizard.form.set(u"Text7"_s, u"no colour"_s);
        QVERIFY(!swatch.colour().isValid());
        wizard.world.prompts.expectColour(0xffffff, std::nullopt);
        wizard.form.press(u"swatch"_s);
        QCOMPARE(wizard.form.value(u"Text7"_s), u"no colour"_s);
        QVERIFY(wizard.world.prompts.verify());
    }
};

ZEPHIRA_TEST(TstSmallWizards)

#include "tst_smallwizards.moc"
