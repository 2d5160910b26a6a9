// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/live/livebench.h"

#include "support/diskfiles.h"
#include "support/eventwait.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

LiveBench::LiveBench()
{
    LivePageEvents events;
    events.shown = [this] { ++shown; };
    events.lost = [this] { ++lost; };
    events.clicked = [this](qsizetype place, bool isUsed) { clicks.emplace_back(place, isUsed); };
    events.scrolled = [this](qsizetype place, bool isAtEnd) { scrolls.emplace_back(place, isAtEnd); };
    events.sheetsChanged = [this](const QStringList &now) { sheets = now; };
    events.remoteRefused = [this](const QStringList &hosts) { refused = hosts; };
    live.setEvents(std::move(events));
    live.resize(600, 400);
    live.QWidget::show();
}

QString LiveBench::write(const QString &name, const QByteArray &content) const
{
    return putFile(folder.path() + u'/' + name, content);
}

bool LiveBench::show(const QString &html)
{
    const int before = shown;
    live.show(html, file);
    return waitUntil([&] { return shown > before; }, patience);
}

QString LiveBench::ask(const QString &script, quint32 world) const
{
    std::optional<QString> answer;
    live.findChild<QWebEngineView *>()->page()->runJavaScript(
        script, world, [&](const QVariant &value) { answer = value.toString(); });
    waitUntil([&] { return answer.has_value(); }, patience);
    return answer.value_or(u"(no answer)"_s);
}

QWidget &LiveBench::keyboard() const
{
    return *live.findChild<QWebEngineView *>()->focusProxy();
}

void LiveBench::click(const QString &selector, Qt::MouseButton button) const
{
    const QStringList place =
        ask(u"(() => { const box = document.querySelector('%1').getBoundingClientRect();"
            "return [box.left + box.width / 2, box.top + box.height / 2].join(' '); })()"_s.arg(selector))
            .split(u' ');
    QTest::mouseClick(&keyboard(), button, {},
                      {static_cast<int>(place.value(0).toDouble()), static_cast<int>(place.value(1).toDouble())});
}

} // namespace zephira
