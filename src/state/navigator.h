#pragma once

#include <QObject>

#include "state/section.h"

namespace klarvik {

/// Which section of the main window is selected. Not kept across restarts. Main thread only.
class Navigator : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;
  [[nodiscard]] Section section() const { return _section; }
  void setSection(Section section);

 signals:
  void sectionChanged();

 private:
  Section _section = Section::smartScan;
};

}  // namespace klarvik
