// SPDX-License-Identifier: GPL-3.0-or-later
// compact_bench FILE: the code view shows the file, gets the result of Compact, which is a single line, and then an
// undo and a redo; each until it is painted.
#include "bench/shownpage.h"
#include "tools/sourceformatter.h"

#include <QApplication>
#include <QFile>

#include <benchmark/benchmark.h>

using namespace zephira;

namespace {

enum class Step { Compact, Undo, Redo };

void measure(benchmark::State &state, const QString &file, Step wanted)
{
    for (auto _ : state) {
        state.PauseTiming();
        ShownPage page;
        page.open(file);
        const auto take = [&](Step step) {
            if (step == wanted)
                state.ResumeTiming();
            switch (step) {
            case Step::Compact:
                page.editor.setText(Compact(page.editor.text()));
                break;
            case Step::Undo:
                page.editor.undo();
                break;
            case Step::Redo:
                page.editor.redo();
                break;
            }
            page.paint();
            if (step == wanted)
                state.PauseTiming();
        };
        for (const Step step : {Step::Compact, Step::Undo, Step::Redo})
            take(step);
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
    add("Compact", Step::Compact);
    add("undo", Step::Undo);
    add("redo", Step::Redo);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
