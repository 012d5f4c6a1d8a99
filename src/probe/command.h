#pragma once

#include <istream>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace klarvik::probe {

/// The exit status of a call that cannot be understood.
inline constexpr int usageError = 2;

// What may be asked of some commands, by its letter.
inline constexpr char zeroBytes = '0';  ///< each path on standard input ends with a zero byte
inline constexpr char lists = 'l';
inline constexpr char noTrash = 't';
inline constexpr char onlySafe = 's';

/// What a command is run with.
struct Invocation {
  const Platform& platform;
  std::stop_token stop;                  ///< requested by SIGINT where the command can be stopped
  std::vector<std::string> arguments{};  ///< what follows the command's name, options left out
  std::string options{};                 ///< letters

  [[nodiscard]] bool has(char option) const { return options.find(option) != std::string::npos; }
};

/// Paths on standard input: one a line, or with -0 one before each zero byte.
[[nodiscard]] std::vector<std::string> readEntries(std::istream& input, const Invocation& call);

struct Command {
  std::string_view name;
  std::string_view usage;  ///< what may follow the name
  std::string options;     ///< the letters of those it takes
  std::size_t fewestArguments;
  std::size_t mostArguments;
  bool canBeStopped;              ///< else it only reads, and SIGINT may end it anywhere
  int (*run)(const Invocation&);  ///< answers the exit status
};

/// Every command there is.
[[nodiscard]] std::span<const Command> commands();

int guard(const Invocation& call);
int measure(const Invocation& call);
int scan(const Invocation& call);
int clean(const Invocation& call);
int trashFiles(const Invocation& call);
int restore(const Invocation& call);
int emptyTrash(const Invocation& call);
int duplicates(const Invocation& call);
int trashDuplicates(const Invocation& call);
int apps(const Invocation& call);
int residuals(const Invocation& call);
int uninstall(const Invocation& call);
int large(const Invocation& call);
int privacy(const Invocation& call);
int systemData(const Invocation& call);
int composition(const Invocation& call);
int folders(const Invocation& call);

}  // namespace klarvik::probe
