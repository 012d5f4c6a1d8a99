#pragma once

#include <cstddef>
#include <functional>

namespace klarvik {

/// What is done to an operation at one of its system calls, before that call is made.
struct Meddling {
  enum class Kind { kill, failOnce, failFromThenOn };
  Kind kind = Kind::kill;
  int error = 0;  ///< the `errno` that failing calls set

  static Meddling kill() { return {Kind::kill, 0}; }
  static Meddling failOnce(int error) { return {Kind::failOnce, error}; }
  static Meddling failFromThenOn(int error) { return {Kind::failFromThenOn, error}; }
};

enum class MeddledEnding {
  answeredTrue,
  answeredFalse,
  killed,        ///< by the meddling
  crashed,       ///< by itself
  neverReached,  ///< the operation made fewer calls than that: it ran through as it should
};

/// Runs `operation` in a child process and meddles with its system call number `call`, counted from
/// 0. Calls that only concern memory, signals, threads and time are neither counted nor meddled
/// with. `operation` must start no threads.
///
/// To sweep an operation, call this with 0, 1, 2 and so on, until it answers `neverReached`.
[[nodiscard]] MeddledEnding meddledRun(const std::function<bool()>& operation, std::size_t call,
                                       Meddling meddling);

}  // namespace klarvik
