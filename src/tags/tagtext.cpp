// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/tagtext.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Kind = TagPiece::Kind;

constexpr TagPiece fixed(QStringView text)
{
    return {Kind::Fixed, text};
}

constexpr TagPiece optional(QStringView text, QStringView field)
{
    return {Kind::Optional, text, field};
}

constexpr TagPiece always(QStringView text, QStringView field)
{
    return {Kind::Always, text, field};
}

constexpr TagPiece ticked(QStringView text, QStringView box)
{
    return {Kind::Ticked, text, box};
}

constexpr TagPiece typed(QStringView field)
{
    return {Kind::Typed, {}, field};
}

constexpr TagPiece anchorPieces[] = {
    fixed(u"<a"),
    optional(u" href=\"", u"txtHrefAnch"),
    optional(u" target=\"", u"txtTargetAnch"),
    optional(u" name=\"", u"txtNameAnch"),
    optional(u" title=\"", u"txtTitleAnch"),
    optional(u" id=\"", u"txtIDAnch"),
    fixed(u"></a>"),
};

constexpr TagPiece bodyPieces[] = {
    fixed(u"<body"),
    optional(u" background=\"", u"txtBGImage"),
    optional(u" bgcolor=\"", u"txtBgColor"),
    optional(u" text=\"", u"txtTextColor"),
    optional(u" link=\"", u"txtLinkColor"),
    optional(u" vlink=\"", u"txtVisLink"),
    optional(u" alink=\"", u"txtActivLink"),
    fixed(u">"),
};

constexpr TagPiece checkboxPieces[] = {
    fixed(u"<input type=\"checkbox\""),
    optional(u" name=\"", u"txtNameChk"),
    optional(u" value=\"", u"txtValueChk"),
    ticked(u" checked", u"Checked"),
    fixed(u">"),
    typed(u"txtCaptionChk"),
};

constexpr TagPiece divPieces[] = {
    always(u"<div align=\"", u"CoAlignDiv"),
    fixed(u"></div>"),
};

constexpr TagPiece fontPieces[] = {
    always(u"<font face=\"", u"CoFonts"),
    optional(u" color=\"", u"txtColorFo"),
    optional(u" size=\"", u"txtSizeFo"),
    fixed(u"></font>"),
};

// The beginning of this tag belongs to the width field: without a width it is missing.
constexpr TagPiece rulePieces[] = {
    optional(u"<hr width=\"", u"txtWHR"),
    optional(u" size=\"", u"txtSizeHR"),
    optional(u" color=\"", u"txtColorHR"),
    always(u" align=\"", u"CoAlignHR"),
    fixed(u" "),
    ticked(u" noshade", u"Che"),
    fixed(u">"),
};

constexpr TagPiece imagePieces[] = {
    fixed(u"<img"),
    optional(u" src=\"", u"txtSourceImg"),
    optional(u" hspace=\"", u"txtHsImg"),
    optional(u" vspace=\"", u"txtVsImg"),
    optional(u" border=\"", u"txtBorderImg"),
    optional(u" align=\"", u"CoAlignImg"),
    optional(u" alt=\"", u"txtAltImg"),
    optional(u" usemap=\"#", u"txtMapImg"),
    fixed(u">"),
};

constexpr TagPiece radioPieces[] = {
    fixed(u"<input type=\"radio\""),
    optional(u" name=\"", u"txtNameRa"),
    optional(u" value=\"", u"txtValueRa"),
    ticked(u" checked", u"chRa"),
    fixed(u">"),
    typed(u"txtCaptionRa"),
};

constexpr TagPiece selectionPieces[] = {
    fixed(u"<select"),
    optional(u" name=\"", u"txtNameSel"),
    optional(u" size=\"", u"txtSizeSel"),
    ticked(u"  multiple", u"Multy"),
    fixed(u">\r\n<option value=1></option>\r\n</select>\r\n"),
};

constexpr TagPiece submitPieces[] = {
    fixed(u"<input type=\"submit\""),   optional(u" name=\"", u"txtNameSub"), optional(u" value=\"", u"txtCaptionSub"),
    optional(u" width=\"", u"txtWSub"), optional(u" height=\"", u"txtHSub"),  fixed(u">"),
};

