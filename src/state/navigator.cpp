#include "state/navigator.h"

#include "state/change_to.h"
#include "state/shared_state.h"

namespace klarvik {

Navigator& Navigator::shared() {
  return SharedState::instance().navigator();
}

void Navigator::setSection(Section section) {
  if (changeTo(_section, section)) emit sectionChanged();
}

}  // namespace klarvik
