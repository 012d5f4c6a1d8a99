// klarvik-probe: runs one engine on one disk, and prints what comes back as JSON lines.

#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <optional>
#include <thread>

#include "platform/linux/linux_platform.h"
#include "probe/command.h"

namespace klarvik::probe {
namespace {

constexpr int interrupted = 128 + SIGINT;

struct Request {
  Path root;
  Path home;
  const Command* command = nullptr;
  std::vector<std::string> arguments{};
  std::vector<std::string> options{};
};

const Command* commandNamed(std::string_view name) {
  const auto all = commands();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Command& command) { return command.name == name; });
  return found == all.end() ? nullptr : &*found;
}

bool knows(const Command& command, std::string_view option) {
  return std::find(command.options.begin(), command.options.end(), option) != command.options.end();
}

/// Reads "--root DIR --home PATH", in either order, from the front of `words`.
bool takePlaces(std::span<char*>& words, Request& request) {
  while (words.size() >= 2 && std::string_view(words[0]).starts_with("--")) {
    const std::string_view option = words[0];
    if (option == "--root")
      request.root = words[1];
    else if (option == "--home")
      request.home = words[1];
    else
      return false;
    words = words.subspan(2);
  }
  return !request.root.empty() && request.home.is_absolute();
}

std::optional<Request> parsed(std::span<char*> words) {
  Request request;
  if (!takePlaces(words, request) || words.empty()) return std::nullopt;
  request.command = commandNamed(words[0]);
  if (request.command == nullptr) return std::nullopt;
  for (const std::string_view word : words.subspan(1)) {
    if (knows(*request.command, word)) {
      request.options.emplace_back(word);
    } else if (word.starts_with('-')) {
      return std::nullopt;
    } else {
      request.arguments.emplace_back(word);
    }
  }
  const auto count = request.arguments.size();
  const bool fits =
      count >= request.command->fewestArguments && count <= request.command->mostArguments;
  return fits ? std::optional(std::move(request)) : std::nullopt;
}

void printUsage() {
  std::cerr << "usage: klarvik-probe --root DIR --home PATH COMMAND\n"
               "PATH counts from DIR. Commands:\n";
  for (const Command& command : commands()) {
    std::cerr << "  " << command.name << ' ' << command.usage << '\n';
  }
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
  LinuxPlatform machine(request->root, request->home);
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
  return klarvik::probe::run(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
}
