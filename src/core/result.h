// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace zephira {

/// An error: a code that callers can act on, and a sentence for the user.
struct Error {
    enum class Code { NotFound, Unreadable, Unwritable, TooLarge, Unencodable, Malformed, Refused, TimedOut, Failed };
    Code code = Code::Failed;
    QString sentence;
};

/// A value, or an Error in its place. Discarding a result is a compiler warning; reading the value of a failed one is a
/// programming error that ends the process.
template<typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_content(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : m_content(std::in_place_index<1>, std::move(error)) {}

    bool ok() const { return m_content.index() == 0; }
    explicit operator bool() const { return ok(); }
    const T &value() const & { return std::get<0>(m_content); }
    T &&value() && { return std::get<0>(std::move(m_content)); }
    T valueOr(T fallback) const { return ok() ? value() : std::move(fallback); }
    const Error &error() const { return std::get<1>(m_content); }

private:
    std::variant<T, Error> m_content;
};

/// The outcome of an operation that returns no value.
template<>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error) : m_error(std::move(error)), m_ok(false) {}

    bool ok() const { return m_ok; }
    explicit operator bool() const { return m_ok; }
    const Error &error() const { return m_error; }

private:
    Error m_error;
    bool m_ok = true;
};

} // namespace zephira
