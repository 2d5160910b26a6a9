// SPDX-License-Identifier: GPL-3.0-or-later
// folder_bench FOLDER COUNT: the file manager shows a folder of COUNT files, and opens one of COUNT folders, both until
// painted; each compared with the bare listing of the names. The folders are created below FOLDER if they don't exist.
#include "bench/noprompts.h"
#include "panes/filelist.h"
#include "panes/filepane.h"
#include "panes/foldertree.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <dirent.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// Creates `count` files in the folder "files" and as many folders in the folder "folders".
void makeInputs(const QString &place, int count)
{
    QDir().mkpath(place + u"/files"_s);
    for (int i = 0; i < count; ++i) {
        const QString name = u"a page with a name %1.html"_s.arg(i);
        QDir().mkpath(place + u"/folders/"_s + name);
        QFile file(place + u"/files/"_s + name);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("can't write %s", qPrintable(file.fileName()));
    }
}

void list(benchmark::State &state, const QString &folder)
{
    for (auto _ : state) {
        std::vector<std::string> names;
        DIR *entries = opendir(QFile::encodeName(folder).constData());
        if (!entries) {
            state.SkipWithError("the folder can't be read");
            return;
        }
        while (const dirent *entry = readdir(entries))
            names.emplace_back(entry->d_name);
        closedir(entries);
        benchmark::DoNotOptimize(names);
    }
}

/// A pane on the screen that shows nothing yet.
struct ShownPane {
    ShownPane()
    {
        pane.resize(260, 700);
        pane.fileList().setPattern(u"*.htm;*.html;*.css;*.js;*.txt"_s);
        pane.show();
        QApplication::processEvents();
    }

    NoPrompts prompts;
    FilePane pane{prompts};
};

void showFiles(benchmark::State &state, const QString &folder, int count)
{
    ShownPane shown;
    auto *list = shown.pane.findChild<FileList *>(u"ListFiles"_s);
    for (auto _ : state) {
        shown.pane.showFolder(folder);
        list->repaint();
        QApplication::processEvents();
        if (list->count() != count)
            state.SkipWithError("the files don't show");
        state.PauseTiming();
        shown.pane.showFolder(QDir::tempPath());
        state.ResumeTiming();
    }
}

void showFolders(benchmark::State &state, const QString &folder, int count)
{
    ShownPane shown;
    auto *tree = shown.pane.findChild<FolderTree *>(u"DIR"_s);
    for (auto _ : state) {
        tree->setRootFolder(folder);
        tree->repaint();
        QApplication::processEvents();
        if (tree->topLevelItem(0)->childCount() != count)
            state.SkipWithError("the folders don't show");
        state.PauseTiming();
        tree->setRootFolder({});
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const int count = std::atoi(argv[2]);
    const QString place = QFile::decodeName(argv[1]);
    makeInputs(place, count);
    const QString files = place + u"/files"_s;
    const QString folders = place + u"/folders"_s;

    const auto add = [](const char *name, auto run) {
        benchmark::RegisterBenchmark(name, run)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(5);
    };
    add("list files", [&](benchmark::State &state) { list(state, files); });
    add("show files", [&](benchmark::State &state) { showFiles(state, files, count); });
    add("list folders", [&](benchmark::State &state) { list(state, folders); });
    add("show folders", [&](benchmark::State &state) { showFolders(state, folders, count); });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
