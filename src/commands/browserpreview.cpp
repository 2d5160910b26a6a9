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

// Stands in for an empty setting, so that the test for the file fails and the user is asked.
constexpr QStringView nowhere = u"C:\\nonexist.iamcool.forever";

/// The path of the browser, asked for where the kept one leads nowhere; nothing when the new one does too.
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
    // The document's path goes over as it would on a command line without quotes: blanks divide it.
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
    // Cancelling the save of a new document leaves no name: nothing is shown then, and nothing is said.
    if (!context.shell.open(context.document.commonDialogFile()))
        return;
}

} // namespace zephira
