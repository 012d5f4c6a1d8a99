#include "state/navigator.h"

#include "state/set_if_changed.h"

namespace klarvik {

void Navigator::setSection(Section section) {
  if (setIfChanged(_section, section)) emit sectionChanged();
}

}  // namespace klarvik
