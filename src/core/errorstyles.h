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

/// Raised by a statement that fails inside a handler; caught only by the three error styles below.
struct HandlerError {
    QString description;
};

using Statement = std::function<void()>;

/// Runs each statement in turn; one that fails is left out and the next one runs.
void ignoringErrors(std::initializer_list<Statement> statements);

/// Runs the body; the first error ends it without a word. Returns whether the body came to its end.
bool endingQuietly(const Statement &body);

/// Runs each statement in turn; a failing one is told in a critical box with OK and Cancel that names the form and the
/// procedure. OK goes on with the next statement, Cancel leaves the rest undone.
void tellingErrors(Prompts &prompts, const QString &form, const QString &procedure,
                   std::initializer_list<Statement> statements);

/// The result's value. A failed result becomes the error that handlers are written for.
template<typename T>
T orRaise(Result<T> result)
{
    if (!result)
        throw HandlerError{result.error().sentence};
    if constexpr (!std::is_void_v<T>)
        return std::move(result).value();
}

/// Tells the user what went wrong, in a box with OK. An empty title stands for the program's name.
void tellError(Prompts &prompts, const Error &error, const QString &title = {},
               Question::Icon icon = Question::Icon::Exclamation);

} // namespace zephira
