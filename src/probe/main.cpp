// klarvik-probe: runs one engine on one disk, and prints what comes back as JSON lines.

#include <getopt.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <iostream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/system_platform.h"
#include "probe/command.h"

namespace klarvik::probe {
namespace {

constexpr int interrupted = 128 + SIGINT;

/// Each answers its letter. `command.h` names those that only some commands know.
constexpr auto longOptions = std::to_array<::option>({
    {"root", required_argument, nullptr, 'r'},
    {"home", required_argument, nullptr, 'h'},
    {"lists", no_argument, nullptr, lists},
    {"no-trash", no_argument, nullptr, noTrash},
    {"only-safe", no_argument, nullptr, onlySafe},
    {},
});
constexpr std::array<char, 2> shortOptions{zeroBytes};

struct Request {
  Path root{};
  Path home{};
  const Command* command = nullptr;
  std::vector<std::string> arguments{};
  std::string options{};
};

const Command* commandNamed(std::string_view name) {
  const auto all = commands();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Command& command) { return command.name == name; });
  return found == all.end() ? nullptr : &*found;
}

void printUsage() {
  std::cerr << "usage: klarvik-probe --root DIR --home PATH COMMAND\n"
               "PATH counts from DIR. Commands:\n";
  for (const Command& command : commands()) {
    std::cerr << "  " << command.name << ' ' << command.usage << '\n';
  }
}

std::optional<Request> refuse(const std::string& fault) {
  std::cerr << "klarvik-probe: " << fault << '\n';
  return std::nullopt;
}

/// Where `words` are no request, says what is wrong with them.
std::optional<Request> parsed(std::span<char*> words) {
  Request request;
  const int count = static_cast<int>(words.size());
  const auto next = [&] {
    return ::getopt_long(count, words.data(), shortOptions.data(), longOptions.data(), nullptr);
  };
  for (int option = next(); option != -1; option = next()) {
    if (option == '?') return std::nullopt;  // which it has said itself
    if (option == 'r') {
      request.root = optarg;
    } else if (option == 'h') {
      request.home = optarg;
    } else {
      request.options += static_cast<char>(option);
    }
  }
  words = words.subspan(static_cast<std::size_t>(optind));
  if (request.root.empty()) return refuse("--root DIR is missing");
  if (!request.home.is_absolute()) return refuse("--home PATH is missing or not absolute");
  if (words.empty()) return refuse("the command is missing");

  const std::string name = words[0];
  const Command* const command = request.command = commandNamed(name);
  if (command == nullptr) return refuse("no such command: " + name);
  if (request.options.find_first_not_of(command->options) != std::string::npos) {
    return refuse(name + " does not take this option");
  }
  request.arguments.assign(words.begin() + 1, words.end());
  const auto arguments = request.arguments.size();
  if (arguments < command->fewestArguments) return refuse(name + ": an argument is missing");
  if (arguments > command->mostArguments) return refuse(name + ": an argument too many");
  return request;
}

/// From now on, in all threads: SIGINT asks a command that can be stopped for a stop. Any other
/// command, and one that has been asked, it ends on the spot.
std::stop_token stopOnInterrupt(bool canBeStopped) {
  sigset_t interrupt;
  sigemptyset(&interrupt);
  sigaddset(&interrupt, SIGINT);
  pthread_sigmask(SIG_BLOCK, &interrupt, nullptr);

  std::stop_source source;
  auto stop = source.get_token();
  std::thread([interrupt, source, canBeStopped]() mutable {
    int signal = 0;
    sigwait(&interrupt, &signal);
    if (canBeStopped) {
      source.request_stop();
      sigwait(&interrupt, &signal);
    }
    _exit(interrupted);
  }).detach();
  return stop;
}

int run(std::span<char*> words) {
  auto request = parsed(words);
  if (!request) {
    printUsage();
    return usageError;
  }
  SystemPlatform machine(request->root, request->home);
  const Platform platform = machine.platform();
  return request->command->run({.platform = platform,
                                .stop = stopOnInterrupt(request->command->canBeStopped),
                                .arguments = std::move(request->arguments),
                                .options = std::move(request->options)});
}

}  // namespace
}  // namespace klarvik::probe

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return klarvik::probe::run(std::span(argv, static_cast<std::size_t>(argc)));
}
