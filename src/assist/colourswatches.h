// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/colourtext.h"

#include <QObject>
#include <QRect>

#include <optional>

class QPainter;

namespace zephira {

struct AppContext;
class CodeMax;
class TextHelpers;

/// Shows the colors that stand in the visible lines: a square in the blank before each, or a bar below it where there is no
/// blank. A click on it asks for another color and writes that in the notation that stood there. The text and its layout
/// stay as they are.
class ColourSwatches final : public QObject
{
    Q_OBJECT

public:
    /// The control owns the swatches; the context must outlive them.
    ColourSwatches(CodeMax &rt, const AppContext &context);

    /// Whether they are shown; kept for the user.
    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    /// Asks for another color in place of the one at the caret, if there is one.
    void changeAtCaret();

    /// A color in sight: its place in the text, in bytes, and where its swatch is painted.
    struct Swatch {
        qsizetype start = 0;
        qsizetype end = 0;
        QColor colour;
        QRect box;
    };
    /// Those of the lines that a part of the view shows.
    std::vector<Swatch> swatchesIn(const QRect &part) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::optional<Swatch> swatchAt(const QPoint &point) const;
    QRect boxOf(qsizetype start, qsizetype end) const;
    void change(const Swatch &swatch);
    void paint(QPainter &painter, const QRect &part) const;

    CodeMax &m_rt;
    const AppContext &m_context;
    bool m_pressed = false;
    bool m_isOn;
};

/// The commands.
void changeColour(TextHelpers &helpers);
void switchSwatches(TextHelpers &helpers);
bool showsSwatches(TextHelpers &helpers);

} // namespace zephira
