// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/modalformopener.h"
#include "forms/allforms.h"
#include "forms/textfit.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

double linear(int channel)
{
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(QRgb colour)
{
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// The highest contrast of any point to the most frequent colour: that of the letters to what is behind them, because some
/// points lie wholly in a letter.
double contrastOfLetters(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QRgb behind = 0;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            behind = it.key();
        }
    }
    double best = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        best = std::max(best, contrast(it.key(), behind));
    return best;
}

/// What is hard to read: WCAG demands a contrast of 4.5. Controls that can't be used are exempt, and so is what a box
/// holds, which is painted in the desktop's own colours.
FormFindings paleTexts(QWidget &form)
{
    FormFindings found;
    const QImage picture = form.grab().toImage();
    const QList<ShownText> texts = shownTexts(form);
    for (const ShownText &text : texts) {
        const QWidget &widget = *text.widget;
        const auto *list = qobject_cast<const QComboBox *>(&widget);
        if (!widget.isEnabled() || text.text.trimmed().isEmpty() || (list && list->isEditable())
            || qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QSpinBox *>(&widget))
            continue;
        // Of what has to be scrolled to, only an edge without letters may show.
        const QRect seen = text.room & widget.visibleRegion().boundingRect();
        if (seen != (text.room & widget.rect()) || seen.isEmpty())
            continue;
        ++found.looks;
        const QRect place(widget.mapTo(&form, seen.topLeft()), seen.size());
        const double measured = contrastOfLetters(picture.copy(place));
        if (measured < 4.5)
            found.faults.append(
                u"\"%1\" of %2 has a contrast of %3"_s.arg(text.text, widget.objectName()).arg(measured, 0, 'f', 1));
    }
    return found;
}

constexpr int light = 0;
constexpr int dark = 2;

} // namespace

/// The forms in the palettes of desktops, and when the palette changes while a form shows.
class TstFormColours final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }

    void cleanup()
    {
        QApplication::setFont(m_font);
        QApplication::setPalette(m_palette);
    }

    /// Pale letters are found; otherwise every form would pass.
    void paleLettersAreFound()
    {
        QWidget form;
        QFont font = form.font();
        font.setPointSize(18);
        form.setFont(font);
        auto *layout = new QVBoxLayout(&form);
        auto *label = new QLabel(u"A label"_s);
        label->setObjectName(u"label"_s);
        layout->addWidget(label);
        QPalette palette(Qt::white, Qt::white);
        palette.setColor(QPalette::WindowText, QColor(0x76, 0x76, 0x76));
        form.setPalette(palette);
        form.show();
        QCOMPARE(paleTexts(form).faults, QStringList());
        palette.setColor(QPalette::WindowText, QColor(0x7e, 0x7e, 0x7e));
        form.setPalette(palette);
        QCOMPARE(paleTexts(form).faults, QStringList{u"\"A label\" of label has a contrast of 4.1"_s});
    }

    void areReadable_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QPalette>("palette");
        const auto palettes = desktopPalettes();
        const QStringList names = allForms().names();
        for (const std::size_t palette : {0, 2, 3, 4}) {
            for (const QString &name : names)
                QTest::addRow("%s, %s", qPrintable(name), palettes[palette].name) << name << palettes[palette].palette;
        }
    }

    void areReadable()
    {
        QFETCH(QString, form);
        QFETCH(QPalette, palette);
        QApplication::setPalette(palette);
        // The strokes of large letters are wider than a point, so that their own colour shows.
        QFont font = m_font;
        font.setPointSize(18);
        QApplication::setFont(font);
        const Shown shown(form);
        FormFindings all;
        withEachPage(*shown.window, [&] {
            const FormFindings found = paleTexts(*shown.window);
            all.looks += found.looks;
            all.faults += found.faults;
        });
        m_looks += all.looks;
        all.faults.removeDuplicates();
        QVERIFY2(all.faults.isEmpty(), qPrintable(all.faults.join(u'\n')));
    }

    void followThePalette_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        const QStringList names = allForms().names();
        for (const QString &name : names) {
            QTest::addRow("%s becomes dark", qPrintable(name)) << name << light << dark;
            QTest::addRow("%s becomes light", qPrintable(name)) << name << dark << light;
        }
    }

    /// A form that shows while the palette changes then looks like one that is opened afterwards.
    void followThePalette()
    {
        QFETCH(QString, form);
        QFETCH(int, before);
        QFETCH(int, after);
        const auto palettes = desktopPalettes();
        QApplication::setPalette(palettes[static_cast<std::size_t>(before)].palette);
        QImage changed;
        {
            const Shown shown(form);
            QApplication::setPalette(palettes[static_cast<std::size_t>(after)].palette);
            QApplication::processEvents();
            changed = shown.window->grab().toImage();
        }
        const Shown shown(form);
        const QImage fresh = shown.window->grab().toImage();
        QCOMPARE(changed.size(), fresh.size());
        QRect differs;
        for (int y = 0; y < fresh.height(); ++y) {
            for (int x = 0; x < fresh.width(); ++x) {
                if (fresh.pixel(x, y) != changed.pixel(x, y))
                    differs |= QRect(x, y, 1, 1);
            }
        }
        const QWidget *at = shown.window->childAt(differs.center());
        QVERIFY2(differs.isNull(),
                 qPrintable(u"%1, %2, %3 x %4: %5"_s.arg(differs.x())
                                .arg(differs.y())
                                .arg(differs.width())
                                .arg(differs.height())
                                .arg(at ? at->objectName() : QString())));
    }

    void cleanupTestCase()
    {
        QVERIFY(m_looks > 1000);
        qInfo("%d texts looked at", m_looks);
    }

private:
    /// A form as the program opens it.
    struct Shown {
        explicit Shown(const QString &form)
        {
            opener.setContext(world);
            opener.openModeless(form);
            window.reset(opener.openForm(form));
            if (!window || !QTest::qWaitForWindowExposed(window.get()))
                qFatal("%s doesn't show", qPrintable(form));
            QApplication::processEvents();
        }

        TestContext world;
        const FormCatalogue catalogue = allForms();
        ModalFormOpener opener{catalogue, nullptr};
        std::unique_ptr<QWidget> window;
    };

    const QFont m_font = QApplication::font();
    const QPalette m_palette = QApplication::palette();
    int m_looks = 0;
};

ZEPHIRA_TEST(TstFormColours)

#include "tst_formcolours.moc"
