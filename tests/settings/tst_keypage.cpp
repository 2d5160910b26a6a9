// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "settings/frmoptions.h"
#include "settings/keysequencebox.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The page of the options with the keys of the commands.
class TstKeyPage final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsListed();
    void keysAreSetAndSaved();
    void cancelLeavesThem();
    void applySavesThem();
    void aClashIsTold();
    void keysOfTheTextAreTold();
    void keysThatCantBeChosen_data();
    void keysThatCantBeChosen();
    void keysAreTakenAway();
    void theShippedKeysMayAlwaysBeChosen();
    void oneIsReset();
    void allAreReset();
    void theSearch();
    void returnSetsTheKeys();
    void escapeCloses();
    void theTabKeyLeavesTheBox();
    void onlyOneKeyIsTaken();
    void aFailureIsTold();
    void nothingIsSavedIfTheConfigurationFails();

private:
    void open();
    QTreeWidget &list() const { return m_form->get<QTreeWidget>(u"lstkeys"_s); }
    KeySequenceBox &box() const { return m_form->get<KeySequenceBox>(u"keyedit"_s); }
    QString clash() const { return m_form->value(u"lblkeyclash"_s); }
    bool canSet() const { return m_form->get(u"cmdkeyset"_s).isEnabled(); }
    void select(int row) const
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().topLevelItem(row)).center());
    }
    /// Presses keys in the box.
    void press(const QString &keys) const
    {
        box().setFocus();
        const QKeyCombination key = QKeySequence(keys)[0];
        m_form->key(key.key(), key.keyboardModifiers());
    }
    /// The keys in the list; in brackets: changed ones.
    QStringList shown() const
    {
        QStringList keys;
        for (int i = 0; i < list().topLevelItemCount(); ++i) {
            const QTreeWidgetItem *row = list().topLevelItem(i);
            keys.append(row->font(0).bold() ? u'(' + row->text(1) + u')' : row->text(1));
        }
        return keys;
    }

    FormCatalogue m_catalogue;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<LivingForm> m_form;
};

void TstKeyPage::init()
{
    m_catalogue = {};
    m_catalogue.add<frmOptions>(u"frmOptions"_s);
    m_world = std::make_unique<TestContext>();
    open();
}

void TstKeyPage::cleanup()
{
    m_form.reset();
    m_world.reset();
}

void TstKeyPage::open()
{
    m_form.reset();
    m_form = std::make_unique<LivingForm>(m_catalogue, u"frmOptions"_s, *m_world);
    auto &tree = m_form->get<QTreeWidget>(u"TreeView1"_s);
    const QTreeWidgetItem *node = tree.topLevelItem(1)->child(3);
    QCOMPARE(node->text(0), u"Keyboard"_s);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(node).center());
    QVERIFY(list().isVisible());
}

void TstKeyPage::whatIsListed()
{
    QStringList rows;
    for (int i = 0; i < list().topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = list().topLevelItem(i);
        rows.append(row->data(0, KeyRole).toString() + u'|' + row->text(0) + u'|' + row->text(1));
    }
    QCOMPARE(
        rows,
        (QStringList{u"save|File > Save|Ctrl+S"_s, u"font|Options > Font|F7"_s, u"table|Tools > Table Wizard|"_s}));
    QVERIFY(list().selectedItems().isEmpty());
    QVERIFY(!box().isEnabled());
    QVERIFY(!canSet());
    QCOMPARE(m_form->value(u"cmdkeyreset"_s), u"Reset All"_s);
    QCOMPARE(clash(), u"Select a command, then press its new keys in the box."_s);
    select(1);
    QCOMPARE(clash(), QString());
    QVERIFY(box().isEnabled());
    QCOMPARE(box().keys(), u"F7"_s);
    QCOMPARE(m_form->value(u"cmdkeyreset"_s), u"Reset"_s);
    QVERIFY(!canSet());
}

void TstKeyPage::keysAreSetAndSaved()
{
    select(2);
    press(u"Ctrl+Shift+T"_s);
    QCOMPARE(box().keys(), u"Ctrl+Shift+T"_s);
    QCOMPARE(clash(), QString());
    QVERIFY(canSet());
    QCOMPARE(shown(), (QStringList{u"Ctrl+S"_s, u"F7"_s, {}}));
    m_form->press(u"cmdkeyset"_s);
    QCOMPARE(shown(), (QStringList{u"Ctrl+S"_s, u"F7"_s, u"(Ctrl+Shift+T)"_s}));
    QVERIFY(!canSet());
    QVERIFY(m_world->keys.saved.empty());
    m_form->press(u"cmdOK"_s);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(m_world->keys.saved, (std::vector<KeyChange>{{u"table"_s, u"Ctrl+Shift+T"_s}}));
}

void TstKeyPage::cancelLeavesThem()
{
    select(2);
    press(u"F9"_s);
    m_form->press(u"cmdkeyset"_s);
    m_form->press(u"cmdCancel"_s);
    QVERIFY(!m_form->isOpen());
    QVERIFY(m_world->keys.saved.empty());
}

