// SPDX-License-Identifier: GPL-3.0-or-later
// live_bench: the live page follows a change in the middle of a page of 50 kB: the time from the text to its picture.
#include "files/diskfilestore.h"
#include "web/live/livepagewidget.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <QWebEngineView>

#include <chrono>

#include <benchmark/benchmark.h>
#include <unistd.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

constexpr int size = 50'000;
constexpr int pause = 2;

void rest(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// A page whose ground has a colour, with a letter in its middle.
QString pageWith(const QString &colour, QChar letter)
{
    const QString row = u"<div class=row><h2>Title</h2><p>Some text with <b>bold</b> words.</p></div>\r\n"_s;
    const QString half = row.repeated(size / 2 / row.size());
    return u"<!DOCTYPE html><html><body style='background: %1'>"_s.arg(colour) + half + letter + half
        + u"</body></html>"_s;
}

bool hasGround(LivePageWidget &live, QRgb colour)
{
    return live.view().grab().toImage().pixel(2, 2) == colour;
}

void update(benchmark::State &state, LivePageWidget &live)
{
    const std::pair<QString, QRgb> grounds[] = {{u"#ffeeee"_s, 0xffffeeee}, {u"#eeffee"_s, 0xffeeffee}};
    char16_t letter = u'a';
    const auto show = [&](const std::pair<QString, QRgb> &ground) {
        live.show(pageWith(ground.first, letter++), {});
        while (!hasGround(live, ground.second))
            rest(pause);
    };
    show(grounds[0]);
    rest(500); // The first picture isn't what is measured, nor what follows it.
    int turn = 0;
    for (auto _ : state) {
        ++turn;
        const auto begin = std::chrono::steady_clock::now();
        show(grounds[turn % 2]);
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
        rest(50);
    }
}

} // namespace

int main(int argc, char **argv)
{
    // As in the program: the engine paints in software, and its sandbox is disabled only where it has to be.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_QUICK_BACKEND", "software");
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    const DiskFileStore files;
    LivePageWidget live(files);
    live.resize(600, 600);
    live.QWidget::show();
    benchmark::RegisterBenchmark("update", [&](benchmark::State &state) { update(state, live); })
        ->Iterations(20)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
