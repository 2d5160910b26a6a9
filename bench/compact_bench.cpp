// SPDX-License-Identifier: GPL-3.0-or-later
// compact_bench FILE: the code view shows the file, gets the result of Compact, which is a single line, and then an
// undo and a redo; each until it is painted.
#include "bench/noprompts.h"
#include "core/clock.h"
#include "editor/codemax.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "tools/sourceformatter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// A code view on the screen with a page in it.
struct ShownPage {
    explicit ShownPage(const QString &file)
    {
        editor.resize(1000, 700);
        editor.setLanguage(u"HTML"_s);
        if (!editor.openFile(file))
            qFatal("can't read %s", qPrintable(file));
        editor.show();
        paint();
    }

    void paint()
    {
        editor.viewport()->repaint();
        QApplication::processEvents();
    }

    NoPrompts prompts;
    DiskFileStore files;
    SystemClock clock;
    QTemporaryDir folder;
    RecoveryCopies recovery{folder.path(), files, clock};
    CodeMax editor{{files, recovery, prompts}};
};

enum class Step { Compact, Undo, Redo };

void measure(benchmark::State &state, const QString &file, Step wanted)
{
    for (auto _ : state) {
        state.PauseTiming();
        ShownPage page(file);
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
