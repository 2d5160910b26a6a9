// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the kept corpus through every target: replay CORPUS [TARGET]. Each input is followed by a few that are made from it
// in a fixed way: cut off, with a byte changed, with a piece repeated. The last line before an end by a signal names the
// input. Fails too if a target has no corpus, or a corpus no target.
#include "fuzz/fuzztarget.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;
using namespace zephira::fuzz;

namespace {

constexpr int changedInputs = 24;

QByteArray changed(QByteArray input, std::minstd_rand &random)
{
    const auto below = [&random](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned long>(limit));
    };
    if (input.isEmpty())
        return QByteArray(1, static_cast<char>(below(256)));
    const qsizetype at = below(input.size());
    switch (below(3)) {
    case 0:
        return input.first(at);
    case 1:
        input[at] = static_cast<char>(below(256));
        return input;
    default:
        return input.insert(below(input.size()), input.sliced(at, std::min<qsizetype>(16, input.size() - at)));
    }
}

void run(const FuzzTarget &target, const QByteArray &input)
{
    // A copy of exactly this size, so that a read behind its end is noticed.
    const std::vector<unsigned char> bytes(input.begin(), input.end());
    target.run(bytes.data(), bytes.size());
}

bool replay(const FuzzTarget &target, const QString &folder)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &info : files) {
        std::printf("%s %s", target.name.data(), qPrintable(info.fileName()));
        std::fflush(stdout);
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly)) {
            std::printf(" can't be read\n");
            return false;
        }
        const QByteArray input = file.readAll();
        run(target, input);
        std::minstd_rand random(static_cast<unsigned>(input.size()) + 1);
        for (int i = 0; i < changedInputs; ++i) {
            std::printf(" %d", i);
            std::fflush(stdout);
            run(target, changed(input, random));
        }
        std::printf("\n");
    }
    if (files.isEmpty())
        std::printf("%s has no corpus\n", target.name.data());
    return !files.isEmpty();
}

} // namespace

int main(int count, char **arguments)
{
    if (count < 2) {
        std::fprintf(stderr, "usage: replay CORPUS [TARGET]\n");
        return 2;
    }
    const QDir corpus(QString::fromLocal8Bit(arguments[1]));
    const std::string_view only = count > 2 ? arguments[2] : "";
    auto &targets = fuzzTargets();
    std::ranges::sort(targets, {}, &FuzzTarget::name);
    bool isRight = true;
    for (const FuzzTarget &target : targets) {
        if (only.empty() || only == target.name)
            isRight &= replay(target, corpus.filePath(QString::fromLatin1(target.name)));
    }
    for (const QString &folder : corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (std::ranges::find(targets, folder.toStdString(), &FuzzTarget::name) == targets.end()) {
            std::printf("%s has no target\n", qPrintable(folder));
            isRight = false;
        }
    }
    return isRight ? 0 : 1;
}
