// SPDX-License-Identifier: GPL-3.0-or-later
// longline_bench FILE: a file that is one long line is opened in the code view, scrolled to the side, and walked to its end;
// each until it is painted.
#include "bench/shownpage.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>

#include <benchmark/benchmark.h>

using namespace zephira;

namespace {

using Sci = QsciScintillaBase;

enum class Step { Open, Scroll, End, Key };

constexpr int scrolledColumns = 40;

void take(ShownPage &page, const QString &file, Step step)
{
    const SciEngine &engine = page.editor.engine();
    switch (step) {
    case Step::Open:
        page.open(file);
        return;
    case Step::Scroll:
        engine.send(Sci::SCI_LINESCROLL, scrolledColumns);
        break;
    case Step::End:
        engine.send(Sci::SCI_DOCUMENTEND);
        break;
    case Step::Key: {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QApplication::sendEvent(&page.editor, &key);
        break;
    }
    }
    page.paint();
}

void measure(benchmark::State &state, const QString &file, Step wanted)
{
    for (auto _ : state) {
        state.PauseTiming();
        ShownPage page;
        for (const Step step : {Step::Open, Step::Scroll, Step::End, Step::Key}) {
            if (step == wanted)
                state.ResumeTiming();
            take(page, file, step);
            if (step == wanted)
                state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const QString file = QFile::decodeName(argv[1]);
    const auto add = [&](const char *name, Step step) {
        benchmark::RegisterBenchmark(name, [&file, step](benchmark::State &state) { measure(state, file, step); })
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1);
    };
    add("open", Step::Open);
    add("scroll", Step::Scroll);
    add("end", Step::End);
    add("key", Step::Key);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
