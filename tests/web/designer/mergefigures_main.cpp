// SPDX-License-Identifier: GPL-3.0-or-later
// mergefigures [--pages N] [--random N] [PAGE...]: what edits in the designer do to the sources of N real pages, or of
// those named, and whether N edits at random are written right, half of them on damaged pages. Exit status 1 tells of a
// fault.
#include "support/installedpages.h"
#include "web/designer/mergefigures.h"
#include "web/designer/pageedits.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void print(const QString &text)
{
    std::fputs(qPrintable(text + u'\n'), stdout);
    std::fflush(stdout);
}

bool measurePages(DesignerBench &bench, const QStringList &pages)
{
    const MergeFigures figures = measureMerges(bench, pages);
    print(figures.table());
    for (const QString &each : figures.wide)
        print(each);
    for (const QString &each : figures.faults)
        print(each);
    return figures.faults.isEmpty();
}

bool editRandomly(DesignerBench &bench, int count)
{
    QRandomGenerator random(5);
    int whole = 0;
    int faults = 0;
    for (int round = 0; round < count; ++round) {
        constexpr int damages[] = {0, 3, 0, 10};
        const RandomEdit outcome =
            editAtRandom(bench, randomPage(random, damages[round % 4]), random, 1 + random.bounded(10));
        whole += outcome.isWhole;
        if (!outcome.fault.isEmpty()) {
            ++faults;
            print(outcome.fault);
        }
    }
    print(u"%1 pages edited at random: %2 written as a whole, %3 faults"_s.arg(count).arg(whole).arg(faults));
    return faults == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{u"pages"_s, u"Edit so many real pages."_s, u"N"_s, u"200"_s},
                       {u"random"_s, u"Make so many edits at random."_s, u"N"_s, u"0"_s}});
    parser.addPositionalArgument(u"PAGE"_s, u"Edit this page, instead of some of the installed ones."_s,
                                 u"[PAGE...]"_s);
    parser.addHelpOption();
    parser.process(application);
    DesignerBench bench;
    QStringList pages = parser.positionalArguments();
    if (pages.isEmpty()) {
        pages = installedPages(parser.value(u"pages"_s).toInt(),
                               [](const QByteArray &page) { return page.contains("<body"); });
    }
    const bool arePagesRight = measurePages(bench, pages);
    const bool isRandomRight = editRandomly(bench, parser.value(u"random"_s).toInt());
    return arePagesRight && isRandomRight ? 0 : 1;
}
