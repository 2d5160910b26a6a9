// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/languages.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tags/registerforms.h"
#include "tags/tagtext.h"
#include "widgets/colourswatch.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

FormCatalogue catalogueOfTags()
{
    FormCatalogue forms;
    tags::registerForms(forms);
    return forms;
}

/// The editor with fakes of its own and a document in which "old" is selected.
struct TagEditor {
    TestContext world;
    FormCatalogue catalogue = catalogueOfTags();
    LivingForm form{catalogue, u"frmTagEdit"_s, world};

    explicit TagEditor(int page = 0)
    {
        world.editor.setText(u"[old]"_s);
        world.editor.selectPart(u"old"_s);
        form.widget().setProperty("page", page);
    }

    QString document() const { return world.editor.text(); }

    static Question noProject(Question::Icon icon)
    {
        return {u"Please select a project path, if you continue, your images path will be distorted if you continue"_s,
                {},
                icon,
                Question::Buttons::OkCancel};
    }
    static FileRequest picture(const QString &folder)
    {
        return {.title = u"Picture"_s,
                .filter = u"Pictures|%1|All Files|*.*"_s.arg(picturePatterns()),
                .initialFolder = folder};
    }
};

QStringList entriesOf(const QComboBox &list)
{
    QStringList entries;
    for (int i = 0; i < list.count(); ++i)
        entries.append(list.itemText(i));
    return entries;
}

} // namespace

