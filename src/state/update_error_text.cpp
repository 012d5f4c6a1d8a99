#include "state/update_error_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace klarvik {

namespace {

/// What is not listed is `anyOther`.
constexpr auto sentences = std::to_array<std::pair<std::int64_t, const char*>>({
    {-1001, "The update server timed out."},
    {-1005, "No internet connection."},
    {-1009, "No internet connection."},
    {-1008, "The update feed is missing or malformed."},
    {-1011, "The update feed is missing or malformed."},
    {-1100, "The update feed is missing or malformed."},
});
constexpr const char* anyOther = "Could not reach the update server.";

/// The error itself or the one right below it.
const UpdaterError* networkError(const UpdaterError& error) {
  for (const UpdaterError* candidate : {&error, error.underlying.get()}) {
    if (candidate != nullptr && candidate->domain == urlErrorDomain) return candidate;
  }
  return nullptr;
}

}  // namespace

std::string updateErrorText(const UpdaterError& error) {
  const UpdaterError* const network = networkError(error);
  if (network == nullptr) return error.localizedDescription;
  const auto* const found =
      std::ranges::find(sentences, network->code, &decltype(sentences)::value_type::first);
  return found != sentences.end() ? found->second : anyOther;
}

}  // namespace klarvik
