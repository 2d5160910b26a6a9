// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/wizardbench.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString twoFields = u"chosen<form action=\"action goes here\" method=\"POST\" name=\"Form1\">\r\n"
                          "<p>enter your field label name<input type=\"text\" size=\"20\" name=\"T1\"></p>\r\n"
                          "<p>enter your field label name<input type=\"text\" size=\"20\" name=\"T2\"></p>\r\n"
                          "<p><input type=\"submit\" name=\"B1\" value=\"Submit\">\r\n"
                          "<input type=\"reset\"name=\"B2\"value=\"Reset\"></p>\r\n </form>"_s;

using Work = std::function<void(QWidget &)>;

/// A companion of the menu wizard that is worked by `work` and then destroyed, as by the form opener.
void workOn(WizardBench &menu, const Work &work)
{
    menu.world.forms.onOpen = [&](const QString &form) {
        const std::unique_ptr<QWidget> companion(wizardCatalogue().make(form, menu.world.context, &menu.form.widget()));
        companion->show();
        work(*companion);
    };
    menu.form.press(u"Command1"_s);
    menu.world.forms.onOpen = {};
}

template<typename T>
T &in(QWidget &form, const QString &name)
{
    return *form.findChild<T *>(name);
}

void addChoice(WizardBench &menu, const QString &text, bool selected = false,
               const std::optional<QString> &value = std::nullopt)
{
    workOn(menu, [&](QWidget &form) {
        in<QLineEdit>(form, u"Text1"_s).setText(text);
        if (selected)
            in<QAbstractButton>(form, u"Option1_0"_s).click();
        if (value) {
            in<QAbstractButton>(form, u"Check1"_s).click();
            in<QLineEdit>(form, u"Text2"_s).setText(*value);
        }
        in<QPushButton>(form, u"Command2"_s).click();
        QVERIFY(!form.isVisible());
    });
}

QStringList rows(const WizardBench &menu)
{
    const auto &list = menu.form.get<QTreeWidget>(u"ListView1"_s);
    QStringList result;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        const QTreeWidgetItem &item = *list.topLevelItem(i);
        result.append(item.text(0) + u'|' + item.text(1) + u'|' + item.text(2));
    }
    return result;
}

} // namespace

