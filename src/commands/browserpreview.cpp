// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/browserpreview.h"

#include "commands/commandparts.h"
#include "core/appcontext.h"
#include "core/configuration.h"
#include "core/documenthost.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/prompts.h"
#include "core/shell.h"
#include "document/document.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

// Replaces an empty setting with a path that doesn't exist, so that the check for the file fails and the user is asked.
constexpr QStringView nowhere = u"C:\\nonexist.iamcool.forever";

/// The path of the browser. If the saved one doesn't exist, the user is asked for another; nothing if that is missing
/// too.
std::optional<QString> browserPath(const AppContext &context)
{
    QString path = context.configuration.value(Setting::BrowserPath);
    if (path.isEmpty())
        path = nowhere.toString();
    if (context.files.FileExists(path))
        return path;

    const QString answer =
        context.prompts
            .input(
                {u"The default path to Internet Explorer was not found, please enter the path to Internet Explorer"_s,
                 u"Internet Explorer Path"_s, path})
            .value_or(QString());
    if (!context.files.FileExists(answer)) {
        context.prompts.ask({u"Sorry, the new path was not found, Zephira will now exit this function..."_s});
        return std::nullopt;
    }
    context.configuration.setValue(Setting::BrowserPath, answer);
    return context.configuration.value(Setting::BrowserPath);
}

bool mayShow(Prompts &prompts, const QString &question)
{
    return prompts.ask({question, {}, Question::Icon::Question, Question::Buttons::YesNo}) == Answer::Yes;
}

} // namespace

void previewInNamedBrowser(const CommandParts &parts)
{
    const AppContext &context = parts.context;
    const std::optional<QString> browser = browserPath(context);
    if (!browser)
        return;
    if (!mayShow(context.prompts,
                 u"You must save your document to preview in Internet Explorer, would you like to save now?"_s))
        return;
    parts.document.save();
    // The document's path is passed as on a command line without quotes: it is split at its blanks.
    const QStringList arguments = context.document.commonDialogFile().split(u' ', Qt::SkipEmptyParts);
    if (const Result<void> started = context.shell.start(*browser, arguments); !started)
        tellError(context.prompts, started.error());
}

void previewInDefaultBrowser(const CommandParts &parts)
{
    const AppContext &context = parts.context;
    if (!mayShow(context.prompts,
                 u"You must save your document to preview in your default browser, would you like to save now?"_s))
        return;
    parts.document.save();
    // If the user cancels the save of a new document, it has no name: then nothing is shown, and no message appears.
    if (!context.shell.open(context.document.commonDialogFile()))
        return;
}

} // namespace zephira
