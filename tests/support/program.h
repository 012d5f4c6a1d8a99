#pragma once

#include <sys/types.h>

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace klarvik {

/// Another program, started by a test: `input` on its standard input, its standard output read line
/// by line. Killed and waited for at the end, if the test has not done so. Whatever cannot be set
/// up ends the test program with a message.
class Program {
 public:
  explicit Program(const std::vector<std::string>& words, std::string_view input = {});
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// The next line, without its newline. Nothing at the end of the output.
  [[nodiscard]] std::optional<std::string> readLine();
  [[nodiscard]] std::vector<std::string> readToEnd();

  void send(int signal) const;
  /// The file that it runs: another one once it has handed itself over.
  [[nodiscard]] std::filesystem::path file() const;
  /// Whether a signal has been sent that the program has not taken yet.
  [[nodiscard]] bool hasPending(int signal) const;
  /// Waits for its end. The exit status, or minus the signal that ended it.
  int wait();

 private:
  pid_t _process = -1;
  std::FILE* _output = nullptr;
};

}  // namespace klarvik
