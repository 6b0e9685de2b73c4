// Errors as values: what a call to the system hands back instead of throwing.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace brask {

// Why something failed. Number is the system's error number (errno, GetLastError), 0 for what the
// program found itself; Reason is one line for people, UTF-8, without a final full stop.
struct Error {
    int Number = 0;
    std::string Reason;
};

// Success, or an Error. For steps that make nothing but can fail. A caller that drops one without
// looking gets a warning from the compiler; where failure is of no consequence the code says so
// with a cast to void.
class [[nodiscard]] Status {
  public:
    Status() = default;
    // Implicit, so that a function simply returns what went wrong or {}.
    Status(Error error) : error_(std::move(error)) {}  // NOLINT(google-explicit-constructor)

    bool Ok() const { return !error_; }
    // Only when not Ok().
    const Error& Why() const { return *error_; }

  private:
    std::optional<Error> error_;
};

// A value, or the Error that kept it from being made. T must not be Error itself.
template <class T>
class [[nodiscard]] Result {
  public:
    Result(T value) : held_(std::move(value)) {}      // NOLINT(google-explicit-constructor)
    Result(Error error) : held_(std::move(error)) {}  // NOLINT(google-explicit-constructor)

    bool Ok() const { return std::holds_alternative<T>(held_); }
    // Only when Ok().
    T& Value() { return std::get<T>(held_); }
    const T& Value() const { return std::get<T>(held_); }
    // Only when not Ok().
    const Error& Why() const { return std::get<Error>(held_); }

  private:
    std::variant<T, Error> held_;
};

}  // namespace brask
