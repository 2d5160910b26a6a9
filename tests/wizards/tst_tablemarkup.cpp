// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/tablemarkup.h"

#include <QRandomGenerator>
#include <QTest>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr qint32 largest = std::numeric_limits<qint32>::max();

/// The initial values of the full form's fields.
TableFields defaults()
{
    return {.borderSize = u"0"_s,
            .cellPadding = u"1"_s,
            .cellSpacing = u"1"_s,
            .width = u"100"_s,
            .backgroundColour = u"Default"_s,
            .borderColour = u"Default"_s,
            .lightColour = u"Default"_s,
            .darkColour = u"Default"_s};
}

TableFields with(const std::function<void(TableFields &)> &change)
{
    TableFields fields = defaults();
    change(fields);
    return fields;
}

QString table(TableSize size, const TableFields &fields)
{
    const auto markup = fields.asp ? aspTableMarkup : plainTableMarkup;
    return markup(size, fields, tableAttributes(fields)).valueOr(u"(an error)"_s);
}

// A straightforward implementation of the same texts without regard to speed.

QString plainReference(TableSize size, const TableFields &f)
{
    QString text = u"<TABLE "_s;
    if (!f.alignment.isEmpty())
        text += u"Align=\""_s + f.alignment + u"\""_s;
    text += u" Border=\""_s + f.borderSize + u"\" cellpadding=\""_s + f.cellPadding + u"\""_s;
    if (f.hasWidth) {
        text += u" width="_s + f.width;
        if (f.widthUnit == TableFields::WidthUnit::Percent)
            text += u"%"_s;
    }
    text += u" cellspacing=\""_s + f.cellSpacing + u"\""_s;
    if (f.backgroundColour != u"Default"_s)
        text += u" bgcolor="_s + f.backgroundColour;
    if (f.borderColour != u"Default"_s)
        text += u" bordercolor="_s + f.borderColour;
    if (f.lightColour != u"Default"_s && f.darkColour != u"Default"_s)
        text += u" bordercolorlight="_s + f.lightColour + u" bordercolordark="_s + f.darkColour;
    text += u">\r\n"_s;
    for (int row = 1; row <= size.rows; ++row) {
        text += u"<TR>\r\n  <TD>&nbsp;</TD>\r\n"_s;
        for (int column = 2; column <= size.columns; ++column)
            text += u"  <TD>&nbsp;</TD>\r\n"_s;
        text += u" </TR>\r\n"_s;
    }
    return text + u"</TABLE>\r\n"_s;
}

QString aspReference(TableSize size, const TableFields &f)
{
    const QString open = f.responseWrite ? u"<%"_s : u""_s;
    const QString close = f.responseWrite ? u"%>"_s : u""_s;
    const QString rw = f.responseWrite ? u"response.write"_s : u""_s;
    const QString s = f.responseWrite ? u"\""_s : u""_s;
    QString text = open + u"\r\n"_s + rw + s + u"<TABLE "_s;
    if (!f.alignment.isEmpty())
        text += u" Align=\"\""_s + f.alignment + u"\"\""_s;
    text += u" Border=\"\""_s + f.borderSize + u"\"\" cellpadding=\"\""_s + f.cellPadding + u"\"\""_s;
    if (f.hasWidth && f.widthUnit == TableFields::WidthUnit::Pixels)
        text += u" width=\"\""_s + f.width + u"\"\""_s;
    if (f.hasWidth && f.widthUnit == TableFields::WidthUnit::Percent)
        text += u" width=\"\""_s + f.width + u"%\"\""_s;
    text += u" cellspacing=\"\""_s + f.cellSpacing + u"\"\""_s;
    if (f.backgroundColour != u"Default"_s)
        text += u" bgcolor="_s + f.backgroundColour;
    if (f.borderColour != u"Default"_s)
        text += u" bordercolor="_s + f.borderColour;
    if (f.lightColour != u"Default"_s && f.darkColour != u"Default"_s)
        text += u" bordercolorlight="_s + f.lightColour + u" bordercolordark="_s + f.darkColour;
    text += u">"_s + s + u"\r\n"_s;
    for (int row = 1; row <= size.rows; ++row) {
        text += u"\r\n"_s + rw + s + u"<TR>"_s + s + u"\r\n"_s;
        text += rw + s + u"<TD>&nbsp;</TD>"_s + s + u"\r\n"_s;
        for (int column = 2; column <= size.columns; ++column)
            text += rw + s + u"<TD>&nbsp;</TD>"_s + s + u"\r\n"_s;
        text += rw + s + u"</TR>"_s + s;
    }
    return text + u"\r\n"_s + rw + s + u"</TABLE>"_s + s + u"\r\n"_s + close;
}

