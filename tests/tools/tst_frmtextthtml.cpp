// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tools/frmtextthtml.h"
#include "tools/registerforms.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString before = u"<p align=center><font face=\"Arial\"><font color=#000000>Click on the '"_s;
const QString demonstrationMarkup = before
    + u"<font face=\"Courier New\"><font color=#0000FF>convert<font face=\"Arial\"><font color=#000000>"
      "' button to convert this richtext to <u><font face=\"Courier New\"><font color=#FF0000>H"
      "<font color=#0000FF>T<font color=#00FF00>M<font color=#000000>L</u><font face=\"Arial\">."_s;

/// The form with fakes of its own.
struct Converter {
    TestContext world;
    LivingForm form;

    Converter() : form(catalogue(), u"frmtextthtml"_s, world) {}

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        tools::registerForms(forms, {});
        return forms;
    }

    QTextEdit &box() const { return form.get<QTextEdit>(u"rtbRichText"_s); }

    void select(int start, int end) const
    {
        QTextCursor cursor = box().textCursor();
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        box().setTextCursor(cursor);
    }

    QString converted() const
    {
        form.press(u"cmdConvert"_s);
        return form.get<QWidget>(u"txtHTML"_s).property("plainText").toString();
    }
    /// The markup of one piece of the text.
    QString markup(int start, int end) const
    {
        QString html;
        const bool called = QMetaObject::invokeMethod(&form.widget(), "RichToHTML", Q_RETURN_ARG(QString, html),
                                                      Q_ARG(QTextEdit *, &box()), Q_ARG(int, start), Q_ARG(int, end));
        return called ? html : u"not called"_s;
    }
};

} // namespace

class TstFrmTextToHtml final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDemonstrationText()
    {
        const Converter converter;
        QCOMPARE(converter.box().toPlainText(), u"Click on the 'convert' button to convert this richtext to HTML."_s);
        QCOMPARE(converter.box().textCursor().position(), 0);
        QCOMPARE(converter.box().currentFont().pointSizeF(), 10.0);
        QCOMPARE(converter.converted(), demonstrationMarkup);
    }

    void noTextHasNoTags()
    {
        const Converter converter;
        converter.box().clear();
        QCOMPARE(converter.converted(), QString());
    }

    void aPartOfTheText()
    {
        const Converter converter;
        QCOMPARE(converter.markup(0, 5), u"<p align=center><font face=\"Arial\"><font color=#000000>Click"_s);
        QCOMPARE(converter.markup(14, 16), u"<p align=center><font face=\"Courier New\"><font color=#0000FF>co"_s);
        QCOMPARE(converter.markup(5, 5), QString());
        QCOMPARE(converter.markup(0, 100000), demonstrationMarkup);
    }

    void formatButtons_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("tags");
        QTest::newRow("bold") << u"boldopt"_s << u"<p align=center><b>"_s;
        QTest::newRow("italic") << u"italic"_s << u"<p align=center><i>"_s;
        QTest::newRow("underline") << u"underline"_s << u"<p align=center><u>"_s;
        QTest::newRow("left") << u"Option1"_s << u"<p align=left>"_s;
        QTest::newRow("center") << u"Option2"_s << u"<p align=center>"_s;
        QTest::newRow("right") << u"Option3"_s << u"<p align=right>"_s;
    }

    void formatButtons()
    {
        QFETCH(QString, button);
        QFETCH(QString, tags);
        const Converter converter;
        converter.select(0, 5);
        converter.form.press(button);
        QCOMPARE(converter.markup(0, 5), tags + u"<font face=\"Arial\"><font color=#000000>Click"_s);
    }

    void aFormatIsTakenBack()
    {
        const Converter converter;
        converter.select(0, 5);
        for (const QString &button : {u"boldopt"_s, u"italic"_s, u"underline"_s}) {
            converter.form.press(button);
            converter.form.press(button);
        }
        QCOMPARE(converter.converted(), demonstrationMarkup);
    }

    void aChosenFont()
    {
        Converter converter;
        converter.select(0, 5);
        converter.world.prompts.expectFont({u"Arial"_s, 10}, FontChoice{u"Mono"_s, 20, true, true, true, true});
        converter.form.press(u"Command2"_s);
        QCOMPARE(converter.markup(0, 6),
                 u"<p align=center><b><u><i><s><font face=\"Mono\"><font color=#000000>Click"
                 "</b></u></i></s><font face=\"Arial\"> "_s);
        converter.world.prompts.expectFont({u"Mono"_s, 20, true, true, true, true}, {});
        converter.form.press(u"Command2"_s);
        QVERIFY(converter.world.prompts.verify());
        QCOMPARE(converter.box().currentFont().pointSizeF(), 20.0);
    }

    void pastedFromElsewhere_data()
    {
        QTest::addColumn<QString>("clipboard");
        QTest::newRow("browser")
            << uR"(<html><body><!--StartFragment--><p style="font-family: Verdana; text-align: center"><span style="font-weight: 700; color: rgb(18, 52, 86);">one</span><span style="font-style: italic; text-decoration: underline;">two</span><span style="text-decoration: line-through">three</span></p><!--EndFragment--></body></html>)"_s;
        QTest::newRow("office program")
            << uR"(<html><head><meta name="generator" content="Office"/><style type="text/css">p { margin-bottom: 0.1in }</style></head><body lang="en-US"><p align="center"><font face="Verdana"><font color="#123456"><b>one</b></font><i><u>two</u></i><strike>three</strike></font></p></body></html>)"_s;
    }

    void pastedFromElsewhere()
    {
        QFETCH(QString, clipboard);
        const Converter converter;
        converter.box().clear();
        auto *data = new QMimeData;
        data->setHtml(clipboard);
        data->setText(u"onetwothree"_s);
        QGuiApplication::clipboard()->setMimeData(data);
        converter.box().setFocus();
        converter.form.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(converter.box().toPlainText(), u"onetwothree"_s);
        const QString html = converter.converted();
        QVERIFY2(html.startsWith(u"<p align=center><b><font face=\"Verdana\"><font color=#123456>one</b>"),
                 qPrintable(html));
        QVERIFY2(html.contains(u"<u><i>") && html.contains(u"two</u></i><s>") && html.contains(u"three"),
                 qPrintable(html));
    }

    void pastedFormatsAreSeen()
    {
        const Converter converter;
        converter.box().setHtml(
            u"<p align=right><b>a</b><i>b</i><s>c</s><br><font color=#123456>d</font></p><p>e</p>"_s);
        const QString html = converter.converted();
        QVERIFY2(html.startsWith(u"<p align=right><b><font face=\""), qPrintable(html));
        QVERIFY2(html.contains(u"a</b><i>b</i><s>c</s>"), qPrintable(html));
        QVERIFY2(html.contains(u"<font color=#123456>d"), qPrintable(html));
        QVERIFY2(html.endsWith(u"\n<p align=left><font color=#000000>e"), qPrintable(html));
    }
};

ZEPHIRA_TEST(TstFrmTextToHtml)

#include "tst_frmtextthtml.moc"
