#pragma once

namespace klarvik {

/// The desktop's list of the documents that were opened last. May be called from any thread.
class RecentDocuments {
 public:
  virtual ~RecentDocuments() = default;
  /// Empties the list; the documents themselves stay. Whether it is empty now. Takes no longer than
  /// writing one small file, so that callers need not do anything else meanwhile.
  virtual bool clear() = 0;
};

}  // namespace klarvik
