// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filelookup.h"
#include "support/fakes.h"
#include "support/testregistry.h"
#include "widgets/colourswatch.h"
#include "widgets/fieldlookups.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFieldLookups final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileFillsTheField()
    {
        TestContext world;
        QLineEdit field(u"typed"_s);
        QPushButton button;
        offerFiles(&button, &field, world.context, std::make_shared<FileLookup>());
        const auto expect = [&](const QString &folder, const std::optional<QString> &answer) {
            world.prompts.expectFile(
                {.title = u"Browse for file"_s, .filter = u"All Files (*.*)|*.*"_s, .initialFolder = folder}, answer);
        };
        expect({}, std::nullopt);
        button.click();
        QCOMPARE(field.text(), u"typed"_s);
        expect({}, u"/site/b/c.htm"_s);
        button.click();
        QCOMPARE(field.text(), u"/site/b/c.htm"_s);
        world.document.project = u"/site/a/"_s;
        expect(u"/site/b"_s, u"/site/b/c.htm"_s);
        button.click();
        QCOMPARE(field.text(), u"../b/c.htm"_s);
        QVERIFY(world.prompts.verify());
    }

    void aColourFillsTheField()
    {
        TestContext world;
        QLineEdit field(u"Default"_s);
        ColourSwatch swatch;
        offerColours(&swatch, &field, world.context);
        QVERIFY(!swatch.colour().isValid());
        world.prompts.expectColour(0xffffff, std::nullopt);
        swatch.click();
        QCOMPARE(field.text(), u"Default"_s);
        world.prompts.expectColour(0xffffff, 0x0080ff);
        swatch.click();
        QCOMPARE(field.text(), u"#FF8000"_s);
        QCOMPARE(swatch.colour(), QColor(0xff, 0x80, 0));
        field.setText(u"navy"_s);
        QCOMPARE(swatch.colour(), QColor(0, 0, 0x80));
        world.prompts.expectColour(0x800000, std::nullopt);
        swatch.click();
        QCOMPARE(field.text(), u"navy"_s);
        QVERIFY(world.prompts.verify());
    }
};

ZEPHIRA_TEST(TstFieldLookups)

#include "tst_fieldlookups.moc"
