// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"
#include "core/result.h"

#include <QString>

#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>

namespace zephira {

/// Raised by a statement that fails inside a handler; caught only by the error styles below.
struct HandlerError {
    QString description;
};

using Statement = std::function<void()>;

/// Runs each statement in turn; if one fails, the next one runs.
void ignoringErrors(std::initializer_list<Statement> statements);

/// Runs the body; the first error ends it silently. Returns whether the body completed.
bool endingQuietly(const Statement &body);

/// The same for a handler that answers in its own way: `failed` is called with the error's description.
bool endingWith(const std::function<void(const QString &description)> &failed, const Statement &body);

/// Runs each statement in turn. A failure is reported in a critical message box with OK and Cancel that names the form
/// and the procedure. OK continues with the next statement, Cancel skips the rest.
void tellingErrors(Prompts &prompts, const QString &form, const QString &procedure,
                   std::initializer_list<Statement> statements);

/// Returns the result's value; raises HandlerError if the result failed.
template<typename T>
T orRaise(Result<T> result)
{
    if (!result)
        throw HandlerError{result.error().sentence};
    if constexpr (!std::is_void_v<T>)
        return std::move(result).value();
}

/// Shows the error in a message box with OK. An empty title stands for the program's name.
void tellError(Prompts &prompts, const Error &error, const QString &title = {},
               Question::Icon icon = Question::Icon::Exclamation);

} // namespace zephira
