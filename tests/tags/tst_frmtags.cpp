// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tags/registerforms.h"
#include "tags/tagpalette.h"

#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The palette with fakes of its own and a document in which "old" is selected.
struct Palette {
    TestContext world;
    LivingForm form;

    Palette() : form(catalogue(), u"frmTags"_s, world)
    {
        world.editor.setText(u"[old]"_s);
        world.editor.selectPart(u"old"_s);
    }

    QListWidget &list() const { return form.get<QListWidget>(u"TagList"_s); }
    QListWidgetItem &item(const QString &text) const { return *list().findItems(text, Qt::MatchExactly).constFirst(); }
    void choose(const QString &text) const { list().setCurrentItem(&item(text)); }
    QString document() const { return world.editor.text(); }

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        tags::registerForms(forms);
        return forms;
    }
};

} // namespace

class TstFrmTags final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLastRowStandsFirst()
    {
        const Palette palette;
        QCOMPARE(palette.form.widget().windowTitle(), u"Insert Tag ..."_s);
        QCOMPARE(palette.list().count(), 44);
        for (int row = 0; row < 44; ++row)
            QCOMPARE(palette.list().item(row)->text(), paletteTags()[static_cast<std::size_t>(43 - row)].item);
        QVERIFY(palette.list().selectedItems().isEmpty());
    }

    void insert_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("document");
        QTest::newRow("br") << u"<br>"_s << u"[<br>]"_s;
        QTest::newRow("a") << u"<a>"_s << u"[<a href=\"></a>]"_s;
        QTest::newRow("textarea") << u"<textarea>"_s << u"[<textarea> </textarea>]"_s;
        QTest::newRow("text box") << u"<Input type=\"text\">"_s << u"[<Input type=\"text\">]"_s;
    }

    void insert()
    {
        QFETCH(QString, tag);
        const Palette palette;
        palette.choose(tag);
        palette.form.press(u"Command1"_s);
        QTEST(palette.document(), "document");
        QVERIFY(palette.form.isOpen());
    }

    void insertsAgain()
    {
        const Palette palette;
        palette.choose(u"<br>"_s);
        palette.form.press(u"Command1"_s);
        palette.form.press(u"Command1"_s);
        palette.choose(u"<u>"_s);
        palette.form.press(u"Command1"_s);
        QCOMPARE(palette.document(), u"[<br><br><u> </u>]"_s);
    }

    void nothingSelectedInsertsNothing()
    {
        const Palette palette;
        palette.form.press(u"Command1"_s);
        palette.list().setFocus();
        palette.form.key(Qt::Key_Return);
        QCOMPARE(palette.document(), u"[old]"_s);
        QVERIFY(palette.form.isOpen());
    }

    void aTextThatIsNoItemInsertsNothing()
    {
        const Palette palette;
        palette.choose(u"<br>"_s);
        palette.item(u"<br>"_s).setText(u"<BR>"_s);
        palette.form.press(u"Command1"_s);
        QCOMPARE(palette.document(), u"[old]"_s);
    }

    void aDoubleClickInserts()
    {
        const Palette palette;
        QListWidget &list = palette.list();
        list.scrollToItem(&palette.item(u"<tr>"_s));
        const QPoint place = list.visualItemRect(&palette.item(u"<tr>"_s)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(palette.document(), u"[old]"_s);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(palette.document(), u"[<tr></tr>]"_s);
        QVERIFY(palette.form.isOpen());
    }

    void keys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("document");
        QTest::newRow("Return") << Qt::Key_Return << u"[<hr></hr>]"_s;
        QTest::newRow("Enter") << Qt::Key_Enter << u"[<hr></hr>]"_s;
        QTest::newRow("blank") << Qt::Key_Space << u"[old]"_s;
        QTest::newRow("letter") << Qt::Key_X << u"[old]"_s;
        QTest::newRow("F2") << Qt::Key_F2 << u"[old]"_s;
    }

    void keys()
    {
        QFETCH(Qt::Key, key);
        const Palette palette;
        palette.list().setFocus();
        palette.choose(u"<hr>"_s);
        palette.form.key(key);
        QTEST(palette.document(), "document");
        QVERIFY(palette.form.isOpen());
    }

    void worksInVisualModeToo()
    {
        Palette palette;
        palette.world.designer.showing = true;
        palette.choose(u"<br>"_s);
        palette.form.press(u"Command1"_s);
        QCOMPARE(palette.document(), u"[<br>]"_s);
        QVERIFY(palette.world.designer.pasted.isEmpty());
    }

    void closes_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("button") << false;
        QTest::newRow("Escape") << true;
    }

    void closes()
    {
        QFETCH(bool, byKey);
        const Palette palette;
        palette.choose(u"<br>"_s);
        if (byKey)
            palette.form.key(Qt::Key_Escape);
        else
            palette.form.press(u"Command2"_s);
        QVERIFY(!palette.form.isOpen());
        QCOMPARE(palette.document(), u"[old]"_s);
    }
};

ZEPHIRA_TEST(TstFrmTags)

#include "tst_frmtags.moc"
