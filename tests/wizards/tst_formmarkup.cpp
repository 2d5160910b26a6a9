// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/fieldtemplate.h"
#include "wizards/formmarkup.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString head = u"<form action=\"action goes here\" method=\"POST\" name=\"Form1\">"_s;
const QString tail = u"\r\n<p><input type=\"submit\" name=\"B1\" value=\"Submit\">\r\n"
                     "<input type=\"reset\"name=\"B2\"value=\"Reset\"></p>\r\n </form>"_s;

QString formField(const QString &name)
{
    return u"\r\n<p>enter your field label name<input type=\"text\" size=\"20\" name=\""_s + name + u"\"></p>"_s;
}

/// The initial values of the form wizard's fields, with another number of fields.
FormFields plainForm(const QString &count)
{
    return {.name = u"Form1"_s, .action = u"action goes here"_s, .method = u"POST"_s, .count = count};
}

/// The rule for menus without regard to how the program shares it between the two forms.
QString menuReference(const MenuFields &f)
{
    const QString rw = f.asp && f.responseWrite ? u"response.write"_s : u""_s;
    const QString q = f.asp && f.responseWrite ? u"\""_s : u""_s;
    const QString qq = f.asp ? u"\"\""_s : u"\""_s;
    QString t;
    if (!f.tabOrder.isEmpty())
        t = u" tabindex="_s + qq + f.tabOrder + qq;
    QString m;
    if (f.multiple)
        m = u" multiple"_s;
    QString text =
        rw + q + u"<select size="_s + qq + f.height + qq + u" name="_s + qq + f.name + qq + m + t + u">"_s + q;
    text += u"\r\n"_s;
    for (const MenuChoice &choice : f.choices) {
        QString s;
        if (choice.selected)
            s = u" selected"_s;
        QString v;
        if (choice.value != u"."_s)
            v = u" Value="_s + qq + choice.value + qq;
        text += rw + q + u"  <option"_s + v + s + u">"_s + choice.text + u"</option>"_s + q + u"\r\n"_s;
    }
    return text + rw + q + u"</select>"_s + q + u"\r\n"_s;
}

} // namespace

