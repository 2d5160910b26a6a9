// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colourshape.h"
#include "colour/registerforms.h"
#include "colour/selectingbox.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

FormCatalogue catalogue()
{
    FormCatalogue forms;
    colour::registerForms(forms);
    return forms;
}

const QStringList allBoxes{u"HEXTEXT_0"_s, u"HEXTEXT_1"_s, u"HEXTEXT_2"_s, u"RGBTEXT_0"_s, u"RGBTEXT_1"_s,
                           u"RGBTEXT_2"_s, u"LONGTEXT"_s,  u"TEXTHEX"_s,   u"TEXTRGB"_s,   u"TEXTLONG"_s};

/// The picker over a document in which `selected` is selected.
struct Picker {
    TestContext world;
    std::unique_ptr<LivingForm> form;

    explicit Picker(const QString &selected = {})
    {
        world.editor.setText(selected);
        world.editor.selectOffsets(0, static_cast<int>(selected.size()));
        form = std::make_unique<LivingForm>(catalogue(), u"ColorPick"_s, world);
    }

    QStringList shown() const
    {
        QStringList values;
        for (const QString &name : allBoxes)
            values.append(form->value(name));
        return values;
    }
    QColor colour() const { return form->get<ColourShape>(u"View"_s).fillColour(); }
    bool isMarked(const QString &box) const { return form->get<SelectingBox>(box).isMarked(); }
};

QStringList words(const QString &text)
{
    return text.split(u' ');
}

} // namespace

