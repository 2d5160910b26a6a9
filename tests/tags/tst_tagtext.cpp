// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tags/tagtext.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The pages in their order.
enum Page {
    Anchor,
    Body,
    Checkbox,
    Div,
    Font,
    Rule,
    Image,
    Radio,
    Selection,
    Submit,
    TextArea,
    Hidden,
    Text,
    Table,
    Cell,
    Row,
};

QString built(int page, const TagFields &fields)
{
    return tagText(tagTemplates()[static_cast<std::size_t>(page)], fields);
}

/// Writes a page's tag attribute by attribute, without a table.
struct Reference {
    const TagFields &fields;

    QString text(const char *field) const { return fields.texts.value(QString::fromLatin1(field)); }
    QString always(const char *name, const char *field) const
    {
        return u" %1=\""_s.arg(QLatin1StringView(name)) + text(field) + u"\""_s;
    }
    QString given(const char *name, const char *field) const
    {
        return text(field).isEmpty() ? QString() : always(name, field);
    }
    QString mark(const char *box, const QString &word) const
    {
        return fields.ticked.contains(QString::fromLatin1(box)) ? word : QString();
    }

    QString tag(int page) const
    {
        switch (page) {
        case Anchor:
            return u"<a"_s + given("href", "txtHrefAnch") + given("target", "txtTargetAnch")
                + given("name", "txtNameAnch") + given("title", "txtTitleAnch") + given("id", "txtIDAnch") + u"></a>"_s;
        case Body:
            return u"<body"_s + given("background", "txtBGImage") + given("bgcolor", "txtBgColor")
                + given("text", "txtTextColor") + given("link", "txtLinkColor") + given("vlink", "txtVisLink")
                + given("alink", "txtActivLink") + u">"_s;
        case Checkbox:
            return u"<input type=\"checkbox\""_s + given("name", "txtNameChk") + given("value", "txtValueChk")
                + mark("Checked", u" checked"_s) + u">"_s + text("txtCaptionChk");
        case Div:
            return u"<div"_s + always("align", "CoAlignDiv") + u"></div>"_s;
        case Font:
            return u"<font"_s + always("face", "CoFonts") + given("color", "txtColorFo") + given("size", "txtSizeFo")
                + u"></font>"_s;
        case Rule:
            return (text("txtWHR").isEmpty() ? QString() : u"<hr"_s + always("width", "txtWHR"))
                + given("size", "txtSizeHR") + given("color", "txtColorHR") + always("align", "CoAlignHR") + u" "_s
                + mark("Che", u" noshade"_s) + u">"_s;
        case Image:
            return u"<img"_s + given("src", "txtSourceImg") + given("hspace", "txtHsImg") + given("vspace", "txtVsImg")
                + given("border", "txtBorderImg") + given("align", "CoAlignImg") + given("alt", "txtAltImg")
                + (text("txtMapImg").isEmpty() ? QString() : u" usemap=\"#"_s + text("txtMapImg") + u"\""_s) + u">"_s;
        case Radio:
            return u"<input type=\"radio\""_s + given("name", "txtNameRa") + given("value", "txtValueRa")
                + mark("chRa", u" checked"_s) + u">"_s + text("txtCaptionRa");
        case Selection:
            return u"<select"_s + given("name", "txtNameSel") + given("size", "txtSizeSel")
                + mark("Multy", u"  multiple"_s) + u">\r\n<option value=1></option>\r\n</select>\r\n"_s;
        case Submit:
            return u"<input type=\"submit\""_s + given("name", "txtNameSub") + given("value", "txtCaptionSub")
                + given("width", "txtWSub") + given("height", "txtHSub") + u">"_s;
        case TextArea:
            return u"<textarea"_s + given("name", "txtNameArea") + given("cols", "txtColsArea")
                + given("rows", "txtRowsArea") + u"></textarea>"_s;
        case Hidden:
            return u"<input type=\"hidden\""_s + given("name", "txtNameHid") + given("value", "txtValueHid") + u">"_s;
        case Text:
            return u"<input type=\"text\""_s + given("name", "txtNavetextVis") + given("value", "txtValueTxtVis")
                + given("size", "txtSizetxtVis") + given("maxlength", "txtMaxLenTxtVis") + u">"_s;
        case Table:
            return u"<Table"_s + given("width", "txtWTable") + given("border", "txtBordertable")
                + given("cellspacing", "txtSpacingTable") + given("cellpadding", "txtPaddingTable")
                + given("align", "CoAlignTable") + given("bgcolor", "txtBGTable") + given("bordercolor", "txtBColTable")
                + u">"_s;
        case Cell:
            return u"<Td"_s + given("width", "txtWTD") + given("height", "txtHTD") + given("colspan", "txtCSTD")
                + given("rowspan", "txtRSTD") + given("bgcolor", "txtBgTD") + always("align", "CoAlignTD")
                + always("valign", "CoValignTD") + u">"_s;
        default:
            return u"<tr"_s + always("align", "CoAlignTR") + always("valign", "CoValignTR") + u">"_s;
        }
    }
};