/// What the form and the drop-down wizard write, compared as whole texts.
class TstFormMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<int>("fields");
        const auto row = [](const QString &count, int fields) {
            QTest::newRow(qPrintable(u'"' + count + u'"')) << count << fields;
        };
        row(u"2"_s, 2);
        row(u"0"_s, 0);
        row(u"1.5"_s, 2);
        row(u"2.5"_s, 2);
        row(u"0.5"_s, 0);
        row(u"0.51"_s, 1);
        row(u"-3"_s, 0);
        row(u"-0.4"_s, 0);
        row(u""_s, 0);
        row(u"x"_s, 0);
        row(u"2x"_s, 0);
        row(u" 3 "_s, 3);
        row(u"1e1"_s, 10);
        row(u"&HC"_s, 12);
    }

    void form()
    {
        QFETCH(QString, count);
        QFETCH(int, fields);
        QString text = head;
        for (int i = 1; i <= fields; ++i)
            text += formField(u"T%1"_s.arg(i));
        QCOMPARE(formMarkup(plainForm(count)).value(), text + tail);
    }

    void formFieldsStayAsTheyAre()
    {
        QCOMPARE(formMarkup({u"\"ä\""_s, u"a&b.asp\r\nc"_s, u"<get>"_s, u"0"_s}).value(),
                 u"<form action=\"a&b.asp\r\nc\" method=\"<get>\" name=\"\"ä\"\">"_s + tail);
        QCOMPARE(formMarkup({}).value(), u"<form action=\"\" method=\"\" name=\"\">"_s + tail);
    }

    void tooManyFieldsAreAnError_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("one more") << u"500001"_s << u"A form of 500001 fields is too large for a page."_s;
        QTest::newRow("a little more") << u"500000.1"_s << u"A form of 500000.1 fields is too large for a page."_s;
        QTest::newRow("beyond 32 bits") << u"2147483648"_s << u"A form of 2147483648 fields is too large for a page."_s;
        QTest::newRow("largest") << u"1e300"_s << u"A form of 1E+300 fields is too large for a page."_s;
    }

    void tooManyFieldsAreAnError()
    {
        QFETCH(QString, count);
        const Result<QString> markup = formMarkup(plainForm(count));
        QVERIFY(!markup.ok());
        QCOMPARE(markup.error().code, Error::Code::TooLarge);
        QTEST(markup.error().sentence, "sentence");
        QVERIFY(formMarkup(plainForm(u"500000"_s)).value().endsWith(formField(u"T500000"_s) + tail));
    }

    void menu_data()
    {
        QTest::addColumn<bool>("asp");
        QTest::addColumn<bool>("responseWrite");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << false << false
                               << u"<select size=\"1\" name=\"m\" multiple tabindex=\"3\">\r\n"
                                  "  <option>Äpfel</option>\r\n"
                                  "  <option Value=\"b&w\" selected><b>\"Birnen\"</option>\r\n"
                                  "  <option Value=\"\" selected></option>\r\n</select>\r\n"_s;
        QTest::newRow("script") << true << false
                                << u"<select size=\"\"1\"\" name=\"\"m\"\" multiple tabindex=\"\"3\"\">\r\n"
                                   "  <option>Äpfel</option>\r\n"
                                   "  <option Value=\"\"b&w\"\" selected><b>\"Birnen\"</option>\r\n"
                                   "  <option Value=\"\"\"\" selected></option>\r\n</select>\r\n"_s;
        QTest::newRow("statements")
            << true << true
            << u"response.write\"<select size=\"\"1\"\" name=\"\"m\"\" multiple tabindex=\"\"3\"\">\"\r\n"
               "response.write\"  <option>Äpfel</option>\"\r\n"
               "response.write\"  <option Value=\"\"b&w\"\" selected><b>\"Birnen\"</option>\"\r\n"
               "response.write\"  <option Value=\"\"\"\" selected></option>\"\r\nresponse.write\"</select>\"\r\n"_s;
    }

    void menu()
    {
        QFETCH(bool, asp);
        QFETCH(bool, responseWrite);
        MenuFields fields{.name = u"m"_s, .height = u"1"_s, .multiple = true, .tabOrder = u"3"_s};
        fields.asp = asp;
        fields.responseWrite = responseWrite;
        fields.choices = {{u"Äpfel"_s, false, u"."_s}, {u"<b>\"Birnen\""_s, true, u"b&w"_s}, {{}, true, {}}};
        QTEST(menuMarkup(fields), "text");
    }

    void emptyMenus()
    {
        MenuFields fields{.name = u"m"_s, .height = u"abc"_s};
        QCOMPARE(menuMarkup(fields), u"<select size=\"abc\" name=\"m\">\r\n</select>\r\n"_s);
        // Statements are a kind of script.
        fields.responseWrite = true;
        QCOMPARE(menuMarkup(fields), u"<select size=\"abc\" name=\"m\">\r\n</select>\r\n"_s);
        QCOMPARE(menuMarkup({}), u"<select size=\"\" name=\"\">\r\n</select>\r\n"_s);
    }

    void aChoiceHasNoValueAtFirst()
    {
        const MenuChoice choice;
        QCOMPARE(choice.value, u"."_s);
        QVERIFY(!choice.selected);
    }

    void anyFieldsFollowTheRules()
    {
        QRandomGenerator random(7501);
        for (int i = 0; i < 2000; ++i) {
            const QStringList f = generatedFields(random, 3);
            MenuFields fields{.name = f[0],
                              .height = f[1],
                              .multiple = random.bounded(2) > 0,
                              .tabOrder = f[2],
                              .asp = random.bounded(2) > 0,
                              .responseWrite = random.bounded(2) > 0};
            for (int row = random.bounded(5); row > 0; --row) {
                const QStringList texts = generatedFields(random, 2);
                fields.choices.append({texts[0], random.bounded(2) > 0, random.bounded(3) > 0 ? texts[1] : u"."_s});
            }
            QCOMPARE(menuMarkup(fields), menuReference(fields));
            QCOMPARE(formMarkup({f[0], f[1], f[2], u"1"_s}).value(),
                     filled(u"<form action='②' method='③' name='①'>\n"
                            "<p>enter your field label name<input type='text' size='20' name='T1'></p>\n"
                            "<p><input type='submit' name='B1' value='Submit'>\n"
                            "<input type='reset'name='B2'value='Reset'></p>\n </form>"_s,
                            f));
        }
    }
};

ZEPHIRA_TEST(TstFormMarkup)

#include "tst_formmarkup.moc"