void TstKeyPage::applySavesThem()
{
    select(2);
    press(u"F9"_s);
    m_form->press(u"cmdkeyset"_s);
    m_form->press(u"Command2"_s);
    QVERIFY(m_form->isOpen());
    const std::vector<KeyChange> expected = {{u"table"_s, u"F9"_s}};
    QCOMPARE(m_world->keys.saved, expected);
    // Saving again has nothing new, and Cancel takes nothing back.
    m_form->press(u"Command2"_s);
    m_form->press(u"cmdCancel"_s);
    QCOMPARE(m_world->keys.saved, expected);
}

void TstKeyPage::aClashIsTold()
{
    select(2);
    press(u"F7"_s);
    QCOMPARE(clash(), u"F7 runs Options > Font. Set takes it from there."_s);
    QCOMPARE(box().accessibleDescription(), clash());
    QCOMPARE(shown()[1], u"F7"_s);
    m_form->press(u"cmdkeyset"_s);
    QCOMPARE(shown(), (QStringList{u"Ctrl+S"_s, u"()"_s, u"(F7)"_s}));
    QCOMPARE(clash(), u"Options > Font has lost F7."_s);
    m_form->press(u"cmdOK"_s);
    QCOMPARE(m_world->keys.saved, (std::vector<KeyChange>{{u"font"_s, {}}, {u"table"_s, u"F7"_s}}));
}

void TstKeyPage::keysOfTheTextAreTold()
{
    select(2);
    press(u"Ctrl+M"_s);
    QCOMPARE(clash(), u"Ctrl+M is \"Go to the matching bracket\" in the text. Set lets it run this command instead."_s);
    m_form->press(u"cmdkeyset"_s);
    QCOMPARE(shown()[2], u"(Ctrl+M)"_s);
    QCOMPARE(clash(), QString());
}

void TstKeyPage::keysThatCantBeChosen_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("a letter") << u"A"_s << u"A types a character. Choose keys with Ctrl or Alt."_s;
    QTest::newRow("a digit") << u"5"_s << u"5 types a character. Choose keys with Ctrl or Alt."_s;
    QTest::newRow("a blank") << u"Space"_s << u"Space types a character. Choose keys with Ctrl or Alt."_s;
    QTest::newRow("deletes") << u"Backspace"_s << u"Backspace is needed for writing. Choose keys with Ctrl or Alt."_s;
    QTest::newRow("moves") << u"Left"_s << u"Left is needed for writing. Choose keys with Ctrl or Alt."_s;
    QTest::newRow("a menu's") << u"Alt+F"_s << u"Alt+F opens the menu File. Choose other keys."_s;
}

void TstKeyPage::keysThatCantBeChosen()
{
    QFETCH(QString, keys);
    select(2);
    press(keys);
    QCOMPARE(box().keys(), keys);
    QTEST(clash(), "sentence");
    QVERIFY(!canSet());
    press(u"Return"_s);
    QCOMPARE(shown(), (QStringList{u"Ctrl+S"_s, u"F7"_s, {}}));
    press(u"F9"_s);
    QCOMPARE(clash(), QString());
    QVERIFY(canSet());
}

/// The button in the box clears it.
void TstKeyPage::keysAreTakenAway()
{
    select(1);
    QVERIFY(box().isClearButtonEnabled());
    box().clear();
    QCOMPARE(clash(), QString());
    QVERIFY(canSet());
    m_form->press(u"cmdkeyset"_s);
    m_form->press(u"cmdOK"_s);
    QCOMPARE(m_world->keys.saved, (std::vector<KeyChange>{{u"font"_s, {}}}));
}

void TstKeyPage::theShippedKeysMayAlwaysBeChosen()
{
    m_world->keys.rows[1] = {u"delete"_s, u"Edit > Delete"_s, u"Del"_s, u"Ctrl+D"_s};
    open();
    select(1);
    press(u"Del"_s);
    QCOMPARE(clash(), QString());
    QVERIFY(canSet());
    select(2);
    press(u"Del"_s);
    QVERIFY(!canSet());
}

void TstKeyPage::oneIsReset()
{
    m_world->keys.rows[1].keys.clear();
    m_world->keys.rows[2].keys = u"F7"_s;
    open();
    QCOMPARE(shown(), (QStringList{u"Ctrl+S"_s, u"()"_s, u"(F7)"_s}));
    select(1);
    m_form->press(u"cmdkeyreset"_s);
    QCOMPARE(shown(), (QStringList{u"Ctrl+S"_s, u"F7"_s, {}}));
    QCOMPARE(clash(), u"Tools > Table Wizard has lost F7."_s);
    QCOMPARE(box().keys(), u"F7"_s);
    m_form->press(u"cmdOK"_s);
    QCOMPARE(m_world->keys.saved, (std::vector<KeyChange>{{u"font"_s, u"F7"_s}, {u"table"_s, {}}}));
}

