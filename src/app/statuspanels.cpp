// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/statuspanels.h"

#include "core/clock.h"

#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>

#include <optional>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct StatusPanel {
    const char16_t *text; ///< shown until there is a value
    const char16_t *name; ///< for assistive technology
    int stretch = 0;
    const char16_t *widest = u""; ///< reserves the panel's width for changing values, where there is room
};

constexpr std::array<StatusPanel, 10> statusPanels = {{
    {u"Line:", u"Line"},
    {u"1", u"Current line", 0, u"0000000"},
    {u"Total Lines:", u"Total lines"},
    {u"1", u"Line count", 0, u"0000000"},
    {u"CAPS", u"Caps lock"},
    {u"NUM", u"Num lock"},
    {u"INS", u"Insert mode"},
    {u"", u"Time", 0, u"00:00 PM"},
    {u"Charecter Count", u"Character count", 0, u"Charecter Count"},
    {u"File Name", u"File name", 1},
}};

constexpr int noticeMilliseconds = 10000;

/// A label whose text is elided in the middle when painted; text() stays complete.
class PathLabel final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRect room = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
        style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width()), foregroundRole());
    }
};

/// A label that keeps room for its widest value. Where the window is narrow, it makes do with half of that, whatever it
/// shows, so that no value widens the window.
class ValueLabel final : public QLabel
{
public:
    ValueLabel(const QString &widest, QWidget *parent) : QLabel(parent), m_widest(widest) {}

    QSize sizeHint() const override
    {
        const QSize natural = QLabel::sizeHint();
        return {qMax(natural.width(), room()), natural.height()};
    }
    QSize minimumSizeHint() const override { return {room() / 2, QLabel::minimumSizeHint().height()}; }

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
            m_advance.reset();
        QLabel::changeEvent(event);
    }

private:
    int room() const
    {
        // The status bar asks dozens of times while it is built, and measuring takes as long as everything else there.
        if (!m_advance)
            m_advance = fontMetrics().horizontalAdvance(m_widest);
        return *m_advance + 2 * margin();
    }

    QString m_widest;
    mutable std::optional<int> m_advance;
};

QLabel *makeLabel(const StatusPanel &row, QWidget *parent)
{
    if (row.stretch)
        return new PathLabel(parent);
    if (row.widest[0])
        return new ValueLabel(QStringView(row.widest).toString(), parent);
    return new QLabel(parent);
}

} // namespace

StatusPanels::StatusPanels(QStatusBar &bar, const Clock &clock) : QObject(&bar), m_bar(bar), m_clock(clock)
{
    for (std::size_t i = 0; i < statusPanels.size(); ++i) {
        const StatusPanel &row = statusPanels[i];
        QLabel *label = makeLabel(row, &bar);
        label->setObjectName(u"stBar_%1"_s.arg(i + 1));
        label->setAccessibleName(QStringView(row.name).toString());
        label->setTextFormat(Qt::PlainText);
        label->setMargin(2);
        if (row.stretch)
            label->setSizePolicy(QSizePolicy::Ignored,
                                 QSizePolicy::Preferred); // A long path is cut instead of widening the window.
        bar.addWidget(label, row.stretch);
        m_panels[i] = label;
    }
    // Not before all are there: for each that is added, the bar measures all the texts that it has.
    for (std::size_t i = 0; i < statusPanels.size(); ++i)
        m_panels[i]->setText(QStringView(statusPanels[i].text).toString());
    connect(&m_minute, &QTimer::timeout, this, &StatusPanels::showTime);
    m_minute.setSingleShot(true);
    m_minute.setTimerType(Qt::VeryCoarseTimer);
    showTime();
}

QString StatusPanels::text(int panel) const
{
    return m_panels[static_cast<std::size_t>(panel - 1)]->text();
}

void StatusPanels::setText(int panel, const QString &text)
{
    QLabel *label = m_panels[static_cast<std::size_t>(panel - 1)];
    label->setText(text);
    if (panel == FileName)
        label->setToolTip(text);
}

void StatusPanels::setLit(int panel, bool lit)
{
    m_panels[static_cast<std::size_t>(panel - 1)]->setEnabled(lit);
}

void StatusPanels::setUnsaved(bool unsaved)
{
    QLabel *label = m_panels[FileName - 1];
    QFont font = label->font();
    font.setBold(unsaved);
    label->setFont(font);
    label->setAccessibleDescription(unsaved ? u"The text has unsaved changes"_s : QString());
}

void StatusPanels::notice(const QString &sentence)
{
    m_bar.showMessage(sentence, noticeMilliseconds);
}

void StatusPanels::showTime()
{
    // The panel is updated once a minute, so seconds would be wrong.
    const QLocale locale = QLocale::system();
    const QDateTime now = m_clock.now();
    setText(Time, locale.toString(now.time(), locale.timeFormat(QLocale::ShortFormat).remove(u":ss"_s)));
    m_minute.start((60 - now.time().second()) * 1000);
}

} // namespace zephira