/// The form wizard, and the drop-down wizard with its companion, worked as by a user.
class TstFormWizards final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formDefaults()
    {
        const WizardBench wizard(u"FormWizard"_s);
        QStringList values;
        for (const auto &name : {u"Text6"_s, u"Text8"_s, u"Combo4"_s, u"Text7"_s})
            values.append(wizard.form.value(name));
        QCOMPARE(values, (QStringList{u"Form1"_s, u"action goes here"_s, u"POST"_s, u"2"_s}));
        const auto &methods = wizard.form.get<QComboBox>(u"Combo4"_s);
        QVERIFY(methods.isEditable());
        QCOMPARE(methods.count(), 2);
        QCOMPARE(methods.itemText(1), u"GET"_s);
    }

    void returnInsertsTheForm()
    {
        const WizardBench wizard(u"FormWizard"_s);
        wizard.form.key(Qt::Key_Return);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList{twoFields});
    }

    void theFormTakesWhatIsTyped()
    {
        const WizardBench wizard(u"FormWizard"_s);
        wizard.form.type(u"Text6"_s, u"f"_s);
        wizard.form.type(u"Text8"_s, u"a.asp"_s);
        wizard.form.type(u"Combo4"_s, u"post"_s);
        wizard.form.type(u"Text7"_s, u"0"_s);
        wizard.form.press(u"Command10"_s);
        QCOMPARE(wizard.inserted(),
                 QStringList{u"chosen<form action=\"a.asp\" method=\"post\" name=\"f\">\r\n"
                             "<p><input type=\"submit\" name=\"B1\" value=\"Submit\">\r\n"
                             "<input type=\"reset\"name=\"B2\"value=\"Reset\"></p>\r\n </form>"_s});
    }

    void theActionIsAFileOfTheProject()
    {
        WizardBench wizard(u"FormWizard"_s);
        wizard.world.document.project = u"/site/"_s;
        wizard.world.prompts.expectFile(
            {.title = u"Browse for file"_s, .filter = u"All Files (*.*)|*.*"_s, .initialFolder = u"/site/"_s},
            u"/site/order.asp"_s);
        wizard.form.press(u"browseText8"_s);
        QVERIFY(wizard.world.prompts.verify());
        QCOMPARE(wizard.form.value(u"Text8"_s), u"order.asp"_s);
    }

    void tooManyFieldsAreTold()
    {
        WizardBench wizard(u"FormWizard"_s);
        wizard.world.prompts.expectTell(u"A form of 3000000000 fields is too large for a page."_s, u"Form Wizard"_s,
                                        Question::Icon::Exclamation);
        wizard.form.set(u"Text7"_s, u"3000000000"_s);
        wizard.form.press(u"Command10"_s);
        QVERIFY(wizard.form.isOpen());
        QVERIFY(wizard.world.prompts.verify());
        QCOMPARE(wizard.inserted(), QStringList());
    }

    void cancelInsertsNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("button");
        QTest::newRow("form") << u"FormWizard"_s << u"CancelButton"_s;
        QTest::newRow("form, Escape") << u"FormWizard"_s << QString();
        QTest::newRow("menu") << u"frmdropdown"_s << u"Command6"_s;
        QTest::newRow("menu, Escape") << u"frmdropdown"_s << QString();
    }

    void cancelInsertsNothing()
    {
        QFETCH(QString, name);
        QFETCH(QString, button);
        const WizardBench wizard(name);
        if (button.isEmpty())
            wizard.form.key(Qt::Key_Escape);
        else
            wizard.form.press(button);
        QVERIFY(!wizard.form.isOpen());
        QCOMPARE(wizard.inserted(), QStringList());
    }

    void menuDefaults()
    {
        const WizardBench menu(u"frmdropdown"_s);
        QStringList values;
        for (const auto &name : {u"Text1"_s, u"Text2"_s, u"Check1"_s, u"Text19"_s, u"Check2"_s, u"Check3"_s})
            values.append(menu.form.value(name));
        QCOMPARE(values, (QStringList{{}, u"1"_s, u"off"_s, {}, u"off"_s, u"off"_s}));
        QCOMPARE(rows(menu), QStringList());
        const QTreeWidgetItem &header = *menu.form.get<QTreeWidget>(u"ListView1"_s).headerItem();
        QCOMPARE((QStringList{header.text(0), header.text(1), header.text(2)}),
                 (QStringList{u"Choice"_s, u"Selected"_s, u"Value"_s}));
    }

    void aMenuNeedsAName()
    {
        WizardBench menu(u"frmdropdown"_s);
        menu.world.prompts.expectTell(u"You must fill in name of dropdown"_s);
        menu.form.press(u"Command7"_s);
        QVERIFY(menu.form.isOpen());
        QVERIFY(menu.world.prompts.verify());
        QCOMPARE(menu.inserted(), QStringList());
        QCOMPARE(menu.form.focus(), u"Text1"_s);
    }

    void choicesAreAddedInOrder()
    {
        WizardBench menu(u"frmdropdown"_s);
        addChoice(menu, u"One"_s);
        addChoice(menu, u"Two"_s, true);
        addChoice(menu, u"Three"_s, false, u"3"_s);
        addChoice(menu, u"Four"_s, true, u"."_s);
        addChoice(menu, u"Five"_s, false, QString());
        QCOMPARE(menu.world.forms.modal, QStringList(5, u"frmaddchoice"_s));
        QCOMPARE(rows(menu),
                 (QStringList{u"One|No|."_s, u"Two|Yes|."_s, u"Three|No|3"_s, u"Four|Yes|."_s, u"Five|No|"_s}));
        menu.form.type(u"Text1"_s, u"m"_s);
        menu.form.key(Qt::Key_Return);
        QVERIFY(!menu.form.isOpen());
        QCOMPARE(menu.inserted(),
                 QStringList{u"chosen<select size=\"1\" name=\"m\">\r\n  <option>One</option>\r\n"
                             "  <option selected>Two</option>\r\n  <option Value=\"3\">Three</option>\r\n"
                             "  <option selected>Four</option>\r\n  <option Value=\"\">Five</option>\r\n"
                             "</select>\r\n"_s});
    }

    /// The list shows such a choice in time, and the menu has all of it.
    void longAndStrangeChoices()
    {
        const QString text = u"\"<ü"_s.repeated(50'000) + u"\0\x01\r\n\t\U0001F600"_s;
        WizardBench menu(u"frmdropdown"_s);
        for (int i = 0; i < 3; ++i)
            addChoice(menu, text, false, text);
        menu.form.widget().grab();
        menu.form.set(u"Text1"_s, u"m"_s);
        menu.form.press(u"Command5"_s);
        menu.form.press(u"Command7"_s);
        const QString option = u"  <option Value=\""_s + text + u"\">"_s + text + u"</option>\r\n"_s;
        QCOMPARE(menu.inserted(),
                 QStringList{u"chosen<select size=\"1\" name=\"m\">\r\n"_s + option.repeated(3) + u"</select>\r\n"_s});
    }

    void aChoiceNeedsAText()
    {
        WizardBench menu(u"frmdropdown"_s);
        workOn(menu, [&](QWidget &form) {
            menu.world.prompts.expectTell(u"You must fill all fields"_s);
            in<QPushButton>(form, u"Command2"_s).click();
            QVERIFY(form.isVisible());
            QVERIFY(menu.world.prompts.verify());
            in<QLineEdit>(form, u"Text1"_s).setText(u"x"_s);
            in<QPushButton>(form, u"Command1"_s).click();
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(rows(menu), QStringList());
    }

    void theValueFollowsTheTextUntilItIsTheUsersOwn()
    {
        WizardBench menu(u"frmdropdown"_s);
        workOn(menu, [](QWidget &form) {
            auto &text = in<QLineEdit>(form, u"Text1"_s);
            auto &value = in<QLineEdit>(form, u"Text2"_s);
            auto &own = in<QAbstractButton>(form, u"Check1"_s);
            const auto background = [&] { return value.palette().color(QPalette::Base); };
            QVERIFY(!in<QAbstractButton>(form, u"Option1_0"_s).isChecked());
            QVERIFY(in<QAbstractButton>(form, u"Option1_1"_s).isChecked());
            QVERIFY(!value.isEnabled());
            QCOMPARE(background(), form.palette().color(QPalette::Window));
            text.setText(u"a"_s);
            QCOMPARE(value.text(), u"a"_s);
            own.click();
            QVERIFY(value.isEnabled());
            QCOMPARE(background(), form.palette().color(QPalette::Base));
            text.setText(u"ab"_s);
            QCOMPARE(value.text(), u"a"_s);
            own.click();
            QVERIFY(!value.isEnabled());
            QCOMPARE(background(), form.palette().color(QPalette::Window));
            QCOMPARE(value.text(), u"a"_s);
            text.setText(u"abc"_s);
            QCOMPARE(value.text(), u"abc"_s);
        });
    }

    void choicesMove()
    {
        WizardBench menu(u"frmdropdown"_s);
        addChoice(menu, u"a"_s, true);
        addChoice(menu, u"b"_s, false, u"2"_s);
        addChoice(menu, u"c"_s);
        auto &list = menu.form.get<QTreeWidget>(u"ListView1"_s);
        // Nothing is selected.
        const QStringList start{u"a|Yes|."_s, u"b|No|2"_s, u"c|No|."_s};
        list.clearSelection();
        menu.form.press(u"Command4"_s);
        menu.form.press(u"Command5"_s);
        QCOMPARE(rows(menu), start);

        list.setCurrentItem(list.topLevelItem(0));
        menu.form.press(u"Command4"_s);
        QCOMPARE(rows(menu), start);
        menu.form.press(u"Command5"_s);
        QCOMPARE(rows(menu), (QStringList{u"b|No|2"_s, u"a|Yes|."_s, u"c|No|."_s}));
        menu.form.press(u"Command5"_s);
        menu.form.press(u"Command5"_s);
        QCOMPARE(rows(menu), (QStringList{u"b|No|2"_s, u"c|No|."_s, u"a|Yes|."_s}));
        QCOMPARE(list.selectedItems(), QList<QTreeWidgetItem *>{list.topLevelItem(2)});
        menu.form.press(u"Command4"_s);
        QCOMPARE(rows(menu), (QStringList{u"b|No|2"_s, u"a|Yes|."_s, u"c|No|."_s}));
        QCOMPARE(list.selectedItems(), QList<QTreeWidgetItem *>{list.topLevelItem(1)});
    }

    void statementsNeedTheScriptForm()
    {
        const WizardBench menu(u"frmdropdown"_s);
        menu.form.press(u"Check3"_s);
        QCOMPARE(menu.form.value(u"Check2"_s), u"on"_s);
        menu.form.press(u"Check2"_s);
        QCOMPARE(menu.form.value(u"Check3"_s), u"off"_s);
        menu.form.press(u"Check3"_s);
        menu.form.press(u"Check3"_s);
        QCOMPARE(menu.form.value(u"Check2"_s), u"on"_s);
        menu.form.set(u"Text1"_s, u"m"_s);
        menu.form.press(u"Command7"_s);
        QCOMPARE(menu.inserted(), QStringList{u"chosen<select size=\"\"1\"\" name=\"\"m\"\">\r\n</select>\r\n"_s});
    }
};

ZEPHIRA_TEST(TstFormWizards)

#include "tst_formwizards.moc"
