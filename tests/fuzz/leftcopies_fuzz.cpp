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
    QByteArray name = zephira::fuzz::inputBytes(data, size).left(200);
    name.replace('/', '_').replace('\0', '_');
    const QString path = folder.filePath(QString::fromUtf8(name));
    if (name.isEmpty() || name == "." || name == ".." || path.toUtf8() != folder.path().toUtf8() + '/' + name)
        return 0;
    QFile file(path);
    check(file.open(QIODevice::WriteOnly));
    file.close();
    const QList<LeftCopy> copies = leftCopies(folder.path());
    check(copies.size() <= 1);
    for (const LeftCopy &copy : copies) {
        check(copy.path == path && !copy.name.contains(u'/') && path.endsWith(copy.name) && copy.began.isValid());
        check(putAside(copy).ok() && leftCopies(folder.path()).isEmpty());
    }
    const QStringList left = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    check(left.size() == 1);
    for (const QString &each : left)
        check(QFile::remove(folder.filePath(each)));
    return 0;
}
