// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/propertiesdialog.h"
#include "support/palettes.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct Driver {
    explicit Driver(EditorFixture &fixture)
    {
        fixture.editor.executeCmd(EditorCommand::PropertiesDialog);
        dialog = fixture.editor.findChild<PropertiesDialog *>();
    }
    template<typename T>
    T &child(const QString &name) const
    {
        return *dialog->findChild<T *>(name);
    }
    void choose(const QString &item) const
    {
        auto &list = child<QListWidget>(u"lstItems"_s);
        list.setCurrentItem(list.findItems(item, Qt::MatchExactly).constFirst());
    }
    void press(QDialogButtonBox::StandardButton button) const
    {
        child<QDialogButtonBox>(u"buttons"_s).button(button)->click();
    }
    CodeMax &preview() const { return child<CodeMax>(u"preview"_s); }

    PropertiesDialog *dialog = nullptr;
};

} // namespace

class TstPropertiesDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The program may show the caret's line itself, by letting the highlighted line follow the caret.
    void theCaretsLineShowsAsItIs()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a\r\nb"_s);
        f.editor.setHighlightedLine(0);
        QList<bool> chosen;
        connect(&f.editor, &CodeMax::CaretLineChosen, this, [&](bool on, bool *handled) {
            chosen << on;
            *handled = true;
            f.editor.setHighlightedLine(on ? 0 : -1);
        });
        Driver d(f);
        auto &box = d.child<QCheckBox>(u"chkCaretLine"_s);
        QVERIFY(box.isChecked());
        box.setChecked(false);
        d.press(QDialogButtonBox::Apply);
        QCOMPARE(chosen, QList<bool>{false});
        QCOMPARE(f.editor.highlightedLine(), -1);
        d.press(QDialogButtonBox::Cancel);
        QCOMPARE(chosen, (QList<bool>{false, true}));
        QCOMPARE(f.editor.highlightedLine(), 0);
    }

    void theListNamesEveryItem()
    {
        EditorFixture f;
        f.show();
        Driver d(f);
        QVERIFY(d.dialog->isVisible() && d.dialog->isModal());
        QStringList items;
        auto &list = d.child<QListWidget>(u"lstItems"_s);
        for (int i = 0; i < list.count(); ++i)
            items += list.item(i)->text();
        QCOMPARE(items,
                 (QStringList{u"Bookmark"_s, u"Comment"_s, u"Horizontal divider lines"_s, u"Vertical divider lines"_s,
                              u"Highlighted line"_s, u"Keyword"_s, u"Left margin"_s, u"Line number"_s, u"Number"_s,
                              u"Operator"_s, u"Scope keyword"_s, u"String"_s, u"Tag element name"_s, u"Tag entity"_s,
                              u"Tag attribute name"_s, u"Tag text"_s, u"Text"_s, u"Window"_s}));
    }

    void coloursGoToTheirItems_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<int>("foreground");
        QTest::addColumn<int>("background");
        QTest::addColumn<int>("style");
        QTest::newRow("comment") << u"Comment"_s << 14 << 15 << 5;
        QTest::newRow("text") << u"Text"_s << 4 << 5 << 0;
        QTest::newRow("line number") << u"Line number"_s << 26 << 27 << 11;
        QTest::newRow("bookmark") << u"Bookmark"_s << 2 << 3 << -1;
        QTest::newRow("window") << u"Window"_s << 0 << -1 << -1;
    }
    void coloursGoToTheirItems()
    {
        QFETCH(QString, row);
        QFETCH(int, foreground);
        QFETCH(int, background);
        QFETCH(int, style);
        EditorFixture f;
        f.show();
        Driver d(f);
        d.choose(row);
        f.prompts.expectColour(f.editor.color(foreground), 0x0000ff);
        d.child<QPushButton>(u"cmdForeground"_s).click();
        QCOMPARE(d.child<QPushButton>(u"cmdBackground"_s).isEnabled()
                     || d.child<QCheckBox>(u"chkAutomatic"_s).isEnabled(),
                 background >= 0);
        if (background >= 0) {
            auto &automatic = d.child<QCheckBox>(u"chkAutomatic"_s);
            if (automatic.isChecked())
                automatic.click();
            f.prompts.expectColour(d.preview().color(background), 0x00ff00);
            d.child<QPushButton>(u"cmdBackground"_s).click();
        }
        auto &styles = d.child<QComboBox>(u"cboStyle"_s);
        QCOMPARE(styles.isEnabled(), style >= 0);
        if (style >= 0) {
            styles.setCurrentIndex(3);
            Q_EMIT styles.activated(3);
        }
        // The preview changes at once, the control after OK.
        QCOMPARE(d.preview().color(foreground), 0x0000ffu);
        QVERIFY(f.editor.color(foreground) != 0x0000ffu);
        d.press(QDialogButtonBox::Ok);
        QVERIFY(!d.dialog->isVisible());
        QCOMPARE(f.editor.color(foreground), 0x0000ffu);
        if (background >= 0)
            QCOMPARE(f.editor.color(background), 0x00ff00u);
        if (style >= 0)
            QCOMPARE(f.editor.fontStyle(style), 3);
    }

    void aCancelledColourChangesNothing()
    {
        EditorFixture f;
        f.show();
        Driver d(f);
        d.choose(u"Keyword"_s);
        f.prompts.expectColour(f.editor.color(KeywordFore), std::nullopt);
        d.child<QPushButton>(u"cmdForeground"_s).click();
        QCOMPARE(d.preview().color(KeywordFore), f.editor.color(KeywordFore));
    }

    void anAutomaticBackgroundIsAChoice()
    {
        EditorFixture f;
        f.show();
        f.editor.setColor(CommentBack, 0x112233);
        Driver d(f);
        d.choose(u"Comment"_s);
        auto &automatic = d.child<QCheckBox>(u"chkAutomatic"_s);
        QVERIFY(!automatic.isChecked());
        automatic.click();
        QVERIFY(!d.child<QPushButton>(u"cmdBackground"_s).isEnabled());
        d.press(QDialogButtonBox::Apply);
        QCOMPARE(f.editor.color(CommentBack), automaticColour);
        QVERIFY(d.dialog->isVisible());
    }

    void fontAndEditing()
    {
        EditorFixture f;
        f.show();
        f.editor.setEditorFont({u"Liberation Mono"_s, 10});
        Driver d(f);
        QCOMPARE(d.child<QFontComboBox>(u"cboFont"_s).currentText(), u"Liberation Mono"_s);
        d.child<QDoubleSpinBox>(u"spnSize"_s).setValue(12.5);
        d.child<QCheckBox>(u"chkBold"_s).click();
        d.child<QCheckBox>(u"chkStrikethrough"_s).click();
        d.child<QSpinBox>(u"spnTab"_s).setValue(7);
        d.child<QSpinBox>(u"spnEdge"_s).setValue(80);
        for (const char *name : {"chkBlanks", "chkIndent", "chkWrap", "chkBraces", "chkFolds", "chkCaretLine",
                                 "chkWhitespace", "chkLineNumbers", "chkLeftMargin"})
            d.child<QCheckBox>(QString::fromLatin1(name)).click();
        d.press(QDialogButtonBox::Ok);
        QCOMPARE(f.editor.editorFont(), (FontChoice{u"Liberation Mono"_s, 12.5, true, false, true, false}));
        QCOMPARE(f.editor.options(), (EditorOptions{7, true, false, true, false, false, true, 80}));
        QVERIFY(f.editor.displayWhitespace());
        QVERIFY(!f.editor.lineNumbering());
        QVERIFY(f.editor.displayLeftMargin());
    }

    /// Cancel also reverts what Apply has applied.
    void cancelRestoresEverything()
    {
        EditorFixture f;
        f.show();
        f.editor.setEditorFont({u"Liberation Mono"_s, 10});
        f.editor.setFontStyle(KeywordFont, 5);
        const EditorLooks looks = f.editor.appearance().looks();
        const EditorOptions options = f.editor.options();
        Driver d(f);
        d.choose(u"Keyword"_s);
        f.prompts.expectColour(f.editor.color(KeywordFore), 0x010203);
        d.child<QPushButton>(u"cmdForeground"_s).click();
        d.child<QDoubleSpinBox>(u"spnSize"_s).setValue(20);
        d.child<QCheckBox>(u"chkWrap"_s).click();
        d.child<QCheckBox>(u"chkWhitespace"_s).click();
        d.press(QDialogButtonBox::Apply);
        QCOMPARE(f.editor.color(KeywordFore), 0x010203u);
        QCOMPARE(f.editor.editorFont().size, 20.0);
        d.press(QDialogButtonBox::Cancel);
        QVERIFY(!d.dialog->isVisible());
        QCOMPARE(f.editor.appearance().looks(), looks);
        QCOMPARE(f.editor.options(), options);
        QVERIFY(!f.editor.displayWhitespace());
        QCOMPARE(f.editor.fontStyle(KeywordFont), 5);
        // Opened again, the dialog starts with the control's values.
        f.editor.executeCmd(EditorCommand::PropertiesDialog);
        QCOMPARE(d.child<QDoubleSpinBox>(u"spnSize"_s).value(), 10.0);
        QCOMPARE(d.preview().color(KeywordFore), looks.colours[KeywordFore]);
    }

    void anUntouchedDialogChangesNothing()
    {
        EditorFixture f;
        f.show();
        f.editor.setColor(ScopeKeywordFore, 0xdeadbeef);
        f.editor.setFontStyle(OperatorFont, 9);
        f.editor.setEditorFont({u"No Such Font"_s, 10.25});
        const EditorLooks looks = f.editor.appearance().looks();
        Driver d(f);
        d.press(QDialogButtonBox::Ok);
        QCOMPARE(f.editor.appearance().looks(), looks);
    }

    /// The preview goes along with the desktop, as the text does.
    void thePreviewIsDarkOnADarkDesktop()
    {
        const QPalette before = QApplication::palette();
        const auto restore = qScopeGuard([&] { QApplication::setPalette(before); });
        EditorFixture f;
        f.show();
        Driver d(f);
        const auto paper = [&] {
            const QImage picture = d.preview().viewport()->grab().toImage();
            return picture.pixelColor(picture.width() - 4, picture.height() - 4);
        };
        const auto colourOf = [&](int style) {
            return static_cast<quint32>(d.preview().engine().send(QsciScintillaBase::SCI_STYLEGETFORE, style));
        };
        QTRY_VERIFY(d.preview().isVisible());
        QCOMPARE(paper(), QColor(Qt::white));
        QApplication::setPalette(desktopPalettes()[2].palette);
        QTRY_VERIFY2(paper().lightness() < 60, qPrintable(paper().name()));
        QCOMPARE(colourOf(0), colourItemTable[TextFore].dark);
        // What the user chooses there shows as it is.
        d.choose(u"Keyword"_s);
        f.prompts.expectColour(f.editor.color(KeywordFore), 0x0000ff);
        d.child<QPushButton>(u"cmdForeground"_s).click();
        QCOMPARE(colourOf(2), 0x0000ffu);
        QVERIFY(paper().lightness() < 60);
        QApplication::setPalette(before);
        QTRY_COMPARE(paper(), QColor(Qt::white));
        QCOMPARE(colourOf(0), shippedColours[TextFore]);
        QCOMPARE(colourOf(2), 0x0000ffu);
        d.press(QDialogButtonBox::Ok);
        QCOMPARE(f.editor.color(KeywordFore), 0x0000ffu);
        QCOMPARE(f.editor.color(TextFore), shippedColours[TextFore]);
    }

    void thePreviewIsAPageThatCannotBeChanged()
    {
        EditorFixture f;
        f.show();
        Driver d(f);
        QCOMPARE(d.preview().language(), u"HTML"_s);
        QVERIFY(d.preview().isReadOnly());
        QTest::keyClicks(&d.preview(), u"x"_s);
        QVERIFY(d.preview().text().startsWith(u"<!DOCTYPE html>"_s));
    }
};

ZEPHIRA_TEST(TstPropertiesDialog)

} // namespace zephira

#include "tst_propertiesdialog.moc"
