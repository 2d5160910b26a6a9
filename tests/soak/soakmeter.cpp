// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/soakmeter.h"

#include <QApplication>
#include <QBackingStore>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QPixmapCache>
#include <QStandardPaths>
#include <QWidget>

#include <algorithm>
#include <span>

#include <malloc.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
// The compiler brings no header for it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// By this factor nothing may grow. In a short soak every form is opened for the first time, so that it only finds what
/// grows with each step.
constexpr double mostGrowth = 1.05;
constexpr double mostGrowthOfAShortSoak = 2;
constexpr int shortSoak = 20000;
/// The samples that are taken together at each end.
constexpr qsizetype samplesOfAnEnd = 5;

QString anyFontFile()
{
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
    for (const QString &folder : folders) {
        QDirIterator fonts(folder, {u"*.ttf"_s, u"*.otf"_s}, QDir::Files, QDirIterator::Subdirectories);
        if (fonts.hasNext())
            return fonts.next();
    }
    return {};
}

/// Without the pages of files, such as the code of a library that is called for the first time: the system takes those
/// back when it likes, and they can't grow without end.
qint64 residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList pages = file.readAll().split(' ');
    return (pages.value(1).toLongLong() - pages.value(2).toLongLong()) * sysconf(_SC_PAGESIZE);
}

qint64 allocatedBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
#endif
}

/// What windows are painted on. It follows from their sizes, and a window that was shown once keeps its own while it is
/// hidden. That there aren't ever more windows is seen from the objects.
qint64 pictureBytes()
{
    qint64 bytes = 0;
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        constexpr qint64 bytesOfAPixel = 4;
        if (const QBackingStore *store = window->backingStore())
            bytes += bytesOfAPixel * store->size().width() * store->size().height();
    }
    return bytes;
}

/// Glyphs are drawn anew in each size that the text is zoomed to, and kept up to a limit that takes longer than the soak to
/// reach. Fonts that come and go make the library forget them all.
void forgetGlyphs()
{
    static const QString font = anyFontFile();
    QFontDatabase::removeApplicationFont(QFontDatabase::addApplicationFont(font));
}

int countObjects()
{
    auto count = QCoreApplication::instance()->findChildren<QObject *>().size();
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (!window->parent())
            count += window->findChildren<QObject *>().size();
    }
    return static_cast<int>(count);
}

int countTemporaries(const QString &folder)
{
    auto count = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System).size();
    QDirIterator unfinished(folder, {u".zephira-*~"_s}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    for (; unfinished.hasNext(); unfinished.next())
        ++count;
    return static_cast<int>(count);
}

template<typename Value>
double middle(std::span<const SoakSample> samples, Value SoakSample::*value)
{
    std::vector<Value> values;
    for (const SoakSample &sample : samples)
        values.push_back(sample.*value);
    std::ranges::sort(values);
    return static_cast<double>(values[values.size() / 2]);
}

} // namespace

void prepareMeasuring()
{
    QPixmapCache::setCacheLimit(0);
    // As at the start of the process: otherwise the pictures of windows would split the heap as soon as one was freed.
    constexpr int smallestOfItsOwn = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, smallestOfItsOwn);
}

SoakSample measureProcess(int step, const QString &temporaryFolder)
{
    forgetGlyphs();
    // What was freed isn't in use, even if the allocator still holds it.
    malloc_trim(0);
    const qint64 pictures = pictureBytes();
    return {.step = step,
            .resident = residentBytes() - pictures,
            .allocated = allocatedBytes() - pictures,
            .pictures = pictures,
            .descriptors = static_cast<int>(QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size()),
            .objects = countObjects(),
            .temporaryFiles = countTemporaries(temporaryFolder)};
}

QStringList growthOf(const std::vector<SoakSample> &samples)
{
    QStringList grown;
    if (samples.size() < 2)
        return grown;
    const std::span all(samples);
    const auto firstTenth = static_cast<std::size_t>(
        std::ranges::count_if(all, [&](const SoakSample &sample) { return sample.step <= all.back().step / 10; }));
    const std::size_t atBegin = std::clamp<std::size_t>(firstTenth, 1, all.size() - 1);
    const std::size_t half = std::min<std::size_t>(atBegin - 1, samplesOfAnEnd / 2);
    const auto begin = all.subspan(atBegin - 1 - half, 2 * half + 1);
    const auto end = all.last(std::min<std::size_t>(all.size() - atBegin, samplesOfAnEnd));
    const double most = all.back().step < shortSoak ? mostGrowthOfAShortSoak : mostGrowth;
    const auto judge = [&](const QString &name, auto value) {
        const double before = middle(begin, value);
        const double after = middle(end, value);
        if (after > before && after >= before * most)
            grown.append(u"%1 from %2 to %3"_s.arg(name).arg(before, 0, 'f', 0).arg(after, 0, 'f', 0));
    };
    judge(u"the descriptors have grown"_s, &SoakSample::descriptors);
    judge(u"the objects have become more"_s, &SoakSample::objects);
    judge(u"the temporary files have grown"_s, &SoakSample::temporaryFiles);
    judge(u"the resident memory has grown"_s, &SoakSample::resident);
    judge(u"the allocated memory has grown"_s, &SoakSample::allocated);
    return grown;
}

QString described(const SoakSample &sample)
{
    constexpr double mebibyte = 1024.0 * 1024.0;
    return u"step %1: %2 MiB resident, %3 MiB allocated, %4 descriptors, %5 objects, %6 temporary files, "
           "besides %7 MiB of windows"_s.arg(sample.step)
               .arg(static_cast<double>(sample.resident) / mebibyte, 0, 'f', 1)
               .arg(static_cast<double>(sample.allocated) / mebibyte, 0, 'f', 1)
               .arg(sample.descriptors)
               .arg(sample.objects)
               .arg(sample.temporaryFiles)
               .arg(static_cast<double>(sample.pictures) / mebibyte, 0, 'f', 1);
}

} // namespace zephira
