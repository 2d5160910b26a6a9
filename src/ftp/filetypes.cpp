// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/filetypes.h"

#include <algorithm>

namespace zephira {

namespace {

struct FileType {
    QStringView extension;
    int image;
};

constexpr FileType fileTypes[] = {
    {u"avi", 8}, {u"mpg", 8}, {u"mpeg", 8}, {u"mov", 8}, {u"gif", 4}, {u"jpg", 1}, {u"jpeg", 1}, {u"jpe", 1},
    {u"bmp", 1}, {u"htm", 2}, {u"html", 2}, {u"xml", 2}, {u"asp", 2}, {u"js", 5},  {u"css", 5},  {u"cgi", 5},
    {u"mp3", 6}, {u"ram", 6}, {u"au", 6},   {u"vaw", 6}, {u"zip", 7}, {u"arj", 7}, {u"exe", 9},  {u"com", 9},
    {u"bat", 9}, {u"txt", 3}, {u"log", 3},  {u"doc", 3}, {u"rtf", 3}, {u"ftp", 3}, {u"ini", 3},  {u"dat", 3},
};

constexpr int unknownImage = 10;

} // namespace

QString extensionOf(const QString &name)
{
    const qsizetype point = name.lastIndexOf(u'.');
    return point < 0 ? QString() : name.sliced(point + 1);
}

int imageForFile(const QString &name)
{
    const QString extension = extensionOf(name).toLower();
    const auto type = std::ranges::find(fileTypes, QStringView(extension), &FileType::extension);
    return type == std::end(fileTypes) ? unknownImage : type->image;
}

} // namespace zephira
