// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary names in the folder of recovery copies: a file is listed under its own path and with a name that is one,
// and is not listed any more once it is put aside.
#include "files/leftcopies.h"
#include "fuzz/fuzztarget.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace zephira;

FUZZ_TARGET(leftcopies)
{
    static const QTemporaryDir folder;
    // A number that no process has.
    constexpr QByteArrayView prefix = "open-20240229-120000-000-99999999-";
    QByteArray name = zephira::fuzz::inputBytes(data, size).left(200);
    name.replace('/', '_').replace('\0', '_');
    // The first character tells whether the name is that of a document.
    const bool isDocument = name.startsWith('d');
    if (isDocument)
        name.replace(0, 1, prefix.toByteArray());
    const QString path = folder.filePath(QString::fromUtf8(name));
    if (name.isEmpty() || name == "." || name == ".." || path.toUtf8() != folder.path().toUtf8() + '/' + name)
        return 0;
    QFile file(path);
    check(file.open(QIODevice::WriteOnly));
    file.close();
    const QList<LeftCopy> copies = leftCopies(folder.path());
    check(copies.size() <= 1);
    check(!isDocument || name.size() == prefix.size()
          || (copies.size() == 1 && copies.front().name.toUtf8() == name.mid(prefix.size())));
    for (const LeftCopy &copy : copies) {
        check(copy.path == path && !copy.name.contains(u'/') && path.endsWith(copy.name)
              && (copy.began.isValid() || !isDocument));
        check(putAside(copy).ok() && leftCopies(folder.path()).isEmpty());
    }
    const QStringList left = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    check(left.size() == 1);
    for (const QString &each : left)
        check(QFile::remove(folder.filePath(each)));
    return 0;
}
