// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/sessionlogfile.h"

#include "core/appcontext.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/prompts.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Overwrites the start of the file with the content and leaves the rest of a longer file unchanged.
Result<void> writeOver(FileStore &files, const QString &path, const QByteArray &content)
{
    constexpr int privateMode = 0600;
    const Result<QByteArray> old = files.read(path);
    if (!old && old.error().code != Error::Code::NotFound)
        return old.error();
    return files.write(path, content + old.valueOr({}).mid(content.size()), privateMode);
}

} // namespace

QString logFolder(const AppContext &context)
{
    return context.appPath + u"/Logon"_s;
}

void saveSessionLog(const AppContext &context, const QString &log)
{
    if (log.isEmpty()) {
        context.prompts.tell(u"Nothing to be saved!"_s, {}, Question::Icon::Exclamation);
        return;
    }
    const QString name = context.prompts.input({u"Type name for the log file:"_s, u"Log File"_s}).value_or(QString());
    if (name.isEmpty()) {
        context.prompts.tell(u"No name entered, quiting"_s);
        return;
    }
    const QString path = logFolder(context) + u'/' + name + u".txt"_s;
    orRaise(writeOver(context.files, path, log.toUtf8()));
    context.prompts.tell(u"File saved as: \r\n"_s + path);
}

} // namespace zephira
