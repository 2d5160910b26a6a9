// SPDX-License-Identifier: GPL-3.0-or-later
// save_bench FILE FOLDER: writes the content of FILE to a file in FOLDER through the program's file store, and for
// comparison copies it there with cp followed by an fsync.
#include "files/diskfilestore.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zephira;

namespace {

bool copyAndSync(const char *from, const char *to)
{
    pid_t pid = 0;
    char *arguments[] = {const_cast<char *>("cp"), const_cast<char *>(from), const_cast<char *>(to), nullptr};
    int status = 1;
    if (posix_spawnp(&pid, "cp", nullptr, nullptr, arguments, environ) != 0 || waitpid(pid, &status, 0) != pid
        || status != 0)
        return false;
    const int file = open(to, O_RDONLY | O_CLOEXEC);
    return file >= 0 && fsync(file) == 0 && close(file) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (argc != 3)
        return 2;
    DiskFileStore store;
    const QString source = QFile::decodeName(argv[1]);
    const QString saved = QFile::decodeName(argv[2]) + QStringLiteral("/saved.html");
    const QByteArray copied = QByteArray(argv[2]) + "/copied.html";
    const Result<QByteArray> content = store.read(source);
    if (!content)
        return 1;

    benchmark::RegisterBenchmark("save",
                                 [&](benchmark::State &state) {
                                     for (auto _ : state) {
                                         if (!store.write(saved, QByteArrayView(content.value())))
                                             state.SkipWithError("the file was not written");
                                     }
                                 })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
    benchmark::RegisterBenchmark("copy",
                                 [&](benchmark::State &state) {
                                     for (auto _ : state) {
                                         if (!copyAndSync(argv[1], copied.constData()))
                                             state.SkipWithError("the file was not copied");
                                     }
                                 })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
