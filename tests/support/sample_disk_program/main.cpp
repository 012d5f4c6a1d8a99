#include <chrono>
#include <exception>
#include <iostream>
#include <optional>
#include <span>
#include <string_view>

#include "base/text.h"
#include "places/linux/linux_layout.h"
#include "support/linux_sample_disk.h"
#include "support/sample_disk.h"

namespace {

constexpr int usageError = 2;

struct Arguments {
  klarvik::Path root;
  klarvik::SampleDiskOptions options;
};

std::optional<Arguments> parsed(std::span<char* const> words) {
  Arguments arguments;
  for (std::size_t at = 0; at < words.size(); ++at) {
    const std::string_view word = words[at];
    const bool hasValue = at + 1 < words.size();
    if (word == "--scale" && hasValue) {
      const auto scale = klarvik::wholeNumber<std::int64_t>(words[++at]);
      if (!scale || *scale < 1) return std::nullopt;
      arguments.options.scale = *scale;
    } else if (word == "--home" && hasValue) {
      arguments.options.home = words[++at];
      if (!arguments.options.home.is_absolute()) return std::nullopt;
    } else if (!word.starts_with("--") && arguments.root.empty()) {
      arguments.root = word;
    } else {
      return std::nullopt;
    }
  }
  if (arguments.root.empty()) return std::nullopt;
  return arguments;
}

/// What is fresh on a Linux disk is so for whoever tries it now.
std::int64_t secondsNow() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

/// Answers how many files there are.
std::size_t build(const klarvik::Path& root, const klarvik::SampleDiskOptions& options) {
  if (&klarvik::layoutFor(options.home) != &klarvik::linux_disk::layout()) {
    return klarvik::buildSampleDisk(root, options).files;
  }
  return klarvik::buildLinuxSampleDisk(
             root, {.scale = options.scale, .home = options.home, .now = secondsNow()})
      .files;
}

}  // namespace

int main(int argc, char** argv) {
  const auto arguments = parsed(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
  if (!arguments) {
    std::cerr << "usage: klarvik-sample-disk DIR [--scale N] [--home /Users/ann]\n"
                 "Builds a disk below DIR, which must be missing or empty: Mac-shaped for a home\n"
                 "below /Users/, Linux-shaped for any other, such as /home/ann.\n";
    return usageError;
  }
  try {
    const std::size_t files = build(arguments->root, arguments->options);
    const auto root = std::filesystem::canonical(arguments->root);
    std::cout << files << " files below " << root.native() << '\n';
  } catch (const std::exception& error) {
    std::cerr << "klarvik-sample-disk: " << error.what() << '\n';
    return 1;
  }
}
