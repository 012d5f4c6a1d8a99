#include "platform/background_thread.h"

#include <sys/resource.h>
#include <unistd.h>

namespace klarvik {

void becomeBackgroundThread() {
  constexpr int niceness = 10;
  ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
}

}  // namespace klarvik
