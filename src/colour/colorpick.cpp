// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colorpick.h"

#include "colour/selectedcolour.h"
#include "core/clipboard.h"
#include "core/editingcontrol.h"
#include "core/prompts.h"
#include "ui_colorpick.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The longest text of a colour; a longer selection isn't even read.
constexpr int longestColour = 64;

constexpr std::pair<Notation, int> boxes[] = {
    {Notation::Hex, 0}, {Notation::Hex, 1}, {Notation::Hex, 2},  {Notation::Rgb, 0},
    {Notation::Rgb, 1}, {Notation::Rgb, 2}, {Notation::Long, 0},
};

std::optional<quint32> selectedColour(const EditingControl &editor)
{
    return editor.selLength() <= longestColour ? colourOfText(editor.selText()) : std::nullopt;
}

} // namespace

ColorPick::ColorPick(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::ColorPick>()), m_context(context), m_notations(*this)
{
    m_ui->setupUi(this);
    for (const auto &[notation, channel] : boxes)
        connect(box(notation, channel), &QLineEdit::textChanged, this,
                [this, notation = notation, channel = channel] { boxChanged(notation, channel); });
    const std::pair<QPushButton *, Notation> copies[] = {
        {m_ui->cmdCopyHex, Notation::Hex}, {m_ui->cmdCopyRgb, Notation::Rgb}, {m_ui->cmdCopyLong, Notation::Long}};
    for (const auto &[button, notation] : copies)
        connect(button, &QPushButton::clicked, this,
                [this, notation = notation] { m_context.clipboard.setText(result(notation)->text()); });
    connect(m_ui->Command_colorpicker, &QPushButton::clicked, this, &ColorPick::choose);

    const std::optional<quint32> selected = selectedColour(m_context.editor);
    m_ui->cmdFromSelection->setEnabled(selected.has_value());
    connect(m_ui->cmdFromSelection, &QPushButton::clicked, this,
            [this, colour = selected.value_or(0)] { takeColour(colour); });

    // The layout fills in only the hexadecimal channels.
    for (int channel = 0; channel < 3; ++channel)
        m_notations.changed(Notation::Hex, channel);
}

ColorPick::~ColorPick() = default;

QString ColorPick::text(Notation notation, int channel) const
{
    return box(notation, channel)->text();
}

void ColorPick::setText(Notation notation, int channel, const QString &text)
{
    box(notation, channel)->setText(text);
}

void ColorPick::setMarked(Notation notation, int channel, bool marked)
{
    box(notation, channel)->setMarked(marked);
    const bool any =
        std::ranges::any_of(boxes, [this](const auto &place) { return box(place.first, place.second)->isMarked(); });
    m_ui->lblProblem->setText(any ? tr("A marked box holds no color value.") : QString());
}

void ColorPick::setResult(Notation notation, const QString &text)
{
    result(notation)->setText(text);
}

void ColorPick::showColour(quint32 colour)
{
    const Channels channels = channelsOf(colour);
    m_colour = colourOf(channels);
    m_ui->View->setFillColour({channels[0], channels[1], channels[2]});
}

SelectingBox *ColorPick::box(Notation notation, int channel) const
{
    SelectingBox *const hex[] = {m_ui->HEXTEXT_0, m_ui->HEXTEXT_1, m_ui->HEXTEXT_2};
    SelectingBox *const rgb[] = {m_ui->RGBTEXT_0, m_ui->RGBTEXT_1, m_ui->RGBTEXT_2};
    if (notation == Notation::Long)
        return m_ui->LONGTEXT;
    return notation == Notation::Hex ? hex[channel] : rgb[channel];
}

SelectingBox *ColorPick::result(Notation notation) const
{
    if (notation == Notation::Long)
        return m_ui->TEXTLONG;
    return notation == Notation::Hex ? m_ui->TEXTHEX : m_ui->TEXTRGB;
}

void ColorPick::boxChanged(Notation notation, int channel)
{
    if (!m_notations.changed(notation, channel) || notation != Notation::Hex)
        return;
    // When a channel is complete, the focus moves to the next box.
    const SelectingBox *typed = box(notation, channel);
    if (typed->hasFocus() && typed->text().size() == typed->maxLength()
        && typed->cursorPosition() == typed->maxLength())
        focusNextChild();
}

void ColorPick::choose()
{
    const std::optional<quint32> colour = m_context.prompts.colour(m_colour);
    if (!colour)
        return;
    m_ui->LONGTEXT->setText(QString::number(*colour));
    // The number may already be known while another box is only half filled in.
    m_notations.changed(Notation::Long, 0);
}

void ColorPick::takeColour(quint32 colour)
{
    const Channels channels = channelsOf(colour);
    m_ui->LONGTEXT->setText(QString::number(colour));
    m_notations.changed(Notation::Long, 0);
    for (std::size_t i = 0; i < channels.size(); ++i)
        box(Notation::Hex, static_cast<int>(i))
            ->setText(QString::number(channels[i], 16).toUpper().rightJustified(2, u'0'));
}

} // namespace zephira
