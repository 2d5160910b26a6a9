// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/editorcommand.h"
#include "core/editoritems.h"
#include "core/itemroles.h"
#include "settings/colourpresets.h"
#include "settings/registerforms.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/memoryfiletypes.h"
#include "support/testregistry.h"

#include <QListWidget>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList frames = {u"frappearance"_s, u"frcolors"_s, u"frdisplayoptions"_s, u"frfilters"_s,
                            u"frkeyboard"_s,   u"frpaths"_s,  u"frstartup"_s};
const QString tips = u"zephira/Options/Show Tips at Startup"_s;

} // namespace

class TstFrmOptions final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTree();
    void aNodeShowsItsPage_data();
    void aNodeShowsItsPage();
    void theArrowKeysTurnThePages();
    void whatIsLoaded();
    void whatIsLoadedWhenAllIsOff();
    void okSavesAndCloses();
    void applySavesAndStays();
    void cancelWritesNothing();
    void cancelAfterApplyUndoesNothing();
    void onlyTheStartDialogTicked();
    void theRadioButtons();
    void setOptionsOpensThePropertiesDialog();
    void coloursAreSavedOnlyBySaving();
    void theBrowserIsChosen();
    void theServerRootIsChosen_data();
    void theServerRootIsChosen();
    void aFailureIsToldAndNothingIsLost();
    void aPresetShowsAtOnceAndIsSaved();
    void cancelTakesAPresetBack();
    void whatWasChangedAfterAPresetStays();
    void thePresetThatShowsIsSelected();
    void theTabKeyChoosesNoPreset();

private:
    void open();
    void put(const QString &section, const QString &key, const QString &value)
    {
        m_world->configuration.put(section, key, value);
    }
    QString kept(const QString &section, const QString &key) const
    {
        return m_world->configuration.value(section, key);
    }
    QTreeWidget &tree() const { return m_form->get<QTreeWidget>(u"TreeView1"_s); }
    /// Clicks a node with the mouse.
    void click(const QTreeWidgetItem *node) const
    {
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualItemRect(node).center());
    }
    void choosePreset(const QString &name) const
    {
        auto &list = m_form->get<QListWidget>(u"lstpresets"_s);
        const QListWidgetItem *entry = list.findItems(name, Qt::MatchExactly).constFirst();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(entry).center());
    }
    QString visibleFrames() const
    {
        QStringList visible;
        for (const QString &frame : frames) {
            if (m_form->get(frame).isVisible())
                visible.append(frame);
        }
        return visible.join(u' ');
    }

    MemoryFileTypes m_fileTypes;
    FormCatalogue m_catalogue;
    std::unique_ptr<TestContext> m_world;
    std::unique_ptr<LivingForm> m_form;
};

void TstFrmOptions::init()
{
    m_catalogue = {};
    settings::registerForms(m_catalogue, m_fileTypes, u"/app/zephira"_s);
    m_world = std::make_unique<TestContext>();
}

void TstFrmOptions::cleanup()
{
    m_form.reset();
    m_world.reset();
}

void TstFrmOptions::open()
{
    m_form.reset();
    m_form = std::make_unique<LivingForm>(m_catalogue, u"frmOptions"_s, *m_world);
}

void TstFrmOptions::theTree()
{
    open();
    QCOMPARE(m_form->widget().windowTitle(), u"Options"_s);
    QStringList nodes;
    for (int i = 0; i < tree().topLevelItemCount(); ++i) {
        const QTreeWidgetItem *root = tree().topLevelItem(i);
        QVERIFY(root->isExpanded());
        nodes.append(root->text(0));
        for (int j = 0; j < root->childCount(); ++j)
            nodes.append(root->child(j)->text(0) + u'=' + root->child(j)->data(0, KeyRole).toString());
    }
    QCOMPARE(nodes,
             (QStringList{u" - Display & Feel - "_s, u"Colors=Colors"_s, u"Font Styles=Font Styles"_s, u"Fonts=Fonts"_s,
                          u"Display Options=Display Options"_s, u"Appearance=Appearance"_s, u" - Others - "_s,
                          u"Project Explorer Filters=Filters"_s, u"Start-Up Options=startup"_s,
                          u"Program Paths=paths"_s, u"Keyboard=Keyboard"_s}));
    QCOMPARE(visibleFrames(), u"frcolors"_s);
    QVERIFY(m_form->focus() == u"TreeView1"_s);
}