QString simpleReference(TableSize size)
{
    QString text = u"<TABLE Align=\"center\" Border=\"0\">\r\n"_s;
    for (int row = 1; row <= size.rows; ++row) {
        text += u"<TR>\r\n<TD> </TD>\r\n"_s;
        for (int column = 2; column <= size.columns; ++column)
            text += u"<TD> </TD>\r\n"_s;
        text += u"\t</TR>"_s;
    }
    return text + u"</TABLE>\r\n"_s;
}

template<typename T, std::size_t N>
T oneOf(QRandomGenerator &random, const T (&values)[N])
{
    return values[random.bounded(static_cast<quint32>(N))];
}

TableFields generated(QRandomGenerator &random)
{
    const QString alignments[] = {{}, u"Left"_s, u"Center"_s, u"Right"_s};
    const QString texts[] = {{}, u"0"_s, u"12"_s, u"%1"_s, u"a\"b"_s, u"<>"_s, u"Ä €"_s};
    const QString colours[] = {u"Default"_s, u"default"_s, {}, u"#ff0000"_s, u"red"_s, u"%2 %1"_s};
    const bool either[] = {false, true};
    return {
        .alignment = oneOf(random, alignments),
        .borderSize = oneOf(random, texts),
        .cellPadding = oneOf(random, texts),
        .cellSpacing = oneOf(random, texts),
        .hasWidth = oneOf(random, either),
        .width = oneOf(random, texts),
        .widthUnit = oneOf(random, {TableFields::WidthUnit::Pixels, TableFields::WidthUnit::Percent}),
        .asp = oneOf(random, either),
        .responseWrite = oneOf(random, either),
        .backgroundColour = oneOf(random, colours),
        .borderColour = oneOf(random, colours),
        .lightColour = oneOf(random, colours),
        .darkColour = oneOf(random, colours),
    };
}

} // namespace

class TstTableMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counts_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<std::optional<qint32>>("count");
        const auto row = [](const char *name, const QString &typed, std::optional<qint32> count) {
            QTest::newRow(name) << typed << count;
        };
        row("number", u"12"_s, 12);
        row("blanks around", u" 3 "_s, 3);
        row("negative", u"-2"_s, -2);
        row("half to the even neighbour below", u"2.5"_s, 2);
        row("half to the even neighbour above", u"3.5"_s, 4);
        row("more than half", u"2.6"_s, 3);
        row("largest", u"2147483647"_s, largest);
        row("too large", u"2147483648"_s, {});
        row("empty", {}, {});
        row("words", u"three"_s, {});
        row("number and words", u"3 rows"_s, {});
    }

    void counts()
    {
        QFETCH(QString, typed);
        QFETCH(std::optional<qint32>, count);
        QVERIFY(tableCount(typed) == count);
    }

    void simple_data()
    {
        QTest::addColumn<qint32>("columns");
        QTest::addColumn<qint32>("rows");
        QTest::addColumn<QString>("text");
        const QString head = u"<TABLE Align=\"center\" Border=\"0\">\r\n"_s;
        const QString cell = u"<TD> </TD>\r\n"_s;
        QTest::newRow("one cell") << 1 << 1 << head + u"<TR>\r\n"_s + cell + u"\t</TR></TABLE>\r\n"_s;
        QTest::newRow("no rows") << 1 << 0 << head + u"</TABLE>\r\n"_s;
        QTest::newRow("fewer than no rows") << 3 << -1 << head + u"</TABLE>\r\n"_s;
        QTest::newRow("no columns") << 0 << 1 << head + u"<TR>\r\n"_s + cell + u"\t</TR></TABLE>\r\n"_s;
        QTest::newRow("fewer than no columns") << -5 << 1 << head + u"<TR>\r\n"_s + cell + u"\t</TR></TABLE>\r\n"_s;
        QTest::newRow("two by two") << 2 << 2
                                    << u"<TABLE Align=\"center\" Border=\"0\">\r\n"
                                       "<TR>\r\n"
                                       "<TD> </TD>\r\n"
                                       "<TD> </TD>\r\n"
                                       "\t</TR><TR>\r\n"
                                       "<TD> </TD>\r\n"
                                       "<TD> </TD>\r\n"
                                       "\t</TR></TABLE>\r\n"_s;
    }

    void simple()
    {
        QFETCH(qint32, columns);
        QFETCH(qint32, rows);
        QTEST(simpleTableMarkup({columns, rows}).value(), "text");
    }

    void attributes_data()
    {
        QTest::addColumn<TableFields>("fields");
        QTest::addColumn<TableAttributes>("attributes");
        using Unit = TableFields::WidthUnit;
        const auto row = [](const char *name, const std::function<void(TableFields &)> &change,
                            const TableAttributes &attributes) { QTest::newRow(name) << with(change) << attributes; };
        row("defaults", [](TableFields &) {}, {});
        row("width in pixels", [](TableFields &f) { f.hasWidth = true; }, {.width = u" width=100"_s});
        row("width in percent",
            [](TableFields &f) {
                f.hasWidth = true;
                f.widthUnit = Unit::Percent;
            },
            {.width = u" width=100%"_s});
        row("width for a script", [](TableFields &f) { f.hasWidth = f.asp = true; },
            {.width = u" width=\"\"100\"\""_s});
        row("percent for a script",
            [](TableFields &f) {
                f.hasWidth = f.asp = true;
                f.widthUnit = Unit::Percent;
            },
            {.width = u" width=\"\"100%\"\""_s});
        row("background", [](TableFields &f) { f.backgroundColour = u"red"_s; }, {.background = u" bgcolor=red"_s});
        row("empty background", [](TableFields &f) { f.backgroundColour.clear(); }, {.background = u" bgcolor="_s});
        row("other case", [](TableFields &f) { f.backgroundColour = u"default"_s; },
            {.background = u" bgcolor=default"_s});
        row("border", [](TableFields &f) { f.borderColour = u"#00ff00"_s; }, {.border = u" bordercolor=#00ff00"_s});
        row("light alone", [](TableFields &f) { f.lightColour = u"white"_s; }, {});
        row("dark alone", [](TableFields &f) { f.darkColour = u"black"_s; }, {});
        row("light and dark",
            [](TableFields &f) {
                f.lightColour = u"white"_s;
                f.darkColour = u"black"_s;
            },
            {.lightAndDark = u" bordercolorlight=white bordercolordark=black"_s});
        row("empty light",
            [](TableFields &f) {
                f.lightColour.clear();
                f.darkColour = u"black"_s;
            },
            {.lightAndDark = u" bordercolorlight= bordercolordark=black"_s});
    }

    void attributes()
    {
        QFETCH(TableFields, fields);
        QFETCH(TableAttributes, attributes);
        const TableAttributes actual = tableAttributes(fields);
        QCOMPARE(actual.width, attributes.width);
        QCOMPARE(actual.background, attributes.background);
        QCOMPARE(actual.border, attributes.border);
        QCOMPARE(actual.lightAndDark, attributes.lightAndDark);
    }

    void full_data()
    {
        QTest::addColumn<TableFields>("fields");
        QTest::addColumn<QString>("text");
        const QString plainRow = u"<TR>\r\n  <TD>&nbsp;</TD>\r\n </TR>\r\n</TABLE>\r\n"_s;
        QTest::newRow("defaults") << defaults()
                                  << u"<TABLE  Border=\"0\" cellpadding=\"1\" cellspacing=\"1\">\r\n"_s + plainRow;
        QTest::newRow("alignment keeps its case")
            << with([](TableFields &f) { f.alignment = u"Center"_s; })
            << u"<TABLE Align=\"Center\" Border=\"0\" cellpadding=\"1\" cellspacing=\"1\">\r\n"_s + plainRow;
        QTest::newRow("width between padding and spacing")
            << with([](TableFields &f) { f.hasWidth = true; })
            << u"<TABLE  Border=\"0\" cellpadding=\"1\" width=100 cellspacing=\"1\">\r\n"_s + plainRow;
        QTest::newRow("script without statements")
            << with([](TableFields &f) { f.asp = true; })
            << u"\r\n"
               "<TABLE  Border=\"\"0\"\" cellpadding=\"\"1\"\" cellspacing=\"\"1\"\">\r\n"
               "\r\n"
               "<TR>\r\n"
               "<TD>&nbsp;</TD>\r\n"
               "</TR>\r\n"
               "</TABLE>\r\n"_s;
        QTest::newRow("script with statements")
            << with([](TableFields &f) {
                   f.asp = f.responseWrite = true;
                   f.alignment = u"Right"_s;
               })
            << u"<%\r\n"
               "response.write\"<TABLE  Align=\"\"Right\"\" Border=\"\"0\"\" cellpadding=\"\"1\"\" cellspacing=\"\"1\"\">\"\r\n"
               "\r\n"
               "response.write\"<TR>\"\r\n"
               "response.write\"<TD>&nbsp;</TD>\"\r\n"
               "response.write\"</TR>\"\r\n"
               "response.write\"</TABLE>\"\r\n"
               "%>"_s;
    }

    void full()
    {
        QFETCH(TableFields, fields);
        QTEST(table({}, fields), "text");
    }

    void cells_data()
    {
        QTest::addColumn<CellFields>("fields");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const CellFields &fields, const QString &text) {
            QTest::newRow(name) << fields << text;
        };
        const QString none = u"Default"_s;
        row("defaults", {{}, {}, none, none}, u"<TD></TD>\r\n"_s);
        row("columns", {u"Column"_s, u"2"_s, none, none}, u"<TD Colspan='2'></TD>\r\n"_s);
        row("rows", {u"Row"_s, u"3"_s, none, none}, u"<TD Rowspan='3'></TD>\r\n"_s);
        row("number alone", {{}, u"2"_s, none, none}, u"<TD></TD>\r\n"_s);
        row("word alone", {u"Row"_s, {}, none, none}, u"<TD></TD>\r\n"_s);
        row("other case", {u"row"_s, u"2"_s, none, none}, u"<TD></TD>\r\n"_s);
        row("all", {u"Row"_s, u"2"_s, u"Left"_s, u"Top"_s}, u"<TD align='Left' valign='Top' Rowspan='2'></TD>\r\n"_s);
        row("empty alignments", {{}, {}, {}, {}}, u"<TD align='' valign=''></TD>\r\n"_s);
    }

    void cells()
    {
        QFETCH(CellFields, fields);
        QTEST(cellMarkup(fields), "text");
    }

    void likeThePlainlyWrittenTables()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 2000; ++round) {
            const TableSize size{static_cast<qint32>(random.bounded(-2, 9)),
                                 static_cast<qint32>(random.bounded(-2, 9))};
            const TableFields fields = generated(random);
            QCOMPARE(table(size, fields), fields.asp ? aspReference(size, fields) : plainReference(size, fields));
            QCOMPARE(simpleTableMarkup(size).value(), simpleReference(size));
        }
    }

    void tooLargeIsAnError_data()
    {
        QTest::addColumn<qint32>("columns");
        QTest::addColumn<qint32>("rows");
        QTest::addColumn<bool>("fits");
        QTest::newRow("a thousand by a thousand") << 1000 << 1000 << true;
        QTest::newRow("many columns without a row") << largest << 0 << true;
        QTest::newRow("a hundred thousand each way") << 100000 << 100000 << false;
        QTest::newRow("largest numbers") << largest << largest << false;
        QTest::newRow("many columns") << largest << 1 << false;
        QTest::newRow("many rows") << 1 << largest << false;
    }

    void tooLargeIsAnError()
    {
        QFETCH(qint32, columns);
        QFETCH(qint32, rows);
        QFETCH(bool, fits);
        const TableFields fields = defaults();
        for (const Result<QString> &markup :
             {simpleTableMarkup({columns, rows}), plainTableMarkup({columns, rows}, fields, {}),
              aspTableMarkup({columns, rows}, fields, {})}) {
            QCOMPARE(markup.ok(), fits);
            if (!fits) {
                QCOMPARE(markup.error().code, Error::Code::TooLarge);
                QCOMPARE(markup.error().sentence,
                         u"A table of %1 columns and %2 rows is too large for a page."_s.arg(columns).arg(rows));
            }
        }
    }

    void theLimitIsExact()
    {
        const qint64 frame = simpleTableMarkup({1, 0}).value().size();
        const qint64 row = simpleTableMarkup({1, 1}).value().size() - frame;
        const auto rows = static_cast<qint32>((maximumTableLength - frame) / row);
        QCOMPARE(simpleTableMarkup({1, rows}).value().size(), frame + rows * row);
        QVERIFY(!simpleTableMarkup({1, rows + 1}).ok());
    }
};

ZEPHIRA_TEST(TstTableMarkup)

#include "tst_tablemarkup.moc"
