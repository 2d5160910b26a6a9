// SPDX-License-Identifier: GPL-3.0-or-later
// spell_bench PAGE NAMES: the spelling check of a page up to its first question, with everything that it has to load, and
// the loading alone. The page's unknown words are replaced before, and one is added at its end, so that all of it is
// checked. NAMES is the list of names.
#include "core/usersettings.h"
#include "files/diskfilestore.h"
#include "tools/spelling/hunspellspeller.h"
#include "tools/spelling/spellcheck.h"

#include <QByteArray>
#include <QString>

#include <benchmark/benchmark.h>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The standard dictionary, since nothing else was chosen.
struct NoSettings final : UserSettings {
    QString read(const QString &, const QString &, const QString &, const QString &fallback) const override
    {
        return fallback;
    }
    bool write(const QString &, const QString &, const QString &, const QString &) override { return false; }
    bool remove(const QString &, const QString &, const QString &) override { return false; }
    QStringList keys(const QString &, const QString &) const override { return {}; }
};

/// A check for which nothing is loaded yet.
struct FreshCheck {
    explicit FreshCheck(const QString &names)
        : check({.files = files,
                 .settings = settings,
                 .loadSpeller = [this]() -> Result<Speller *> { return &speller; },
                 .findDictionaries = [] { return dictionariesIn(dictionaryFolders()); },
                 .customFile = u"/nowhere/custom.dic"_s,
                 .nameFiles = {names}})
    {}

    void load()
    {
        if (!check.lexicon().OpenLexicon() || !check.lexicon().takeNotes().isEmpty())
            qFatal("the dictionary or the list of names is missing");
    }

    DiskFileStore files;
    NoSettings settings;
    HunspellSpeller speller;
    SpellCheck check;
};

QString readPage(const char *file)
{
    const Result<QByteArray> bytes = DiskFileStore().read(QString::fromLocal8Bit(file));
    if (!bytes)
        qFatal("%s can't be read", file);
    return QString::fromUtf8(bytes.value());
}

QString withOneQuestion(const QString &page, const QString &names)
{
    FreshCheck all(names);
    all.load();
    for (all.check.start(page); all.check.isAsking();)
        all.check.changeAll(u"a"_s);
    return all.check.text() + u" zephirra"_s;
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (argc != 3)
        return 2;
    const QString names = QString::fromLocal8Bit(argv[2]);
    const QString page = withOneQuestion(readPage(argv[1]), names);
    const auto measure = [](const char *name, const std::function<void()> &run) {
        benchmark::RegisterBenchmark(name,
                                     [run](benchmark::State &state) {
                                         for (auto _ : state)
                                             run();
                                     })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(3);
    };
    measure("load", [&] { FreshCheck(names).load(); });
    measure("first question", [&] {
        FreshCheck fresh(names);
        fresh.load();
        fresh.check.start(page);
        if (fresh.check.word() != u"zephirra")
            qFatal("the page has another question");
    });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
