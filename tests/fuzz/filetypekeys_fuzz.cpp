// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary records of file types: what could be read is written so that it reads back, and what the desktop is told
// is well-formed.
#include "core/filetypekeys.h"
#include "desktop/associationrecord.h"
#include "desktop/filetypedesktop.h"
#include "fuzz/fuzztarget.h"

#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(filetypekeys)
{
    const QByteArray json = zephira::fuzz::inputBytes(data, size);
    if (const auto record = AssociationRecord::fromJson(json)) {
        const auto back = AssociationRecord::fromJson(record.value().toJson());
        check(back && back.value().toJson() == record.value().toJson() && back.value().types == record.value().types);
    }
    const auto keys = FileTypeKeys::fromJson(json);
    if (!keys)
        return 0;
    const auto back = FileTypeKeys::fromJson(keys.value().toJson());
    check(back && back.value() == keys.value());
    const std::vector<DesktopFileType> types = desktopFileTypes(keys.value(), u"zephira"_s);
    const auto mimeTypesOf = [](const QString &extension) { return QStringList{ownMimeType(extension)}; };
    const QByteArray package = mimePackage(types, mimeTypesOf);
    QXmlStreamReader reader(package);
    while (!package.isEmpty() && !reader.atEnd())
        reader.readNext();
    check(!reader.hasError());
    const DesktopTypes told = desktopTypes(types, mimeTypesOf);
    check(told.all.size() >= told.defaults.size());
    check(desktopEntry(told, u"/usr/bin/zephira"_s, u"zephira"_s).count("MimeType=") == (told.all.isEmpty() ? 0 : 1));
    return 0;
}
