// SPDX-License-Identifier: GPL-3.0-or-later
// ftpwindow_bench FOLDER COUNT: the FTP window shows a server's folder of COUNT files, one of COUNT folders, and a
// local one of COUNT files, which is created below FOLDER if it doesn't exist; each compared with the bare listing. The
// server is scripted, so that its own time doesn't count.
#include "ftp/ftpbench.h"
#include "ftp/ftpdesk.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTreeWidget>

#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <dirent.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QString serverFiles = u"/files/*.*"_s;
const QString serverFolders = u"/*.*"_s;

/// The real window with the scripted server, shown on the screen.
struct ShownWindow {
    ShownWindow()
    {
        ftp.connectSession();
        window.reset(ftp.catalogue.make(u"frmmainftp"_s, ftp.context, nullptr));
        window->show();
        desk().addRemoteRoot();
        QApplication::processEvents();
    }

    FtpDesk &desk() const { return dynamic_cast<FtpDesk &>(*window); }
    QAbstractItemView &view(const QString &name) const { return *window->findChild<QAbstractItemView *>(name); }
    void list(const QString &searchPath) const
    {
        ftp.client->session.ftpSearchPath = searchPath;
        desk().List();
    }

    FtpBench ftp;
    std::unique_ptr<QWidget> window;
};

QString nameOf(int number)
{
    return u"a page with a name %1.html"_s.arg(number);
}

void makeFiles(const QString &folder, int count)
{
    QDir().mkpath(folder);
    for (int i = 0; i < count; ++i) {
        QFile file(folder + u'/' + nameOf(i));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("can't write %s", qPrintable(file.fileName()));
    }
}

/// The cost of a listing alone.
void askServer(benchmark::State &state, ShownWindow &shown, const QString &searchPath)
{
    InternetOperations &operations = shown.ftp.operations;
    for (auto _ : state) {
        FindData entry;
        std::vector<FindData> entries;
        const InternetHandle find = operations.FtpFindFirstFileA(902, searchPath, entry, INTERNET_FLAG_RELOAD, 0);
        for (bool found = find != 0; found; found = operations.InternetFindNextFileA(find, entry))
            entries.push_back(entry);
        operations.InternetCloseHandle(find);
        benchmark::DoNotOptimize(entries);
        shown.ftp.operations.log.clear();
    }
}

void listLocal(benchmark::State &state, const QString &folder)
{
    for (auto _ : state) {
        std::vector<std::string> names;
        DIR *entries = opendir(QFile::encodeName(folder).constData());
        while (const dirent *entry = readdir(entries))
            names.emplace_back(entry->d_name);
        closedir(entries);
        benchmark::DoNotOptimize(names);
    }
}

/// Runs `fill` and waits until the view that it fills is painted; `empty` clears the view again.
template<typename Fill, typename Empty>
void show(benchmark::State &state, QAbstractItemView &view, int count, Fill fill, Empty empty)
{
    for (auto _ : state) {
        fill();
        view.viewport()->repaint();
        QApplication::processEvents();
        const QModelIndex root = view.objectName() == u"TView1"_s ? view.model()->index(0, 0) : QModelIndex();
        if (view.model()->rowCount(root) != count)
            state.SkipWithError("the entries don't show");
        state.PauseTiming();
        empty();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const int count = std::atoi(argv[2]);
    const QString local = QFile::decodeName(argv[1]) + u"/files"_s;
    makeFiles(local, count);
    ShownWindow shown;
    constexpr quint64 size = 4096;
    for (int i = 0; i < count; ++i) {
        shown.ftp.operations.folders[serverFiles].push_back(foundFile(nameOf(i), size));
        shown.ftp.operations.folders[serverFolders].push_back(foundFolder(nameOf(i)));
    }

    const auto add = [](const char *name, auto run) {
        benchmark::RegisterBenchmark(name, run)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(3);
    };
    add("list server files", [&](benchmark::State &state) { askServer(state, shown, serverFiles); });
    add("show server files", [&](benchmark::State &state) {
        show(
            state, shown.view(u"ListView2"_s), count, [&] { shown.list(serverFiles); },
            [&] { shown.list(u"/empty/*.*"_s); });
    });
    add("list server folders", [&](benchmark::State &state) { askServer(state, shown, serverFolders); });
    add("show server folders", [&](benchmark::State &state) {
        show(
            state, shown.view(u"TView1"_s), count, [&] { shown.list(serverFolders); },
            [&] {
                shown.desk().clearRemoteTree();
                shown.desk().addRemoteRoot();
            });
    });
    add("list local files", [&](benchmark::State &state) { listLocal(state, local); });
    add("show local files", [&](benchmark::State &state) {
        show(
            state, shown.view(u"ListView1"_s), count, [&] { shown.window->setProperty("LocalFolder", local); },
            [&] { shown.window->setProperty("LocalFolder", shown.ftp.path(u"."_s)); });
    });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
