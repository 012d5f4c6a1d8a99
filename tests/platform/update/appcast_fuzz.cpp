// Input: an appcast, as a server sends it.

#include <cstdint>
#include <cstdlib>

#include "base/text.h"
#include "platform/update/appcast.h"
#include "platform/update/update_choice.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto items = klarvik::parseAppcast({reinterpret_cast<const char*>(data), size});
  if (!items) return 0;
  for (const klarvik::AppcastItem& item : *items) {
    if (!klarvik::isUtf8(item.notes) || item.notes.size() > 20'000) std::abort();
  }
  const klarvik::RunningProgram running{.build = "1",
                                        .displayVersion = "1",
                                        .publicKey = std::string(32, 'k'),
                                        .systemVersion = "6.1"};
  // Nobody holds the key that belongs to this one.
  const auto choice = klarvik::chooseUpdate(*items, running, 1000);
  if (std::holds_alternative<klarvik::UpdateOffer>(choice)) std::abort();
  return 0;
}
