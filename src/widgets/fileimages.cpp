// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/fileimages.h"

#include "core/paths.h"

#include <algorithm>

namespace zephira {

namespace {

struct FileImage {
    QStringView extension;
    int image;
};

/// What servers hold has little to do with what the editor opens: most of these aren't in core's table of file types, and
/// the newer pictures and pages of that table have no picture of their own here.
constexpr FileImage fileImages[] = {
    {u"avi", 8}, {u"mpg", 8}, {u"mpeg", 8}, {u"mov", 8}, {u"gif", 4}, {u"jpg", 1}, {u"jpeg", 1}, {u"jpe", 1},
    {u"bmp", 1}, {u"htm", 2}, {u"html", 2}, {u"xml", 2}, {u"asp", 2}, {u"js", 5},  {u"css", 5},  {u"cgi", 5},
    {u"mp3", 6}, {u"ram", 6}, {u"au", 6},   {u"vaw", 6}, {u"zip", 7}, {u"arj", 7}, {u"exe", 9},  {u"com", 9},
    {u"bat", 9}, {u"txt", 3}, {u"log", 3},  {u"doc", 3}, {u"rtf", 3}, {u"ftp", 3}, {u"ini", 3},  {u"dat", 3},
};

constexpr int unknownImage = 10;

} // namespace

int imageForFile(const QString &name)
{
    const QString extension = extensionOf(name).toLower();
    const auto row = std::ranges::find(fileImages, QStringView(extension), &FileImage::extension);
    return row == std::end(fileImages) ? unknownImage : row->image;
}

} // namespace zephira