void TstFrmOptions::aNodeShowsItsPage_data()
{
    QTest::addColumn<int>("root");
    QTest::addColumn<int>("child");
    QTest::addColumn<QString>("frame");
    QTest::newRow("Colors") << 0 << 0 << u"frcolors"_s;
    QTest::newRow("Font Styles") << 0 << 1 << u"frcolors"_s;
    QTest::newRow("Fonts") << 0 << 2 << u"frcolors"_s;
    QTest::newRow("Display Options") << 0 << 3 << u"frdisplayoptions"_s;
    QTest::newRow("Appearance") << 0 << 4 << u"frappearance"_s;
    QTest::newRow("Filters") << 1 << 0 << u"frfilters"_s;
    QTest::newRow("startup") << 1 << 1 << u"frstartup"_s;
    QTest::newRow("paths") << 1 << 2 << u"frpaths"_s;
    QTest::newRow("Keyboard") << 1 << 3 << u"frkeyboard"_s;
    QTest::newRow("first root") << 0 << -1 << u"frcolors"_s;
    QTest::newRow("second root") << 1 << -1 << u"frcolors"_s;
}

/// Whichever page is in front.
void TstFrmOptions::aNodeShowsItsPage()
{
    QFETCH(int, root);
    QFETCH(int, child);
    open();
    for (int i = 0; i < tree().topLevelItemCount(); ++i) {
        for (int j = 0; j < tree().topLevelItem(i)->childCount(); ++j) {
            click(tree().topLevelItem(i)->child(j));
            const QTreeWidgetItem *node = tree().topLevelItem(root);
            click(child < 0 ? node : node->child(child));
            QTEST(visibleFrames(), "frame");
        }
    }
}

void TstFrmOptions::theArrowKeysTurnThePages()
{
    open();
    QStringList seen;
    for (int i = 0; i < 9; ++i) {
        m_form->key(Qt::Key_Down);
        seen.append(visibleFrames());
    }
    QCOMPARE(seen,
             (QStringList{u"frcolors"_s, u"frcolors"_s, u"frdisplayoptions"_s, u"frappearance"_s, u"frcolors"_s,
                          u"frfilters"_s, u"frstartup"_s, u"frpaths"_s, u"frkeyboard"_s}));
}

void TstFrmOptions::whatIsLoaded()
{
    const QStringList switches = {u"highlight"_s, u"linenumber"_s, u"leftmargin"_s, u"whitespace"_s, u"selbounds"_s};
    for (const QString &key : switches)
        put(u"OPTIONS"_s, key, u"1"_s);
    put(u"filters"_s, u"FILTERS"_s, u" *.a; *b"_s);
    for (int i = 1; i <= 6; ++i)
        put(u"ctab"_s, QString::number(i), u"tab%1.txt"_s.arg(i));
    put(u"paths"_s, u"iepath"_s, u"/b/browser"_s);
    put(u"SERVER"_s, u"ROOT"_s, u"C:\\www\\"_s);
    put(u"startup"_s, u"selprj"_s, u"1"_s);
    put(u"startup"_s, u"rootsel"_s, u"1"_s);
    m_world->settings.values[tips] = u"1"_s;
    open();
    for (const QString &box : {u"chkHighlight"_s, u"chkLine"_s, u"chkLeft"_s, u"chkWhite"_s, u"chkSel"_s, u"Check1"_s,
                               u"Check2"_s, u"Option1"_s})
        QCOMPARE(box + u'=' + m_form->value(box), box + u"=on"_s);
    QCOMPARE(m_form->value(u"Option2"_s), u"off"_s);
    QCOMPARE(m_form->value(u"Text1"_s), u" *.a; *b"_s);
    for (int i = 1; i <= 6; ++i)
        QCOMPARE(m_form->value(u"c%1path"_s.arg(i)), u"tab%1.txt"_s.arg(i));
    QCOMPARE(m_form->value(u"iepath"_s), u"/b/browser"_s);
    QCOMPARE(m_form->value(u"rootpath"_s), u"C:\\www\\"_s);
}

