// SPDX-License-Identifier: GPL-3.0-or-later
// tidyprobe MODULE < page: cleans the page in a thread, and prints the result.
// tidyprobe MODULE MILLISECONDS < page: ends the process after that time, whatever the thread is doing.
#include "tools/tidytask.h"

#include <QCoreApplication>
#include <QFile>
#include <QPluginLoader>
#include <QThread>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int fail(const QString &sentence)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(sentence));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    using namespace zephira;
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 && arguments.size() != 3)
        return fail(u"usage: tidyprobe MODULE [MILLISECONDS] < page"_s);
    QPluginLoader loader(arguments[1]);
    const auto *engine = qobject_cast<TidyEngine *>(loader.instance());
    if (!engine)
        return fail(loader.errorString());
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return fail(u"The page can't be read."_s);

    TidyTask task;
    if (const Result<void> started = task.start(*engine, input.readAll(), {}); !started)
        return fail(started.error().sentence);
    if (arguments.size() == 3) {
        QThread::msleep(arguments[2].toUInt());
        return 0;
    }
    std::optional<Result<TidyOutcome>> outcome;
    while (!(outcome = task.take()))
        QThread::msleep(1);
    if (!outcome->ok())
        return fail(outcome->error().sentence);
    const QByteArray text = outcome->value().text.toUtf8();
    return std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout)
            == static_cast<std::size_t>(text.size())
        ? 0
        : fail(u"The text can't be written."_s);
}