constexpr TagPiece textAreaPieces[] = {
    fixed(u"<textarea"),
    optional(u" name=\"", u"txtNameArea"),
    optional(u" cols=\"", u"txtColsArea"),
    optional(u" rows=\"", u"txtRowsArea"),
    fixed(u"></textarea>"),
};

constexpr TagPiece hiddenPieces[] = {
    fixed(u"<input type=\"hidden\""),
    optional(u" name=\"", u"txtNameHid"),
    optional(u" value=\"", u"txtValueHid"),
    fixed(u">"),
};

constexpr TagPiece textPieces[] = {
    fixed(u"<input type=\"text\""),
    optional(u" name=\"", u"txtNavetextVis"),
    optional(u" value=\"", u"txtValueTxtVis"),
    optional(u" size=\"", u"txtSizetxtVis"),
    optional(u" maxlength=\"", u"txtMaxLenTxtVis"),
    fixed(u">"),
};

constexpr TagPiece tablePieces[] = {
    fixed(u"<Table"),
    optional(u" width=\"", u"txtWTable"),
    optional(u" border=\"", u"txtBordertable"),
    optional(u" cellspacing=\"", u"txtSpacingTable"),
    optional(u" cellpadding=\"", u"txtPaddingTable"),
    optional(u" align=\"", u"CoAlignTable"),
    optional(u" bgcolor=\"", u"txtBGTable"),
    optional(u" bordercolor=\"", u"txtBColTable"),
    fixed(u">"),
};

constexpr TagPiece cellPieces[] = {
    fixed(u"<Td"),
    optional(u" width=\"", u"txtWTD"),
    optional(u" height=\"", u"txtHTD"),
    optional(u" colspan=\"", u"txtCSTD"),
    optional(u" rowspan=\"", u"txtRSTD"),
    optional(u" bgcolor=\"", u"txtBgTD"),
    always(u" align=\"", u"CoAlignTD"),
    always(u" valign=\"", u"CoValignTD"),
    fixed(u">"),
};

constexpr TagPiece rowPieces[] = {
    always(u"<tr align=\"", u"CoAlignTR"),
    always(u" valign=\"", u"CoValignTR"),
    fixed(u">"),
};

constexpr TagTemplate templates[] = {
    {u"cmdOK", anchorPieces},     {u"Command2", bodyPieces},      {u"Command4", checkboxPieces},
    {u"Command6", divPieces},     {u"Command8", fontPieces},      {u"Command10", rulePieces},
    {u"Command12", imagePieces},  {u"Command15", radioPieces},    {u"Command17", selectionPieces},
    {u"Command19", submitPieces}, {u"Command21", textAreaPieces}, {u"Command23", hiddenPieces},
    {u"Command25", textPieces},   {u"Command1", tablePieces},     {u"Command3", cellPieces},
    {u"Command5", rowPieces},
};

QString pieceText(const TagPiece &piece, const TagFields &fields)
{
    const QString name = piece.field.toString();
    const QString value = fields.texts.value(name);
    switch (piece.kind) {
    case Kind::Fixed:
        return piece.text.toString();
    case Kind::Optional:
        return value.isEmpty() ? QString() : piece.text.toString() + value + u'"';
    case Kind::Always:
        return piece.text.toString() + value + u'"';
    case Kind::Ticked:
        return fields.ticked.contains(name) ? piece.text.toString() : QString();
    case Kind::Typed:
        return value;
    }
    return {};
}

} // namespace

std::span<const TagTemplate> tagTemplates()
{
    return templates;
}

QString tagText(const TagTemplate &tag, const TagFields &fields)
{
    QString text;
    for (const TagPiece &piece : tag.pieces)
        text += pieceText(piece, fields);
    return text;
}

ColourParts GetRGB(quint32 colour)
{
    // 65535 instead of 65536 makes no difference, because each part is a single byte.
    return {colour & 0xffU, (colour & 0xff00U) >> 8U, (colour & 0xff0000U) / 65535U};
}

QString HexColor(const ColourParts &parts)
{
    return u"#%1%2%3"_s.arg(parts.red, 2, 16, QChar(u'0'))
        .arg(parts.green, 2, 16, QChar(u'0'))
        .arg(parts.blue, 2, 16, QChar(u'0'))
        .toUpper();
}

} // namespace zephira