class TstColorPick final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atLoad()
    {
        const Picker picker;
        QCOMPARE(picker.shown(), words(u"80 FF FF 128 255 255 16777088 #80FFFF RGB(128,255,255) 16777088"_s));
        QCOMPARE(picker.colour(), QColor(128, 255, 255));
        QCOMPARE(picker.form->focus(), u"HEXTEXT_0"_s);
        QCOMPARE(picker.form->get<SelectingBox>(u"HEXTEXT_0"_s).selectedText(), u"80"_s);
    }

    void tipsAndLengths()
    {
        const Picker picker;
        const auto box = [&](const QString &name) -> SelectingBox & { return picker.form->get<SelectingBox>(name); };
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(box(u"HEXTEXT_%1"_s.arg(i)).maxLength(), 2);
            QCOMPARE(box(u"HEXTEXT_%1"_s.arg(i)).toolTip(), u"HEX COLOR CODE . USED IN HTML"_s);
            QCOMPARE(box(u"RGBTEXT_%1"_s.arg(i)).maxLength(), 3);
        }
        QCOMPARE(box(u"LONGTEXT"_s).toolTip(), u"LONG COLOR CODE. USED IN WINDOWS"_s);
        QCOMPARE(box(u"TEXTHEX"_s).maxLength(), 8);
        for (const QString &name : {u"TEXTHEX"_s, u"TEXTRGB"_s, u"TEXTLONG"_s}) {
            QVERIFY(box(name).isReadOnly());
            QCOMPARE(box(name).toolTip(), u"RIGHT CLICK TO COPY AND PASTE TEXT"_s);
        }
    }

    void typingPassesTheFocusOn()
    {
        const Picker picker;
        for (const Qt::Key key : {Qt::Key_0, Qt::Key_A, Qt::Key_1})
            picker.form->key(key);
        QCOMPARE(picker.form->focus(), u"HEXTEXT_1"_s);
        picker.form->key(Qt::Key_2);
        QCOMPARE(picker.form->focus(), u"HEXTEXT_2"_s);
        QCOMPARE(picker.form->get<SelectingBox>(u"HEXTEXT_2"_s).selectedText(), u"FF"_s);
        picker.form->key(Qt::Key_3);
        QCOMPARE(picker.form->focus(), u"HEXTEXT_2"_s);
        picker.form->key(Qt::Key_4);
        QCOMPARE(picker.form->focus(), u"RGBTEXT_0"_s);
        QCOMPARE(picker.shown(), words(u"0a 12 34 10 18 52 3412490 #0A1234 RGB(10,18,52) 3412490"_s));
    }

    void aBadPairKeepsTheFocus()
    {
        const Picker picker;
        picker.form->type(u"HEXTEXT_0"_s, u"GG"_s);
        QCOMPARE(picker.form->focus(), u"HEXTEXT_0"_s);
        QVERIFY(picker.isMarked(u"HEXTEXT_0"_s));
        QCOMPARE(picker.form->value(u"lblProblem"_s), u"A marked box holds no color value."_s);
        QCOMPARE(picker.form->value(u"TEXTHEX"_s), u"#80FFFF"_s);
    }

    void decimalsMarkWhatIsTooLarge()
    {
        const Picker picker;
        picker.form->type(u"RGBTEXT_1"_s, u"300"_s);
        // The two digits before the third were a value.
        QVERIFY(picker.isMarked(u"RGBTEXT_1"_s));
        QCOMPARE(picker.form->value(u"HEXTEXT_1"_s), u"1E"_s);
        QCOMPARE(picker.form->value(u"TEXTRGB"_s), u"RGB(128,30,255)"_s);
        picker.form->type(u"RGBTEXT_1"_s, u"200"_s);
        QVERIFY(!picker.isMarked(u"RGBTEXT_1"_s));
        QCOMPARE(picker.form->value(u"lblProblem"_s), QString());
        QCOMPARE(picker.colour(), QColor(128, 200, 255));
    }

    void theLongValueFollows()
    {
        const Picker picker;
        picker.form->type(u"LONGTEXT"_s, u"255"_s);
        QCOMPARE(picker.shown(), words(u"FF 0 0 255 0 0 255 #FF00 RGB(255,0,0) 255"_s));
        picker.form->set(u"LONGTEXT"_s, QString(5000, u'9'));
        QVERIFY(picker.isMarked(u"LONGTEXT"_s));
        QCOMPARE(picker.form->value(u"TEXTLONG"_s), u"255"_s);
    }

    void aMarkedBoxLooksDifferent()
    {
        const Picker picker;
        auto &box = picker.form->get<SelectingBox>(u"RGBTEXT_0"_s);
        const QColor before = box.palette().color(QPalette::Base);
        picker.form->set(u"RGBTEXT_0"_s, u"x"_s);
        QVERIFY(box.palette().color(QPalette::Base) != before);
        QCOMPARE(box.accessibleDescription(), u"Not a value"_s);
        picker.form->set(u"RGBTEXT_0"_s, u"1"_s);
        QCOMPARE(box.palette().color(QPalette::Base), before);
        QCOMPARE(box.accessibleDescription(), QString());
    }

    void everyBoxSelectsItsTextOnFocus_data()
    {
        QTest::addColumn<QString>("box");
        for (const QString &name : allBoxes)
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyBoxSelectsItsTextOnFocus()
    {
        QFETCH(QString, box);
        const Picker picker;
        auto &chosen = picker.form->get<SelectingBox>(box);
        const QString text = chosen.text();
        QVERIFY(!text.isEmpty());
        // By the Tab key.
        picker.form->get(u"Command_colorpicker"_s).setFocus();
        for (int i = 0; i < 20 && picker.form->focus() != box; ++i)
            picker.form->key(Qt::Key_Tab);
        QCOMPARE(picker.form->focus(), box);
        QCOMPARE(chosen.selectedText(), text);
        // By the mouse.
        picker.form->get(u"Command_colorpicker"_s).setFocus();
        chosen.deselect();
        picker.form->press(box);
        QTRY_COMPARE(chosen.selectedText(), text);
        // A click into the box that has the focus puts the caret there.
        picker.form->press(box);
        QTest::qWait(0);
        QCOMPARE(chosen.selectedText(), QString());
    }

    void updatingIsOnWhileTheFormWrites()
    {
        const Picker picker;
        QWidget &form = picker.form->widget();
        QVERIFY(!form.property("Updating").toBool());
        for (const QString &typed : {u"HEXTEXT_1"_s, u"RGBTEXT_2"_s, u"LONGTEXT"_s}) {
            // Each box that changes, with the flag at that moment.
            QMap<QString, bool> seen;
            QObject listener;
            for (const QString &name : allBoxes) {
                auto &box = picker.form->get<SelectingBox>(name);
                // Results only show; what counts is the boxes that could start another round.
                if (!box.isReadOnly())
                    connect(&box, &QLineEdit::textChanged, &listener,
                            [&seen, &form, name] { seen[name] = form.property("Updating").toBool(); });
            }
            picker.form->set(typed, typed == u"LONGTEXT"_s ? u"657930"_s : u"77"_s);
            QVERIFY(seen.contains(typed));
            QVERIFY(!seen.take(typed));
            QVERIFY(seen.size() >= 2);
            QVERIFY(!seen.values().contains(false));
            QVERIFY(!form.property("Updating").toBool());
        }
    }

    void aDecimalAbove255ChangesNothingElse()
    {
        const Picker picker;
        const QStringList expected = picker.shown();
        for (const int value : {256, 257, 300, 512, 999}) {
            for (int channel = 0; channel < 3; ++channel) {
                const QString box = u"RGBTEXT_%1"_s.arg(channel);
                const QString before = picker.form->value(box);
                picker.form->set(box, QString::number(value));
                QVERIFY(picker.isMarked(box));
                QStringList changed = expected;
                changed[3 + channel] = QString::number(value);
                QCOMPARE(picker.shown(), changed);
                QCOMPARE(picker.colour(), QColor(128, 255, 255));
                picker.form->set(box, before);
                QVERIFY(!picker.isMarked(box));
                QCOMPARE(picker.shown(), expected);
            }
        }
    }

    void theCopyButtons()
    {
        const Picker picker;
        picker.form->press(u"cmdCopyHex"_s);
        QCOMPARE(picker.world.clipboard.content, u"#80FFFF"_s);
        picker.form->press(u"cmdCopyRgb"_s);
        QCOMPARE(picker.world.clipboard.content, u"RGB(128,255,255)"_s);
        picker.form->press(u"cmdCopyLong"_s);
        QCOMPARE(picker.world.clipboard.content, u"16777088"_s);
        QVERIFY(picker.world.inserter.inserted.isEmpty());
    }

    void aRightClickOffersToCopy_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("text");
        QTest::newRow("hexadecimal") << u"TEXTHEX"_s << u"#80FFFF"_s;
        QTest::newRow("decimal") << u"TEXTRGB"_s << u"RGB(128,255,255)"_s;
        QTest::newRow("long") << u"TEXTLONG"_s << u"16777088"_s;
    }

    void aRightClickOffersToCopy()
    {
        QFETCH(QString, box);
        QFETCH(QString, text);
        const Picker picker;
        auto &result = picker.form->get<SelectingBox>(box);
        QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, result.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&result, &click);
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        const QList<QAction *> actions = menu->actions();
        const auto copies =
            std::ranges::find_if(actions, [](const QAction *action) { return action->text().startsWith(u"&Copy"_s); });
        QVERIFY(copies != actions.end());
        QAction *copy = *copies;
        QVERIFY(copy->isEnabled());
        copy->trigger();
        menu->close();
        QCOMPARE(QApplication::clipboard()->text(), text);
    }

    void thePalette()
    {
        Picker picker;
        picker.world.prompts.expectColour(16777088, 0x0f0201);
        picker.form->press(u"Command_colorpicker"_s);
        QCOMPARE(picker.shown(), words(u"1 2 F 1 2 15 983553 #12F RGB(1,2,15) 983553"_s));
        picker.world.prompts.expectColour(0x0f0201, {});
        picker.form->press(u"Command_colorpicker"_s);
        QCOMPARE(picker.form->value(u"LONGTEXT"_s), u"983553"_s);
        // The same colour again still clears away what is half typed.
        picker.form->set(u"RGBTEXT_0"_s, u"x"_s);
        picker.world.prompts.expectColour(0x0f0201, 0x0f0201);
        picker.form->press(u"Command_colorpicker"_s);
        QCOMPARE(picker.form->value(u"RGBTEXT_0"_s), u"1"_s);
    }

    void fromSelection_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("shown");
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("no colour") << u"<p>"_s << QString();
        QTest::newRow("a long text") << QString(100'000, u' ') + u"red"_s << QString();
        QTest::newRow("three digits") << u"#0af"_s << u"00 AA FF 0 170 255 16755200 #00AAFF RGB(0,170,255) 16755200"_s;
        QTest::newRow("six digits") << u"#0f0a01"_s << u"0F 0A 01 15 10 1 68111 #0F0A01 RGB(15,10,1) 68111"_s;
        QTest::newRow("channels") << u"rgb(1, 2, 3)"_s << u"01 02 03 1 2 3 197121 #010203 RGB(1,2,3) 197121"_s;
        QTest::newRow("percentages") << u"rgb(100%, 50%, 0%)"_s
                                     << u"FF 80 00 255 128 0 33023 #FF8000 RGB(255,128,0) 33023"_s;
        QTest::newRow("the newest name") << u"rebeccapurple"_s
                                         << u"66 33 99 102 51 153 10040166 #663399 RGB(102,51,153) 10040166"_s;
        QTest::newRow("name") << u"navy"_s << u"00 00 80 0 0 128 8388608 #000080 RGB(0,0,128) 8388608"_s;
    }

    void fromSelection()
    {
        QFETCH(QString, selected);
        QFETCH(QString, shown);
        const Picker picker(selected);
        const QWidget &button = picker.form->get(u"cmdFromSelection"_s);
        QCOMPARE(button.isEnabled(), !shown.isEmpty());
        if (shown.isEmpty())
            return;
        picker.form->set(u"HEXTEXT_0"_s, u"XX"_s);
        picker.form->press(u"cmdFromSelection"_s);
        QCOMPARE(picker.shown(), words(shown));
        QCOMPARE(picker.form->value(u"lblProblem"_s), QString());
    }

    void escapeCloses()
    {
        const Picker picker;
        picker.form->key(Qt::Key_Escape);
        QVERIFY(!picker.form->isOpen());
    }
};

ZEPHIRA_TEST(TstColorPick)
#include "tst_colorpick.moc"