class TstFrmTagEdit final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pages()
    {
        const TagEditor editor;
        QCOMPARE(editor.form.widget().windowTitle(), u"Tag Editor ..."_s);
        const auto &tabs = editor.form.get<QTabWidget>(u"SSTab1"_s);
        const QStringList captions{
            u"ANCHOR tag"_s,      u"BODY  tag"_s,        u"CHECKBOX tag"_s, u"DIV tag"_s,      u"FONT  tag"_s,
            u"HR tag"_s,          u"IMAGE tag"_s,        u"RADIO tag"_s,    u"Select input"_s, u"Submit Button input"_s,
            u"TEXT AREA input"_s, u"Hiden text input"_s, u"TEXT input"_s,   u"TABLE tag"_s,    u"TD tag"_s,
            u"TR tag"_s};
        QCOMPARE(tabs.count(), captions.size());
        for (int page = 0; page < tabs.count(); ++page) {
            const auto *frame = tabs.widget(page)->findChild<QGroupBox *>();
            QCOMPARE(frame->title(), u"Properties of "_s + captions[page]);
            const TagTemplate &tag = tagTemplates()[static_cast<std::size_t>(page)];
            QVERIFY(tabs.widget(page)->findChild<QPushButton *>(tag.okButton.toString()));
            for (const TagPiece &piece : tag.pieces) {
                const QString field = piece.field.toString();
                QVERIFY2(field.isEmpty() || tabs.widget(page)->findChild<QWidget *>(field), qPrintable(field));
            }
        }
    }

    void defaults()
    {
        const TagEditor editor;
        const QHash<QString, QString> colours{{u"txtColorFo"_s, u"Black"_s},   {u"txtBgColor"_s, u"White"_s},
                                              {u"txtTextColor"_s, u"Black"_s}, {u"txtLinkColor"_s, u"Blue"_s},
                                              {u"txtVisLink"_s, u"Navy"_s},    {u"txtActivLink"_s, u"DodgeBlue"_s}};
        const QList<QLineEdit *> lines = editor.form.widget().findChildren<QLineEdit *>();
        QVERIFY(lines.size() > 50);
        for (const QLineEdit *line : lines)
            QCOMPARE(line->text(), colours.value(line->objectName()));
        const QList<QAbstractButton *> buttons = editor.form.widget().findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons)
            QVERIFY(!button->isChecked());
    }

    void lists_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("entries");
        QTest::newRow("cell") << u"CoAlignTD"_s << u"Left Center Right Justify"_s;
        QTest::newRow("division") << u"CoAlignDiv"_s << u"Left Center Right Justify"_s;
        QTest::newRow("cell, vertical") << u"CoValignTD"_s << u"Top Bottom Middle Baseline"_s;
        QTest::newRow("row") << u"CoAlignTR"_s << u"Left Center Right Justify Char"_s;
        QTest::newRow("row, vertical") << u"CoValignTR"_s << u"Top Middle Bottom Baseline"_s;
        QTest::newRow("table") << u"CoAlignTable"_s << u"left center right"_s;
        QTest::newRow("rule") << u"CoAlignHR"_s << u"Left Center Right"_s;
        QTest::newRow("image") << u"CoAlignImg"_s << u"Left Right Top Middle Bottom Texttop baseline"_s;
    }

    void lists()
    {
        QFETCH(QString, list);
        const TagEditor editor;
        const auto &box = editor.form.get<QComboBox>(list);
        QTEST(entriesOf(box).join(u' '), "entries");
        QCOMPARE(box.currentIndex(), 0);
        QVERIFY(!box.isEditable());
    }

    void fontsAreOfferedAndTyped()
    {
        const TagEditor editor(4);
        const auto &fonts = editor.form.get<QComboBox>(u"CoFonts"_s);
        QVERIFY(fonts.isEditable());
        QCOMPARE(fonts.currentText(), QString());
        const QStringList entries = entriesOf(fonts);
        QCOMPARE(entries.first(), u"Arial"_s);
        const QStringList families = QFontDatabase::families();
        for (const QString &family : families)
            QCOMPARE(entries.count(family), QFontDatabase::isPrivateFamily(family) ? 0 : 1);
        editor.form.type(u"CoFonts"_s, u"arial, x"_s);
        editor.form.key(Qt::Key_Return);
        QCOMPARE(editor.document(), u"[<font face=\"arial, x\" color=\"Black\"></font>]"_s);
    }

    void theTagReplacesTheSelection()
    {
        const TagEditor editor;
        editor.form.type(u"txtHrefAnch"_s, u"x.htm"_s);
        editor.form.press(u"cmdOK"_s);
        QCOMPARE(editor.document(), u"[<a href=\"x.htm\"></a>]"_s);
        QVERIFY(editor.world.inserter.inserted.isEmpty());
        QVERIFY(!editor.form.isOpen());
    }

    void theCodeViewGetsItInVisualModeToo()
    {
        TagEditor editor;
        editor.world.designer.showing = true;
        editor.form.press(u"cmdOK"_s);
        QCOMPARE(editor.document(), u"[<a></a>]"_s);
        QVERIFY(editor.world.designer.pasted.isEmpty());
    }

    void returnIsTheOkOfThePage_data() { addPages(); }
    void returnIsTheOkOfThePage()
    {
        QFETCH(int, page);
        const TagEditor editor(page);
        const auto &tabs = editor.form.get<QTabWidget>(u"SSTab1"_s);
        tabs.currentWidget()->findChild<QGroupBox *>()->nextInFocusChain()->setFocus();
        editor.form.key(Qt::Key_Return);
        QVERIFY(!editor.form.isOpen());
        const QStringList starts{u"<a>"_s,
                                 u"<body "_s,
                                 u"<input type=\"checkbox\""_s,
                                 u"<div "_s,
                                 u"<font "_s,
                                 u" align="_s,
                                 u"<img "_s,
                                 u"<input type=\"radio\""_s,
                                 u"<select"_s,
                                 u"<input type=\"submit\""_s,
                                 u"<textarea"_s,
                                 u"<input type=\"hidden\""_s,
                                 u"<input type=\"text\""_s,
                                 u"<Table"_s,
                                 u"<Td"_s,
                                 u"<tr"_s};
        QVERIFY2(editor.document().startsWith(u'[' + starts[page]), qPrintable(editor.document()));
    }

    void closesWithoutText_data() { addPages(); }
    void closesWithoutText()
    {
        QFETCH(int, page);
        {
            const TagEditor editor(page);
            editor.form.press(u"Command18_%1"_s.arg(page));
            QVERIFY(!editor.form.isOpen());
            QCOMPARE(editor.document(), u"[old]"_s);
        }
        const TagEditor editor(page);
        editor.form.key(Qt::Key_Escape);
        QVERIFY(!editor.form.isOpen());
        QCOMPARE(editor.document(), u"[old]"_s);
    }

    void opensOnThePageThatWasShownLast()
    {
        TestContext world;
        const FormCatalogue catalogue = catalogueOfTags();
        {
            const LivingForm form(catalogue, u"frmTagEdit"_s, world);
            QCOMPARE(form.widget().property("page").toInt(), 0);
            QCOMPARE(form.focus(), u"txtHrefAnch"_s);
            form.get<QTabWidget>(u"SSTab1"_s).setCurrentIndex(9);
            form.press(u"Command18_9"_s);
        }
        const LivingForm form(catalogue, u"frmTagEdit"_s, world);
        QCOMPARE(form.value(u"SSTab1"_s), u"SUBMIT"_s);
        QCOMPARE(form.focus(), u"txtNameSub"_s);
        QVERIFY(form.get<QPushButton>(u"Command19"_s).isDefault());
    }

    void theChosenPageHasTheFocus()
    {
        const TagEditor editor;
        editor.form.widget().setProperty("page", 6);
        QCOMPARE(editor.form.focus(), u"txtSourceImg"_s);
        QVERIFY(editor.form.get<QPushButton>(u"Command12"_s).isDefault());
    }

    void aPageNumberThatIsNoneChangesNothing()
    {
        const TagEditor editor(3);
        for (const int page : {-1, 16, 1000}) {
            editor.form.widget().setProperty("page", page);
            QCOMPARE(editor.form.widget().property("page").toInt(), 3);
        }
    }

    void tabsByKeyboard()
    {
        const TagEditor editor;
        editor.form.get<QTabWidget>(u"SSTab1"_s).setFocus();
        editor.form.key(Qt::Key_Up);
        QCOMPARE(editor.form.value(u"SSTab1"_s), u"ANCHOR"_s);
        editor.form.key(Qt::Key_Down);
        QCOMPARE(editor.form.value(u"SSTab1"_s), u"BODY"_s);
        for (int i = 0; i < 20; ++i)
            editor.form.key(Qt::Key_Down);
        QCOMPARE(editor.form.value(u"SSTab1"_s), u"TR"_s);
        editor.form.key(Qt::Key_Tab);
        QCOMPARE(editor.form.focus(), u"CoAlignTR"_s);
        editor.form.get<QPushButton>(u"Command5"_s).setFocus();
        editor.form.key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(editor.form.value(u"SSTab1"_s), u"TD"_s);
    }

    void swatches_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("field");
        QTest::addColumn<quint32>("initial");
        const auto row = [](int page, int number, const char *field, quint32 initial) {
            QTest::newRow(field) << page << number << QString::fromLatin1(field) << initial;
        };
        row(1, 1, "txtLinkColor", 0xff0000);
        row(1, 2, "txtActivLink", 0);
        row(1, 3, "txtTextColor", 0);
        row(1, 4, "txtVisLink", 0x800000);
        row(1, 5, "txtBgColor", 0xffffff);
        row(4, 6, "txtColorFo", 0);
        row(5, 7, "txtColorHR", 0);
        row(14, 8, "txtBgTD", 0);
        row(13, 9, "txtBGTable", 0);
        row(13, 10, "txtBColTable", 0);
    }

    void swatches()
    {
        QFETCH(int, page);
        QFETCH(int, number);
        QFETCH(QString, field);
        QFETCH(quint32, initial);
        TagEditor editor(page);
        auto &swatch = editor.form.get<ColourSwatch>(u"Picture2_%1"_s.arg(number));
        const QString before = editor.form.value(field);
        editor.world.prompts.expectColour(initial, std::nullopt);
        editor.form.press(swatch.objectName());
        QCOMPARE(editor.form.value(field), before);
        // By keyboard: the swatch comes right behind its field.
        editor.form.get<QLineEdit>(field).setFocus();
        editor.form.key(Qt::Key_Tab);
        QCOMPARE(editor.form.focus(), swatch.objectName());
        editor.world.prompts.expectColour(initial, 0x0aff1cU);
        editor.form.key(Qt::Key_Space);
        QCOMPARE(editor.form.value(field), u"#1CFF0A"_s);
        QCOMPARE(swatch.colour(), QColor(0x1c, 0xff, 0x0a));
        QCOMPARE(editor.form.value(u"txtR"_s), u"28"_s);
        QCOMPARE(editor.form.value(u"txtG"_s), u"255"_s);
        QCOMPARE(editor.form.value(u"txtB"_s), u"10"_s);
        QVERIFY(editor.world.prompts.verify());
    }

    void thePartsOfTheColourAreHidden()
    {
        const TagEditor editor;
        for (const QString &name : {u"txtR"_s, u"txtG"_s, u"txtB"_s})
            QVERIFY(!editor.form.get<QLineEdit>(name).isVisible());
    }

    void pictures_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("field");
        QTest::addColumn<Question::Icon>("icon");
        QTest::newRow("background") << 1 << u"cmdOpen"_s << u"txtBGImage"_s << Question::Icon::Information;
        QTest::newRow("source") << 6 << u"Command13"_s << u"txtSourceImg"_s << Question::Icon::None;
    }

    void pictures()
    {
        QFETCH(int, page);
        QFETCH(QString, button);
        QFETCH(QString, field);
        QFETCH(Question::Icon, icon);
        TagEditor editor(page);
        ScriptedPrompts &prompts = editor.world.prompts;
        editor.form.type(field, u"before"_s);
        // Without a project the link is distorted, as the question says.
        prompts.expect(TagEditor::noProject(icon), Answer::Ok);
        prompts.expectFile(TagEditor::picture({}), std::nullopt);
        editor.form.press(button);
        QCOMPARE(editor.form.value(field), u"before"_s);
        prompts.expect(TagEditor::noProject(icon), Answer::Ok);
        prompts.expectFile(TagEditor::picture({}), u"/pictures/a.png"_s);
        editor.form.press(button);
        QCOMPARE(editor.form.value(field), u"pictures/a.png"_s);
        // The folder that was used last comes before the project's.
        editor.world.document.project = u"/site/"_s;
        prompts.expectFile(TagEditor::picture(u"/pictures"_s), u"/site/img/ü.png"_s);
        editor.form.press(button);
        QCOMPARE(editor.form.value(field), u"img/ü.png"_s);
        prompts.expectFile(TagEditor::picture(u"/site/img"_s), u"/site2/b.png"_s);
        editor.form.press(button);
        QCOMPARE(editor.form.value(field), u"../site2/b.png"_s);
        // A failure leaves the field as it was.
        editor.world.document.project.clear();
        prompts.expectFile(TagEditor::picture(u"/site2"_s), u"/site/c.png"_s);
        editor.form.press(button);
        QCOMPARE(editor.form.value(field), u"../site2/b.png"_s);
        // Cancel in the question closes the editor.
        editor.world.document.project = noProjectPath.toString();
        prompts.expect(TagEditor::noProject(icon), Answer::Cancel);
        editor.form.press(button);
        QVERIFY(!editor.form.isOpen());
        QCOMPARE(editor.document(), u"[old]"_s);
        QVERIFY(prompts.verify());
    }

    void theFirstPictureIsLookedForInTheProject()
    {
        TagEditor editor(6);
        editor.world.document.project = u"/site/"_s;
        editor.world.prompts.expectFile(TagEditor::picture(u"/site/"_s), std::nullopt);
        editor.form.press(u"Command13"_s);
        QVERIFY(editor.form.isOpen());
    }

    void theAddressIsAFileOfTheProject()
    {
        TagEditor editor;
        const auto expect = [&](const QString &folder, const std::optional<QString> &answer) {
            editor.world.prompts.expectFile(
                {.title = u"Browse for file"_s, .filter = u"All Files (*.*)|*.*"_s, .initialFolder = folder}, answer);
        };
        expect({}, u"/site/a.htm"_s);
        editor.form.press(u"browseHref"_s);
        QCOMPARE(editor.form.value(u"txtHrefAnch"_s), u"/site/a.htm"_s);
        editor.world.document.project = u"/site/"_s;
        expect(u"/site"_s, std::nullopt);
        editor.form.press(u"browseHref"_s);
        QCOMPARE(editor.form.value(u"txtHrefAnch"_s), u"/site/a.htm"_s);
        expect(u"/site"_s, u"/site/b/c.htm"_s);
        editor.form.press(u"browseHref"_s);
        QVERIFY(editor.world.prompts.verify());
        editor.form.press(u"cmdOK"_s);
        QCOMPARE(editor.document(), u"[<a href=\"b/c.htm\"></a>]"_s);
    }

    void targetsAreOffered()
    {
        const TagEditor editor;
        editor.form.type(u"txtTargetAnch"_s, u"main"_s);
        editor.form.press(u"cmdOK"_s);
        QCOMPARE(editor.document(), u"[<a target=\"main\"></a>]"_s);
        const QAction *open = editor.form.get<QLineEdit>(u"txtTargetAnch"_s).actions().first();
        QCOMPARE(open->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Down));
    }

    void returnBehindATypedTargetIsOk()
    {
        const TagEditor editor;
        editor.form.type(u"txtTargetAnch"_s, u"_blank"_s);
        QVERIFY(!QApplication::activePopupWidget());
        editor.form.key(Qt::Key_Return);
        QCOMPARE(editor.document(), u"[<a target=\"_blank\"></a>]"_s);
    }

    void longAndStrangeTexts()
    {
        const TagEditor editor;
        const QString longText = u"ä\"<"_s.repeated(50000);
        const QString strange = u"a\0b\x01\r\n\t"_s;
        editor.form.set(u"txtHrefAnch"_s, longText);
        editor.form.set(u"txtTitleAnch"_s, strange);
        editor.form.press(u"cmdOK"_s);
        QCOMPARE(editor.document(), u"[<a href=\""_s + longText + u"\" title=\""_s + strange + u"\"></a>]"_s);
    }

private:
    static void addPages()
    {
        QTest::addColumn<int>("page");
        for (int page = 0; page < 16; ++page)
            QTest::addRow("page %d", page) << page;
    }
};

ZEPHIRA_TEST(TstFrmTagEdit)

#include "tst_frmtagedit.moc"
