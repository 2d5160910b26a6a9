// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/colourswatches.h"

#include "assist/texthelpers.h"
#include "core/appcontext.h"
#include "core/prompts.h"
#include "core/usersettings.h"
#include "editor/codemax.h"
#include "widgets/qtvalues.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

constexpr int barHeight = 3;
constexpr int reach = 1;

} // namespace

ColourSwatches::ColourSwatches(CodeMax &rt, const AppContext &context)
    : QObject(&rt)
    , m_rt(rt)
    , m_context(context)
    , m_isOn(wholeNumber(context.settings, UserSetting::ColourSwatches) != 0)
{
    rt.viewport()->installEventFilter(this);
    rt.paintOver = [this](QPainter &painter, const QRect &part) { paint(painter, part); };
    // A picture without colors stays as it is.
    if (!swatchesIn(rt.viewport()->rect()).empty())
        rt.viewport()->update();
}

void ColourSwatches::setOn(bool on)
{
    m_isOn = on;
    m_pressed = false;
    writeSwitch(m_context.settings, UserSetting::ColourSwatches, on);
    m_rt.viewport()->update();
}

void ColourSwatches::paint(QPainter &painter, const QRect &part) const
{
    const std::vector<Swatch> swatches = swatchesIn(part);
    for (const Swatch &swatch : swatches) {
        painter.fillRect(swatch.box, Qt::white); // behind what is transparent
        painter.fillRect(swatch.box, swatch.colour);
        painter.setPen(Qt::gray);
        painter.drawRect(swatch.box.adjusted(0, 0, -1, -1));
    }
}

QRect ColourSwatches::boxOf(qsizetype start, qsizetype end) const
{
    const SciEngine &engine = m_rt.engine();
    const auto x = [&](qsizetype position) {
        return static_cast<int>(engine.send(Sci::SCI_POINTXFROMPOSITION, 0, position));
    };
    const auto y = [&](qsizetype position) {
        return static_cast<int>(engine.send(Sci::SCI_POINTYFROMPOSITION, 0, position));
    };
    const int height = static_cast<int>(engine.send(Sci::SCI_TEXTHEIGHT, 0));
    const int top = y(start);
    const bool hasBlank = start > engine.lineStart(engine.lineOf(start))
        && engine.bytes(start - 1, start).front() == ' ' && y(start - 1) == top;
    if (hasBlank) {
        const int left = x(start - 1);
        const int side = std::min(x(start) - left, height) - 1;
        return {left, top + (height - side) / 2, side, side};
    }
    // A value that is wrapped has its bar below the first part.
    const int right = y(end) == top ? x(end) : x(start) + height;
    return {x(start), top + height - barHeight, right - x(start), barHeight};
}

std::vector<ColourSwatches::Swatch> ColourSwatches::swatchesIn(const QRect &part) const
{
    std::vector<Swatch> swatches;
    if (!m_isOn)
        return swatches;
    const SciEngine &engine = m_rt.engine();
    const qsizetype height = std::max<qsizetype>(engine.send(Sci::SCI_TEXTHEIGHT, 0), 1);
    const qsizetype first = engine.send(Sci::SCI_GETFIRSTVISIBLELINE);
    const qsizetype top = engine.send(Sci::SCI_DOCLINEFROMVISIBLE, first + std::max(part.top(), 0) / height);
    const qsizetype bottom = engine.send(Sci::SCI_DOCLINEFROMVISIBLE, first + std::max(part.bottom(), 0) / height);
    const int textLeft = static_cast<int>(engine.send(Sci::SCI_GETMARGINLEFT))
        + static_cast<int>(engine.send(Sci::SCI_GETMARGINWIDTHN, 0) + engine.send(Sci::SCI_GETMARGINWIDTHN, 1)
                           + engine.send(Sci::SCI_GETMARGINWIDTHN, 2) + engine.send(Sci::SCI_GETMARGINWIDTHN, 3)
                           + engine.send(Sci::SCI_GETMARGINWIDTHN, 4));
    for (qsizetype line = top; line <= std::min(bottom, engine.lineCount() - 1); ++line) {
        if (!engine.send(Sci::SCI_GETLINEVISIBLE, line))
            continue;
        const qsizetype start = engine.lineStart(line);
        for (const ColourText &found : coloursIn(engine.bytes(start, engine.lineEnd(line)))) {
            const QRect box = boxOf(start + found.start, start + found.end);
            if (box.left() >= textLeft)
                swatches.push_back({start + found.start, start + found.end, found.colour, box});
        }
    }
    return swatches;
}

std::optional<ColourSwatches::Swatch> ColourSwatches::swatchAt(const QPoint &point) const
{
    const auto swatches = swatchesIn(QRect(0, point.y(), 1, 1));
    const auto hit = std::ranges::find_if(swatches, [&](const Swatch &swatch) {
        return swatch.box.adjusted(-reach, -reach, reach, reach).contains(point);
    });
    return hit == swatches.end() ? std::nullopt : std::optional(*hit);
}

bool ColourSwatches::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        m_pressed = mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::NoModifier
            && swatchAt(mouse->position().toPoint());
        if (m_pressed)
            return true;
        break;
    }
    case QEvent::MouseButtonRelease:
        if (m_pressed) {
            m_pressed = false;
            if (const auto swatch = swatchAt(static_cast<QMouseEvent *>(event)->position().toPoint()))
                change(*swatch);
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ColourSwatches::change(const Swatch &swatch)
{
    if (m_rt.isReadOnly())
        return;
    const quint64 version = m_rt.textVersion();
    const std::optional<quint32> chosen = m_context.prompts.colour(toColourNumber(swatch.colour));
    if (!chosen || m_rt.textVersion() != version)
        return;
    const QByteArray old = m_rt.engine().bytes(swatch.start, swatch.end).toByteArray();
    const QByteArray text = rewritten(old, toQColor(*chosen));
    if (*chosen != toColourNumber(swatch.colour) && text != old)
        m_rt.perform([&] { m_rt.replaceBytes(swatch.start, swatch.end, text); });
}

void ColourSwatches::changeAtCaret()
{
    const SciEngine &engine = m_rt.engine();
    const qsizetype caret = engine.caret();
    const qsizetype start = engine.lineStart(engine.lineOf(caret));
    for (const ColourText &found : coloursIn(engine.bytes(start, engine.lineEnd(engine.lineOf(caret))))) {
        if (start + found.start <= caret && caret <= start + found.end) {
            change({start + found.start, start + found.end, found.colour, {}});
            return;
        }
    }
}

void changeColour(TextHelpers &helpers)
{
    helpers.swatches().changeAtCaret();
}

void switchSwatches(TextHelpers &helpers)
{
    helpers.swatches().setOn(!helpers.swatches().isOn());
}

bool showsSwatches(TextHelpers &helpers)
{
    return helpers.swatches().isOn();
}

} // namespace zephira