/// The names of all fields and of all boxes, read from the table.
QStringList names(bool boxes)
{
    QStringList names;
    for (const TagTemplate &tag : tagTemplates()) {
        for (const TagPiece &piece : tag.pieces) {
            if (!piece.field.isEmpty() && (piece.kind == TagPiece::Kind::Ticked) == boxes)
                names.append(piece.field.toString());
        }
    }
    return names;
}

} // namespace

class TstTagText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttons()
    {
        QStringList buttons;
        for (const TagTemplate &tag : tagTemplates())
            buttons.append(tag.okButton.toString());
        QCOMPARE(
            buttons.join(u' '),
            u"cmdOK Command2 Command4 Command6 Command8 Command10 Command12 Command15 Command17 Command19 Command21 "
            "Command23 Command25 Command1 Command3 Command5"_s);
    }

    void text_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<TagFields>("fields");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, int page, const QHash<QString, QString> &texts, const QString &text,
                            const QSet<QString> &ticked = {}) {
            QTest::newRow(name) << page << TagFields{texts, ticked} << text;
        };
        const QString left = u"Left"_s;
        const QString top = u"Top"_s;
        row("anchor, empty", Anchor, {}, u"<a></a>"_s);
        row("anchor, a quote breaks the attribute", Anchor, {{u"txtHrefAnch"_s, u"a\"b<&ü😀"_s}},
            u"<a href=\"a\"b<&ü😀\"></a>"_s);
        row("anchor, a blank isn't empty", Anchor, {{u"txtIDAnch"_s, u" "_s}}, u"<a id=\" \"></a>"_s);
        row("anchor, a line break", Anchor, {{u"txtTitleAnch"_s, u"a\r\nb"_s}}, u"<a title=\"a\r\nb\"></a>"_s);
        row("body, empty", Body, {}, u"<body>"_s);
        row("check box, empty", Checkbox, {}, u"<input type=\"checkbox\">"_s);
        row("check box, ticked", Checkbox, {{u"txtCaptionChk"_s, u"Yes"_s}}, u"<input type=\"checkbox\" checked>Yes"_s,
            {u"Checked"_s});
        row("check box, the other's tick", Checkbox, {}, u"<input type=\"checkbox\">"_s, {u"chRa"_s});
        row("radio, ticked", Radio, {{u"txtNameRa"_s, u"n"_s}, {u"txtCaptionRa"_s, u"No"_s}},
            u"<input type=\"radio\" name=\"n\" checked>No"_s, {u"chRa"_s});
        row("division", Div, {{u"CoAlignDiv"_s, u"Justify"_s}}, u"<div align=\"Justify\"></div>"_s);
        row("font, empty", Font, {}, u"<font face=\"\"></font>"_s);
        row("rule, only a size", Rule, {{u"txtSizeHR"_s, u"2"_s}, {u"CoAlignHR"_s, left}},
            u" size=\"2\" align=\"Left\" >"_s);
        row("rule, only a size, flat", Rule, {{u"txtSizeHR"_s, u"2"_s}, {u"CoAlignHR"_s, left}},
            u" size=\"2\" align=\"Left\"  noshade>"_s, {u"Che"_s});
        row("rule, a width", Rule, {{u"txtWHR"_s, u"50%"_s}, {u"CoAlignHR"_s, left}},
            u"<hr width=\"50%\" align=\"Left\" >"_s);
        row("image, a map", Image, {{u"txtMapImg"_s, u"map"_s}}, u"<img usemap=\"#map\">"_s);
        row("selection, empty", Selection, {}, u"<select>\r\n<option value=1></option>\r\n</select>\r\n"_s);
        row("selection, a name", Selection, {{u"txtNameSel"_s, u"a"_s}},
            u"<select name=\"a\">\r\n<option value=1></option>\r\n</select>\r\n"_s);
        row("selection, several", Selection, {{u"txtNameSel"_s, u"a"_s}},
            u"<select name=\"a\"  multiple>\r\n<option value=1></option>\r\n</select>\r\n"_s, {u"Multy"_s});
        row("submit, empty", Submit, {}, u"<input type=\"submit\">"_s);
        row("text area, empty", TextArea, {}, u"<textarea></textarea>"_s);
        row("hidden, empty", Hidden, {}, u"<input type=\"hidden\">"_s);
        row("text, empty", Text, {}, u"<input type=\"text\">"_s);
        row("table", Table, {{u"CoAlignTable"_s, u"left"_s}}, u"<Table align=\"left\">"_s);
        row("cell", Cell, {{u"CoAlignTD"_s, left}, {u"CoValignTD"_s, top}}, u"<Td align=\"Left\" valign=\"Top\">"_s);
        row("row", Row, {{u"CoAlignTR"_s, left}, {u"CoValignTR"_s, top}}, u"<tr align=\"Left\" valign=\"Top\">"_s);
    }

    void text()
    {
        QFETCH(int, page);
        QFETCH(TagFields, fields);
        QCOMPARE(tagTemplates().size(), 16U);
        QTEST(built(page, fields), "text");
    }

    void likeThePlainlyWrittenTags()
    {
        const QStringList texts = names(false);
        const QStringList boxes = names(true);
        const QStringList values{{}, {}, u"a"_s, u"\""_s, u" "_s, u"<&>"_s, u"ü😀"_s, u"\r\n"_s, u"'"_s, u"%1"_s};
        QRandomGenerator random(42);
        for (int round = 0; round < 2000; ++round) {
            TagFields fields;
            for (const QString &name : texts)
                fields.texts.insert(name, values[random.bounded(values.size())]);
            for (const QString &name : boxes) {
                if (random.bounded(2) == 0)
                    fields.ticked.insert(name);
            }
            for (int page = Anchor; page <= Row; ++page)
                QCOMPARE(built(page, fields), Reference{fields}.tag(page));
        }
    }

    void colours_data()
    {
        QTest::addColumn<quint32>("colour");
        QTest::addColumn<QString>("text");
        QTest::newRow("black") << 0U << u"#000000"_s;
        QTest::newRow("white") << 0xffffffU << u"#FFFFFF"_s;
        QTest::newRow("red is the lowest byte") << 0x0000ffU << u"#FF0000"_s;
        QTest::newRow("green") << 0x00ab00U << u"#00AB00"_s;
        QTest::newRow("blue") << 0xfe0000U << u"#0000FE"_s;
        QTest::newRow("one digit") << 0x0a0b0cU << u"#0C0B0A"_s;
    }

    void colours()
    {
        QFETCH(quint32, colour);
        QTEST(HexColor(GetRGB(colour)), "text");
    }

    void theDivisorKeepsEveryBlue()
    {
        for (quint32 blue = 0; blue < 256; ++blue)
            QCOMPARE(GetRGB(blue << 16U | 0x1234U), (ColourParts{0x34, 0x12, blue}));
    }
};

ZEPHIRA_TEST(TstTagText)

#include "tst_tagtext.moc"
