// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace zephira {

class Prompts;

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

} // namespace zephira