void TstFrmOptions::whatIsLoadedWhenAllIsOff()
{
    put(u"startup"_s, u"rootsel"_s, u"2"_s);
    m_world->settings.values[tips] = u"0"_s;
    open();
    for (const QString &box : {u"chkHighlight"_s, u"chkLine"_s, u"chkLeft"_s, u"chkWhite"_s, u"chkSel"_s, u"Check1"_s,
                               u"Check2"_s, u"Option1"_s})
        QCOMPARE(box + u'=' + m_form->value(box), box + u"=off"_s);
    QCOMPARE(m_form->value(u"Option2"_s), u"on"_s);
}

/// Every control is written to its key.
void TstFrmOptions::okSavesAndCloses()
{
    open();
    m_form->set(u"Text1"_s, u"*.a"_s);
    for (int i = 1; i <= 6; ++i)
        m_form->set(u"c%1path"_s.arg(i), u"t%1"_s.arg(i));
    m_form->set(u"iepath"_s, u"browser"_s);
    m_form->set(u"rootpath"_s, u"root"_s);
    m_form->set(u"Option1"_s, u"on"_s);
    struct Row {
        QString box;
        QString section;
        QString key;
    };
    const Row boxes[] = {
        {u"chkHighlight"_s, u"options"_s, u"highlight"_s}, {u"chkLine"_s, u"options"_s, u"linenumber"_s},
        {u"chkLeft"_s, u"options"_s, u"leftmargin"_s},     {u"chkWhite"_s, u"options"_s, u"whitespace"_s},
        {u"chkSel"_s, u"options"_s, u"selbounds"_s},       {u"Check1"_s, u"startup"_s, u"selprj"_s},
    };
    for (const Row &on : boxes) {
        for (const Row &row : boxes)
            m_form->set(row.box, row.box == on.box ? u"on"_s : u"off"_s);
        m_form->press(u"Command2"_s);
        for (const Row &row : boxes)
            QCOMPARE(row.key + kept(row.section, row.key), row.key + (row.box == on.box ? u'1' : u'0'));
    }
    QCOMPARE(m_world->settings.values.at(tips), u"1"_s);
    m_world->configuration.log.clear();
    m_form->press(u"cmdOK"_s);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(m_world->configuration.log.size(), 31 + 6 + 12 + 5 + 1 + 6 + 2 + 2);
    QCOMPARE(kept(u"filters"_s, u"filters"_s), u"*.a"_s);
    for (int i = 1; i <= 6; ++i)
        QCOMPARE(kept(u"ctab"_s, QString::number(i)), u"t%1"_s.arg(i));
    QCOMPARE(kept(u"paths"_s, u"iepath"_s), u"browser"_s);
    QCOMPARE(kept(u"server"_s, u"root"_s), u"root"_s);
    QCOMPARE(kept(u"startup"_s, u"rootsel"_s), u"1"_s);
}

void TstFrmOptions::applySavesAndStays()
{
    open();
    m_form->set(u"chkWhite"_s, u"on"_s);
    m_form->press(u"Command2"_s);
    QVERIFY(m_form->isOpen());
    QCOMPARE(kept(u"options"_s, u"whitespace"_s), u"1"_s);
    QVERIFY(m_world->editor.whitespaceShown);
}

void TstFrmOptions::cancelWritesNothing()
{
    for (const bool byKey : {false, true}) {
        open();
        m_form->set(u"chkWhite"_s, u"on"_s);
        m_form->set(u"Check1"_s, u"off"_s);
        if (byKey)
            m_form->key(Qt::Key_Escape);
        else
            m_form->press(u"cmdCancel"_s);
        QVERIFY(!m_form->isOpen());
        QVERIFY(m_world->configuration.log.isEmpty());
        QVERIFY(m_world->settings.values.empty());
        QVERIFY(!m_world->editor.whitespaceShown);
    }
}

