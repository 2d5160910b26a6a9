// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/assistfixture.h"
#include "assist/colourswatches.h"
#include "core/usersettings.h"
#include "support/testregistry.h"
#include "widgets/qtvalues.h"

#include <QPixmap>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct SwatchBench : AssistFixture {
    explicit SwatchBench(const QString &text)
    {
        show();
        editor.setText(text);
        helpers.start();
        QCoreApplication::processEvents();
    }

    std::vector<ColourSwatches::Swatch> swatches() { return helpers.swatches().swatchesIn(editor.viewport()->rect()); }
    void click(const QPoint &at) const { QTest::mouseClick(editor.viewport(), Qt::LeftButton, {}, at); }
    QColor pixel(const QPoint &at) const { return editor.viewport()->grab().toImage().pixelColor(at); }
};

} // namespace

/// The swatches over the text.
class TstColourSwatches final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arePainted()
    {
        SwatchBench bench(u"p { color: #ff8800 }\r\n<p bgcolor=\"#0000ff\">"_s);
        const auto swatches = bench.swatches();
        QCOMPARE(swatches.size(), 2U);
        // In the blank, and below the value where there is no blank.
        QVERIFY(swatches[0].box.width() == swatches[0].box.height());
        QVERIFY(swatches[1].box.width() > 5 * swatches[1].box.height());
        for (const ColourSwatches::Swatch &swatch : swatches)
            QCOMPARE(bench.pixel(swatch.box.center()).rgb(), swatch.colour.rgb());
        QCOMPARE(bench.editor.text(), u"p { color: #ff8800 }\r\n<p bgcolor=\"#0000ff\">"_s);
    }

    void followTheText()
    {
        SwatchBench bench(u"color: #ff8800"_s);
        bench.editor.setText(u"color: #00ff00"_s);
        QCoreApplication::processEvents();
        QCOMPARE(bench.pixel(bench.swatches().front().box.center()).rgb(), QColor(0, 255, 0).rgb());
        bench.editor.setText(u"plain"_s);
        QVERIFY(bench.swatches().empty());
    }

    void areSwitchedOff()
    {
        SwatchBench bench(u"color: #ff8800"_s);
        const QPoint at = bench.swatches().front().box.center();
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::ShowSwatches), std::optional(true));
        bench.run(TextCommand::ShowSwatches);
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::ShowSwatches), std::optional(false));
        QCOMPARE(bench.world.settings.GetSetting(UserSetting::ColourSwatches), u"0"_s);
        QVERIFY(bench.swatches().empty());
        QVERIFY(bench.pixel(at).rgb() != QColor(0xff, 0x88, 0).rgb());
        bench.run(TextCommand::ShowSwatches);
        QCOMPARE(bench.pixel(at).rgb(), QColor(0xff, 0x88, 0).rgb());
    }

    void onlyWhatIsSeen()
    {
        SwatchBench bench(u"color: red;\r\n"_s.repeated(5000));
        const auto lines = static_cast<std::size_t>(bench.editor.engine().send(QsciScintillaBase::SCI_LINESONSCREEN));
        QVERIFY(bench.swatches().size() <= lines + 2);
        bench.editor.engine().send(QsciScintillaBase::SCI_SETFIRSTVISIBLELINE, 4000);
        QVERIFY(bench.swatches().front().start > 40000);
    }

    void aClickChangesTheColour()
    {
        SwatchBench bench(u"p { color: #F80; }"_s);
        bench.editor.select({0, 2, 0, 2});
        bench.world.prompts.expectColour(toColourNumber(QColor(255, 136, 0)), toColourNumber(QColor(1, 35, 171)));
        bench.click(bench.swatches().front().box.center());
        QCOMPARE(bench.editor.text(), u"p { color: #0123AB; }"_s);
        QCOMPARE(bench.editor.selection(false), (CodeMaxRange{0, 2, 0, 2}));
        bench.editor.undo();
        QCOMPARE(bench.editor.text(), u"p { color: #F80; }"_s);
    }

    /// Cancelled, or the same color: nothing has changed.
    void noChange()
    {
        SwatchBench bench(u"color: RED"_s);
        const quint64 version = bench.editor.textVersion();
        bench.world.prompts.expectColour(toColourNumber(QColor(255, 0, 0)), {});
        bench.click(bench.swatches().front().box.center());
        bench.world.prompts.expectColour(toColourNumber(QColor(255, 0, 0)), toColourNumber(QColor(255, 0, 0)));
        bench.click(bench.swatches().front().box.center());
        bench.editor.setReadOnly(true);
        bench.click(bench.swatches().front().box.center());
        QCOMPARE(bench.editor.textVersion(), version);
    }

    /// A click beside a swatch moves the caret, as ever.
    void clicksBeside()
    {
        SwatchBench bench(u"color: #ff8800 and more"_s);
        const QRect box = bench.swatches().front().box;
        bench.click(box.center() + QPoint(120, 0));
        QVERIFY(bench.editor.selection(false).StartColNo > 10);
    }

    void byKey()
    {
        SwatchBench bench(u"\u05e9 color: #ff8800; x"_s);
        bench.editor.select({0, 10, 0, 10});
        bench.world.prompts.expectColour(toColourNumber(QColor(255, 136, 0)), toColourNumber(QColor(0, 0, 255)));
        bench.run(TextCommand::ChangeColour);
        QCOMPARE(bench.editor.text(), u"\u05e9 color: #0000ff; x"_s);
        bench.editor.select({0, 1, 0, 1});
        bench.run(TextCommand::ChangeColour);
    }
};

ZEPHIRA_TEST(TstColourSwatches)

#include "tst_colourswatches.moc"
