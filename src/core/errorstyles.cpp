// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"

using namespace Qt::StringLiterals;

namespace zephira {

void ignoringErrors(std::initializer_list<Statement> statements)
{
    for (const Statement &statement : statements)
        endingQuietly(statement);
}

bool endingQuietly(const Statement &body)
{
    return endingWith([](const QString &) {}, body);
}

bool endingWith(const std::function<void(const QString &description)> &failed, const Statement &body)
{
    try {
        body();
        return true;
    } catch (const HandlerError &error) {
        failed(error.description);
        return false;
    }
}

void tellingErrors(Prompts &prompts, const QString &form, const QString &procedure,
                   std::initializer_list<Statement> statements)
{
    for (const Statement &statement : statements) {
        try {
            statement();
        } catch (const HandlerError &error) {
            const Answer answer = prompts.ask({u"An error has occured at: "_s + form + u" in Procedure: "_s + procedure
                                                   + u"\r\n"_s + u"The error is as follows: "_s + error.description
                                                   + u"\r\n"_s + u"Please Report this to the Zephira. team\r\n"_s
                                                   + u"Click OK to continue, Cancel to Exit the current SUB"_s,
                                               {},
                                               Question::Icon::Critical,
                                               Question::Buttons::OkCancel});
            if (answer == Answer::Cancel)
                return;
        }
    }
}

void tellError(Prompts &prompts, const Error &error, const QString &title, Question::Icon icon)
{
    prompts.tell(error.sentence, title, icon);
}

} // namespace zephira
