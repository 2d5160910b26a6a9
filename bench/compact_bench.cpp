// SPDX-License-Identifier: GPL-3.0-or-later
// compact_bench FILE: the main window with all its bars and panes shows the file, gets the command Compact, whose result
// is a single line, and then an undo and a redo; each until it is painted.
#include "app/windowbench.h"

#include <QApplication>
#include <QFile>

#include <benchmark/benchmark.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

enum class Step { Compact, Undo, Redo };

QString entryOf(Step step)
{
    switch (step) {
    case Step::Compact:
        return u"mnufcomp"_s;
    case Step::Undo:
        return u"undo"_s;
    case Step::Redo:
        return u"redo"_s;
    }
    return {};
}

void paint(frmmain &window)
{
    window.repaint();
    window.rt().viewport()->repaint();
    QApplication::processEvents();
}

void measure(benchmark::State &state, const QString &file, Step wanted)
{
    for (auto _ : state) {
        state.PauseTiming();
        WindowBench bench;
        frmmain &window = bench.start(file);
        window.show();
        paint(window);
        for (const Step step : {Step::Compact, Step::Undo, Step::Redo}) {
            const QString before = window.rt().text();
            if (step == wanted)
                state.ResumeTiming();
            bench.choose(entryOf(step));
            paint(window);
            if (step == wanted)
                state.PauseTiming();
            if (window.rt().text() == before)
                qFatal("%s did nothing", qPrintable(entryOf(step)));
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
    add("Compact", Step::Compact);
    add("undo", Step::Undo);
    add("redo", Step::Redo);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
