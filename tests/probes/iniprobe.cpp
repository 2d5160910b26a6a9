// SPDX-License-Identifier: GPL-3.0-or-later
// iniprobe FILE SECTION PREFIX COUNT: writes the keys PREFIX0, PREFIX1 … with the values 0, 1 …
// iniprobe FILE SECTION KEY @VALUEFILE: writes one key, whose value is the content of a file.
#include "files/diskfilestore.h"
#include "files/iniconfiguration.h"
#include "probes/fail.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    using namespace zephira;
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5)
        return fail(u"usage: iniprobe FILE SECTION PREFIX COUNT | iniprobe FILE SECTION KEY @VALUEFILE"_s);
    const QString &file = arguments[1];
    const QString &section = arguments[2];
    const QString &key = arguments[3];

    if (arguments[4].startsWith(u'@')) {
        const Result<QByteArray> value = DiskFileStore().read(arguments[4].sliced(1));
        if (!value)
            return fail(value.error().sentence);
        return WriteIni(section, key, QString::fromUtf8(value.value()), file) ? 0
                                                                              : fail(u"The value was not written."_s);
    }
    bool isNumber = false;
    const int count = arguments[4].toInt(&isNumber);
    if (!isNumber || count < 0)
        return fail(u"The count is no number."_s);
    for (int i = 0; i < count; ++i) {
        const QString number = QString::number(i);
        if (!WriteIni(section, key + number, number, file))
            return fail(u"The key "_s + key + number + u" was not written."_s);
    }
    return 0;
}
