#include "state/navigator.h"

#include "state/set_if_changed.h"
#include "state/shared_state.h"

namespace klarvik {

Navigator& Navigator::shared() {
  return SharedState::instance().navigator();
}

void Navigator::setSection(Section section) {
  if (setIfChanged(_section, section)) emit sectionChanged();
}

}  // namespace klarvik
