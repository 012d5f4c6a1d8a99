#pragma once

#include <QObject>
#include <string>

#include "core/removal_outcome.h"

namespace klarvik {

/// What the user is told about things that a removal or a restore has left as they were. Stays
/// until it is dismissed or there is news. Main thread only.
class RemovalNotice : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

  /// Empty while there is nothing to tell.
  [[nodiscard]] const std::string& text() const { return _text; }

  /// At the end of a removal or a restore. One that left nothing alone is no news.
  void tell(const LeftAlone& leftAlone);
  void dismiss();

 signals:
  void changed();

 private:
  std::string _text;
};

}  // namespace klarvik
