// SPDX-License-Identifier: GPL-3.0-or-later
// saveprobe IN OUT: opens IN and saves it as OUT, as the editing control does.
#include "core/clock.h"
#include "files/diskfilestore.h"
#include "files/documentfile.h"
#include "files/recoverycopies.h"
#include "probes/fail.h"

#include <QCoreApplication>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    using namespace zephira;
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail(u"usage: saveprobe IN OUT"_s);

    DiskFileStore files;
    const SystemClock clock;
    RecoveryCopies recovery(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/recovery"_s, files,
                            clock);
    DocumentFile document(files, recovery);
    const Result<DecodedText> text = document.open(arguments[1]);
    if (!text)
        return fail(text.error().sentence);
    const QByteArrayView piece(text.value().utf8);
    const Result<void> saved = document.save(arguments[2], {&piece, 1}, text.value().format);
    return saved ? 0 : fail(saved.error().sentence);
}
