// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/registerforms.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Converter {
    TestContext world;
    LivingForm form;

    Converter() : form(catalogue(), u"frmascii"_s, world) {}

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        colour::registerForms(forms);
        return forms;
    }

    /// The box's text and the three labels.
    QStringList shown() const
    {
        return {form.value(u"Text1"_s), form.value(u"Label1"_s), form.value(u"Label2"_s), form.value(u"Label3"_s)};
    }
};

const QStringList nothingYet{{}, u"Ascii: "_s, u"Binary: "_s, u"Hex:"_s};
const QStringList letterA{u"A"_s, u"Ascii: 65"_s, u"Binary: 01000001"_s, u"Hex: 41"_s};

} // namespace

class TstFrmAscii final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmpty()
    {
        const Converter converter;
        QCOMPARE(converter.shown(), nothingYet);
        QCOMPARE(converter.form.focus(), u"Text1"_s);
        QCOMPARE(converter.form.value(u"Frame1"_s), u"Ascii To Binary To Hex"_s);
        QCOMPARE(converter.form.value(u"lblRemark"_s),
                 u"This program will convert ascii to binary. Just for fun you know =)"_s);
    }

    void aKey_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("shown");
        const auto row = [](const char *name, Qt::Key key, const QString &text, const QStringList &shown) {
            QTest::newRow(name) << static_cast<int>(key) << text << shown;
        };
        row("A", Qt::Key_A, u"A"_s, letterA);
        row("z", Qt::Key_Z, u"z"_s, {u"z"_s, u"Ascii: 122"_s, u"Binary: 01111010"_s, u"Hex: 7A"_s});
        row("blank", Qt::Key_Space, u" "_s, {u" "_s, u"Ascii: 32"_s, u"Binary: 00100000"_s, u"Hex: 20"_s});
        row("backspace", Qt::Key_Backspace, u"\b"_s, {{}, u"Ascii: 8"_s, u"Binary: 00001000"_s, u"Hex: 8"_s});
        row("return", Qt::Key_Return, u"\r"_s, {{}, u"Ascii: 13"_s, u"Binary: 00001101"_s, u"Hex: D"_s});
        row("umlaut", Qt::Key_Adiaeresis, u"\u00e4"_s,
            {u"\u00e4"_s, u"Ascii: 228"_s, u"Binary: 11100100"_s, u"Hex: E4"_s});
        row("euro", Qt::Key_E, u"\u20ac"_s,
            {u"\u20ac"_s, u"Ascii: 8364"_s, u"Binary: 10000010101100"_s, u"Hex: 20AC"_s});
        row("above the first plane", Qt::Key_unknown, u"\U0001f600"_s,
            {u"\U0001f600"_s, u"Ascii: 128512"_s, u"Binary: 11111011000000000"_s, u"Hex: 1F600"_s});
        row("code 0", Qt::Key_At, QString(QChar(0)), {{}, u"Ascii: 0"_s, u"Binary: 00000000"_s, u"Hex: 0"_s});
    }

    void aKey()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        const Converter converter;
        QTest::sendKeyEvent(QTest::Click, &converter.form.get(u"Text1"_s), Qt::Key(key), text, Qt::NoModifier);
        QTEST(converter.shown(), "shown");
        QVERIFY(converter.form.isOpen());
    }

    void theBoxHoldsOneKey()
    {
        const Converter converter;
        QTest::keyClicks(&converter.form.get(u"Text1"_s), u"xyA"_s);
        QCOMPARE(converter.shown(), letterA);
    }

    void keysWithoutATextLeaveItAsItIs()
    {
        const Converter converter;
        QTest::keyClicks(&converter.form.get(u"Text1"_s), u"A"_s);
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Shift, Qt::Key_Left, Qt::Key_Home}) {
            QTest::sendKeyEvent(QTest::Click, &converter.form.get(u"Text1"_s), key, QString(), Qt::NoModifier);
            QCOMPARE(converter.shown(), letterA);
        }
    }

    void aComposedKeyCounts()
    {
        const Converter converter;
        QInputMethodEvent event;
        event.setCommitString(u"\u00e9"_s);
        QApplication::sendEvent(&converter.form.get(u"Text1"_s), &event);
        QCOMPARE(converter.shown(), (QStringList{u"\u00e9"_s, u"Ascii: 233"_s, u"Binary: 11101001"_s, u"Hex: E9"_s}));
    }

    void nothingIsPasted()
    {
        const Converter converter;
        QApplication::clipboard()->setText(QString(100'000, u'x'));
        QTest::sendKeyEvent(QTest::Click, &converter.form.get(u"Text1"_s), Qt::Key_V, u"\x16"_s, Qt::ControlModifier);
        QCOMPARE(converter.shown(), (QStringList{{}, u"Ascii: 22"_s, u"Binary: 00010110"_s, u"Hex: 16"_s}));
        QTest::mouseClick(&converter.form.get(u"Text1"_s), Qt::MiddleButton);
        QCOMPARE(converter.form.value(u"Text1"_s), QString());
        QTest::sendKeyEvent(QTest::Click, &converter.form.get(u"Text1"_s), Qt::Key_Insert, QString(),
                            Qt::ShiftModifier);
        QCOMPARE(converter.form.value(u"Text1"_s), QString());
        QApplication::clipboard()->clear();
    }

    void theDigitsByName()
    {
        const Converter converter;
        QString digits;
        QVERIFY(QMetaObject::invokeMethod(&converter.form.widget(), "binary", Q_RETURN_ARG(QString, digits),
                                          Q_ARG(int, 65)));
        QCOMPARE(digits, u"01000001"_s);
    }

    void escapeCloses()
    {
        const Converter converter;
        converter.form.key(Qt::Key_Escape);
        QVERIFY(!converter.form.isOpen());
    }
};

ZEPHIRA_TEST(TstFrmAscii)
#include "tst_frmascii.moc"
