#pragma once

#include <QString>

#include <tl/expected.hpp>

namespace tarnloft {

enum class ErrorKind {
  notFound,    // no such file or folder
  refused,     // a name, a link or a kind of file that isn't taken
  io,          // the system's own error
  tooLarge,    // a file beyond its limit
  malformed,   // text that doesn't read
  unwritable,  // a value that has no written form
  cancelled,   // by the user
};

// Why an operation failed: a kind for the program, and a sentence for a person.
struct Error {
  ErrorKind kind = ErrorKind::io;
  QString message;

  bool operator==(const Error&) const = default;
};

template <class T>
using Result = tl::expected<T, Error>;

inline tl::unexpected<Error> failure(ErrorKind kind, QString message) {
  return tl::unexpected<Error>(Error{kind, std::move(message)});
}

}  // namespace tarnloft
