#pragma once

#include <stop_token>
#include <utility>

namespace klarvik {

/// A stop that is requested as soon as either of two others is: that of a run, and that of the
/// object the run works for.
class CombinedStopToken {
 public:
  CombinedStopToken(std::stop_token run, std::stop_token owner)
      : _onRunStop(std::move(run), Forward{_source}),
        _onOwnerStop(std::move(owner), Forward{_source}) {}

  CombinedStopToken(const CombinedStopToken&) = delete;
  CombinedStopToken& operator=(const CombinedStopToken&) = delete;

  [[nodiscard]] std::stop_token token() const { return _source.get_token(); }

 private:
  struct Forward {
    std::stop_source target;
    void operator()() {
      // What the request sets off may destroy the callback that this is part of.
      std::stop_source kept = target;
      kept.request_stop();
    }
  };

  std::stop_source _source;
  std::stop_callback<Forward> _onRunStop;
  std::stop_callback<Forward> _onOwnerStop;
};

}  // namespace klarvik
