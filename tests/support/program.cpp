#include "support/program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>

extern char** environ;

namespace klarvik {

namespace {

void require(bool done, const char* what) {
  if (done) return;
  std::perror(what);
  std::abort();
}

/// An open file at whose beginning `content` stands.
int fileHolding(std::string_view content) {
  const int fd = ::memfd_create("input", MFD_CLOEXEC);
  require(fd >= 0, "memfd_create");
  while (!content.empty()) {
    const auto written = ::write(fd, content.data(), content.size());
    require(written > 0, "write");
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  require(::lseek(fd, 0, SEEK_SET) == 0, "lseek");
  return fd;
}

pid_t spawned(const std::vector<std::string>& words, int input, int output) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
  ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  pid_t process = -1;
  errno = ::posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  require(errno == 0, arguments[0]);
  ::posix_spawn_file_actions_destroy(&actions);
  return process;
}

}  // namespace

Program::Program(const std::vector<std::string>& words, std::string_view input) {
  std::array<int, 2> pipe{};
  require(::pipe2(pipe.data(), O_CLOEXEC) == 0, "pipe2");
  const int source = fileHolding(input);
  _process = spawned(words, source, pipe[1]);
  ::close(source);
  ::close(pipe[1]);
  _output = ::fdopen(pipe[0], "r");
  require(_output != nullptr, "fdopen");
}

Program::~Program() {
  if (_process > 0) {
    send(SIGKILL);
    wait();
  }
  std::fclose(_output);
}

std::optional<std::string> Program::readLine() {
  std::string line;
  for (int next = std::fgetc(_output); next != EOF; next = std::fgetc(_output)) {
    if (next == '\n') return line;
    line += static_cast<char>(next);
  }
  return line.empty() ? std::nullopt : std::optional(line);
}

std::vector<std::string> Program::readToEnd() {
  std::vector<std::string> lines;
  while (auto line = readLine()) lines.push_back(std::move(*line));
  return lines;
}

void Program::send(int signal) const {
  require(::kill(_process, signal) == 0, "kill");
}

std::filesystem::path Program::file() const {
  return std::filesystem::read_symlink("/proc/" + std::to_string(_process) + "/exe");
}

bool Program::hasPending(int signal) const {
  constexpr int hexadecimal = 16;
  std::ifstream status("/proc/" + std::to_string(_process) + "/status");
  for (std::string line; std::getline(status, line);) {
    constexpr std::string_view label = "ShdPnd:";
    if (!line.starts_with(label)) continue;
    const auto set = std::stoull(line.substr(label.size()), nullptr, hexadecimal);
    return (set >> static_cast<unsigned>(signal - 1) & 1U) != 0;
  }
  return false;
}

int Program::wait() {
  int status = 0;
  require(::waitpid(_process, &status, 0) == _process, "waitpid");
  _process = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace klarvik
