// SPDX-License-Identifier: GPL-3.0-or-later
// makehandbook SOURCE FOLDER    makes the handbook in FOLDER from the contents of its pages, its style sheet, its script
//                               and its pictures in SOURCE. The build runs it.
#include "files/diskfilestore.h"
#include "handbook/handbook.h"
#include "handbook/keytables.h"
#include "handbook/shippedkeys.h"

#include <QDir>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

Result<void> copyTo(const QString &folder, const QStringList &paths, DiskFileStore &files)
{
    for (const QString &path : paths) {
        const Result<QByteArray> content = files.read(path);
        if (!content)
            return content.error();
        if (const Result<void> written = files.write(folder + u'/' + QFileInfo(path).fileName(), content.value());
            !written)
            return written;
    }
    return {};
}

QStringList filesIn(const QString &folder, const QStringList &patterns)
{
    QStringList paths;
    const QFileInfoList entries = QDir(folder).entryInfoList(patterns, QDir::Files, QDir::Name);
    for (const QFileInfo &entry : entries)
        paths.append(entry.filePath());
    return paths;
}

Result<HandbookSource> readSource(const QString &folder, const DiskFileStore &files)
{
    HandbookSource source;
    const QStringList pages = filesIn(folder, {u"*.html"_s});
    for (const QString &path : pages) {
        const Result<QByteArray> text = files.read(path);
        if (!text)
            return text.error();
        source.pages.emplace(QFileInfo(path).completeBaseName(), QString::fromUtf8(text.value()));
    }
    const QStringList pictures = filesIn(folder + u"/pictures"_s, {u"*.png"_s});
    for (const QString &path : pictures) {
        const Result<QByteArray> bytes = files.read(path);
        if (!bytes)
            return bytes.error();
        source.pictures.insert(QFileInfo(path).completeBaseName(), pictureSize(bytes.value()));
    }
    source.keys = keyTables(shippedKeys());
    return source;
}

Result<void> make(const QString &from, const QString &folder)
{
    DiskFileStore files;
    const Result<HandbookSource> source = readSource(from, files);
    if (!source)
        return source.error();
    const Result<std::vector<HandbookFile>> made = makeHandbook(source.value());
    if (!made)
        return made.error();
    // From scratch, so that nothing is left of a page that is no more.
    QDir(folder).removeRecursively();
    QDir().mkpath(folder + u"/pictures"_s);
    for (const HandbookFile &file : made.value()) {
        if (const Result<void> written = files.write(folder + u'/' + file.name, file.text.toUtf8()); !written)
            return written;
    }
    if (const Result<void> copied = copyTo(folder, filesIn(from, {u"*.css"_s, u"*.js"_s}), files); !copied)
        return copied;
    return copyTo(folder + u"/pictures"_s, filesIn(from + u"/pictures"_s, {u"*.png"_s}), files);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: makehandbook SOURCE FOLDER\n", stderr);
        return 2;
    }
    if (const Result<void> made = make(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])); !made) {
        std::fprintf(stderr, "makehandbook: %s\n", qPrintable(made.error().sentence));
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
