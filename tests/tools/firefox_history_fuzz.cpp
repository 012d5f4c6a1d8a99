// Whatever stands under the name of a history, it is read without harm, and where it is not cleared
// it stays as it is, to the byte.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tools/firefox_history.h"

namespace {

std::string contentOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::filesystem::path file =
      std::filesystem::temp_directory_path() / ("klarvik-history-" + std::to_string(::getpid()));
  const std::string given(reinterpret_cast<const char*>(data), size);
  std::ofstream(file, std::ios::binary | std::ios::trunc) << given;
  if (klarvik::readFirefoxHistory({file}).pages < 0) std::abort();
  if (contentOf(file) != given) std::abort();
  const auto outcome = klarvik::clearFirefoxHistory({file}, [] { return true; });
  const bool isSame = contentOf(file) == given;
  for (const char* ending : {"", "-wal", "-shm", "-journal"}) {
    std::filesystem::remove(file.native() + ending);
  }
  if (outcome != klarvik::HistoryOutcome::done && !isSame) std::abort();
  return 0;
}