void TstFrmOptions::cancelAfterApplyUndoesNothing()
{
    open();
    m_form->set(u"chkSel"_s, u"on"_s);
    m_form->press(u"Command2"_s);
    m_form->set(u"chkSel"_s, u"off"_s);
    m_form->press(u"cmdCancel"_s);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(kept(u"options"_s, u"selbounds"_s), u"1"_s);
    QVERIFY(m_world->editor.selectionBound);
}

void TstFrmOptions::onlyTheStartDialogTicked()
{
    put(u"startup"_s, u"selprj"_s, u"0"_s);
    m_world->settings.values[tips] = u"0"_s;
    open();
    click(tree().topLevelItem(1)->child(1));
    m_form->press(u"Check2"_s);
    QCOMPARE(m_form->value(u"Check2"_s), u"on"_s);
    m_form->press(u"cmdOK"_s);
    QCOMPARE(kept(u"startup"_s, u"selprj"_s), u"0"_s);
    QCOMPARE(m_world->settings.values.at(tips), u"0"_s);
}

void TstFrmOptions::theRadioButtons()
{
    open();
    click(tree().topLevelItem(1)->child(1));
    for (const auto &[button, value] : {std::pair(u"Option1"_s, u"1"_s), std::pair(u"Option2"_s, u"2"_s)}) {
        m_form->press(button);
        m_form->press(u"Command2"_s);
        QCOMPARE(kept(u"startup"_s, u"rootsel"_s), value);
    }
}

void TstFrmOptions::setOptionsOpensThePropertiesDialog()
{
    open();
    m_form->press(u"Command1"_s);
    QCOMPARE(m_world->editor.commands, (std::vector<FakeEditor::ExecutedCommand>{{224, -1}}));
    QVERIFY(m_world->configuration.log.isEmpty());
}

void TstFrmOptions::coloursAreSavedOnlyBySaving()
{
    open();
    m_world->editor.setColor(CommentFore, 77);
    QCOMPARE(kept(u"colors"_s, u"clr1fr"_s), QString());
    m_form->press(u"Command2"_s);
    QCOMPARE(kept(u"colors"_s, u"clr1fr"_s), u"77"_s);
}

void TstFrmOptions::theBrowserIsChosen()
{
    put(u"paths"_s, u"iepath"_s, u"/old/browser"_s);
    open();
    click(tree().topLevelItem(1)->child(2));
    const FileRequest request{
        .title = u"Browser Path"_s, .filter = u"All Files (*.*)|*.*"_s, .fileName = u"/old/browser"_s};
    m_world->prompts.expectFile(request, {});
    m_form->press(u"Command3"_s);
    QCOMPARE(m_form->value(u"iepath"_s), u"/old/browser"_s);
    m_world->prompts.expectFile(request, u"/new/browser"_s);
    m_form->press(u"Command3"_s);
    QCOMPARE(m_form->value(u"iepath"_s), u"/new/browser"_s);
    QCOMPARE(kept(u"paths"_s, u"iepath"_s), u"/old/browser"_s);
}

void TstFrmOptions::theServerRootIsChosen_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("shown");
    QTest::newRow("cancelled") << QString() << u"/old/"_s;
    QTest::newRow("folder") << u"/srv/www"_s << u"/srv/www/"_s;
    QTest::newRow("with its separator") << u"/srv/"_s << u"/srv/"_s;
    QTest::newRow("with a backslash") << u"C:\\www\\"_s << u"C:\\www\\"_s;
    QTest::newRow("root") << u"/"_s << u"/"_s;
}