void TstKeyPage::allAreReset()
{
    m_world->keys.rows[0].keys = u"F7"_s;
    m_world->keys.rows[1].keys = u"Ctrl+S"_s;
    m_world->keys.rows[2].keys = u"F9"_s;
    open();
    m_form->press(u"cmdkeyreset"_s);
    QCOMPARE(shown(), (QStringList{u"Ctrl+S"_s, u"F7"_s, {}}));
    m_form->press(u"cmdOK"_s);
    QCOMPARE(m_world->keys.saved,
             (std::vector<KeyChange>{{u"save"_s, u"Ctrl+S"_s}, {u"font"_s, u"F7"_s}, {u"table"_s, {}}}));
}

/// A command that isn't found isn't selected any more.
void TstKeyPage::theSearch()
{
    const auto found = [this] {
        QString visible;
        for (int i = 0; i < list().topLevelItemCount(); ++i)
            visible += list().topLevelItem(i)->isHidden() ? u'-' : u'x';
        return visible;
    };
    select(1);
    m_form->type(u"txtkeysearch"_s, u"wiz"_s);
    QCOMPARE(found(), u"--x"_s);
    QVERIFY(list().selectedItems().isEmpty());
    QVERIFY(!box().isEnabled());
    m_form->type(u"txtkeysearch"_s, u"f7"_s);
    QCOMPARE(found(), u"-x-"_s);
    m_form->type(u"txtkeysearch"_s, u"nothing of the kind"_s);
    QCOMPARE(found(), u"---"_s);
    m_form->set(u"txtkeysearch"_s, {});
    QCOMPARE(found(), u"xxx"_s);
    QVERIFY(m_form->isOpen());
}

void TstKeyPage::returnSetsTheKeys()
{
    select(2);
    press(u"F9"_s);
    press(u"Return"_s);
    QVERIFY(m_form->isOpen());
    QCOMPARE(shown()[2], u"(F9)"_s);
    // There is nothing to set now, and the dialog stays all the same.
    press(u"Enter"_s);
    QVERIFY(m_form->isOpen());
}

void TstKeyPage::escapeCloses()
{
    select(2);
    press(u"F9"_s);
    press(u"Esc"_s);
    QVERIFY(!m_form->isOpen());
    QVERIFY(m_world->keys.saved.empty());
}

void TstKeyPage::theTabKeyLeavesTheBox()
{
    select(2);
    press(u"F9"_s);
    m_form->key(Qt::Key_Tab);
    QCOMPARE(m_form->focus(), u"cmdkeyset"_s);
    QCOMPARE(box().keys(), u"F9"_s);
    m_form->key(Qt::Key_Tab);
    QCOMPARE(m_form->focus(), u"cmdkeyreset"_s);
}

/// Pressing others replaces them, and all is told at once.
void TstKeyPage::onlyOneKeyIsTaken()
{
    select(2);
    const QSignalSpy told(&box(), &QKeySequenceEdit::keySequenceChanged);
    press(u"Ctrl+K"_s);
    QCOMPARE(told.count(), 1);
    press(u"Ctrl+L"_s);
    QCOMPARE(box().keys(), u"Ctrl+L"_s);
    QCOMPARE(told.count(), 2);
    // A modifier alone changes nothing.
    m_form->key(Qt::Key_Control);
    m_form->key(Qt::Key_Shift, Qt::ControlModifier);
    QCOMPARE(box().keys(), u"Ctrl+L"_s);
    QTest::qWait(1200);
    QCOMPARE(box().keys(), u"Ctrl+L"_s);
    QCOMPARE(told.count(), 2);
    QVERIFY(canSet());
}

void TstKeyPage::aFailureIsTold()
{
    m_world->keys.failure = Error{Error::Code::Unwritable, u"The keys could not be saved."_s};
    select(2);
    press(u"F9"_s);
    m_form->press(u"cmdkeyset"_s);
    m_world->prompts.expectTell(u"The keys could not be saved."_s, u"Options"_s, Question::Icon::Exclamation);
    m_form->press(u"cmdOK"_s);
    QVERIFY(m_form->isOpen());
    QCOMPARE(shown()[2], u"(F9)"_s);
    m_world->keys.failure.reset();
    m_form->press(u"cmdOK"_s);
    QCOMPARE(m_world->keys.saved, (std::vector<KeyChange>{{u"table"_s, u"F9"_s}}));
}

void TstKeyPage::nothingIsSavedIfTheConfigurationFails()
{
    m_world->configuration.writable = false;
    select(2);
    press(u"F9"_s);
    m_form->press(u"cmdkeyset"_s);
    m_world->prompts.expectTell(u"The settings could not be saved."_s, u"Options"_s, Question::Icon::Exclamation);
    m_form->press(u"cmdOK"_s);
    QVERIFY(m_form->isOpen());
    QVERIFY(m_world->keys.saved.empty());
}

ZEPHIRA_TEST(TstKeyPage)
#include "tst_keypage.moc"