void TstFrmOptions::theServerRootIsChosen()
{
    QFETCH(QString, chosen);
    put(u"server"_s, u"root"_s, u"/old/"_s);
    open();
    click(tree().topLevelItem(1)->child(2));
    m_world->prompts.expectFolder(u"Browse for Root Dir"_s, u"/old/"_s,
                                  chosen.isNull() ? std::optional<QString>() : chosen);
    m_form->press(u"Command4"_s);
    QTEST(m_form->value(u"rootpath"_s), "shown");
}

void TstFrmOptions::aFailureIsToldAndNothingIsLost()
{
    m_world->configuration.writable = false;
    open();
    m_form->set(u"Text1"_s, u"*.mine"_s);
    m_form->set(u"chkWhite"_s, u"on"_s);
    for (const QString &button : {u"Command2"_s, u"cmdOK"_s}) {
        m_world->prompts.expectTell(u"The settings could not be saved."_s, u"Options"_s, Question::Icon::Exclamation);
        m_form->press(button);
        QVERIFY(m_form->isOpen());
        QVERIFY(m_world->settings.values.empty());
        QVERIFY(!m_world->editor.whitespaceShown);
    }
    m_world->configuration.writable = true;
    m_form->press(u"cmdOK"_s);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(kept(u"filters"_s, u"filters"_s), u"*.mine"_s);
}

void TstFrmOptions::aPresetShowsAtOnceAndIsSaved()
{
    open();
    click(tree().topLevelItem(0)->child(4));
    choosePreset(u"Dark"_s);
    QCOMPARE(m_world->editor.color(WindowColour), 0x28231fU);
    QVERIFY(m_world->configuration.log.isEmpty());
    m_form->press(u"Command2"_s);
    QCOMPARE(kept(u"colors"_s, u"clr17fr"_s), QString::number(0x28231f));
    m_form->press(u"cmdCancel"_s);
    QCOMPARE(m_world->editor.color(WindowColour), 0x28231fU);
}

void TstFrmOptions::cancelTakesAPresetBack()
{
    EditorColours before{};
    for (std::size_t i = 0; i < before.size(); ++i)
        before[i] = static_cast<quint32>(i) + 1;
    setColours(m_world->editor, before);
    open();
    click(tree().topLevelItem(0)->child(4));
    choosePreset(u"Dark"_s);
    m_form->key(Qt::Key_Down);
    QCOMPARE(shownPreset(m_world->editor), std::optional(3));
    m_form->key(Qt::Key_Escape);
    QVERIFY(!m_form->isOpen());
    QCOMPARE(coloursOf(m_world->editor), before);
}

/// A colour that the control's own dialog sets is the user's, whatever becomes of the preset.
void TstFrmOptions::whatWasChangedAfterAPresetStays()
{
    setColours(m_world->editor, shippedColours);
    open();
    click(tree().topLevelItem(0)->child(4));
    choosePreset(u"High contrast"_s);
    m_world->editor.setColor(CommentFore, 7);
    m_form->press(u"cmdCancel"_s);
    EditorColours expected = shippedColours;
    expected[CommentFore] = 7;
    QCOMPARE(coloursOf(m_world->editor), expected);
}

void TstFrmOptions::thePresetThatShowsIsSelected()
{
    setColours(m_world->editor, colourPresets()[2].colours);
    open();
    auto &list = m_form->get<QListWidget>(u"lstpresets"_s);
    QCOMPARE(list.currentRow(), 2);
    m_world->editor.setColor(CommentFore, 7);
    click(tree().topLevelItem(0)->child(4));
    QVERIFY(list.selectedItems().isEmpty());
    QCOMPARE(m_world->editor.color(CommentFore), 7U);
}

void TstFrmOptions::theTabKeyChoosesNoPreset()
{
    setColours(m_world->editor, {});
    open();
    click(tree().topLevelItem(0)->child(4));
    m_form->key(Qt::Key_Tab);
    QCOMPARE(m_form->focus(), u"lstpresets"_s);
    QCOMPARE(coloursOf(m_world->editor), EditorColours{});
    m_form->key(Qt::Key_Down);
    QVERIFY(shownPreset(m_world->editor).has_value());
}

ZEPHIRA_TEST(TstFrmOptions)
#include "tst_frmoptions.moc"
