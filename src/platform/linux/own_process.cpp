#include "platform/own_process.h"

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace klarvik {

void disableFastBins() {
#ifdef __GLIBC__
  ::mallopt(M_MXFAST, 0);
#endif
}

void becomeBackgroundThread() {
  constexpr int behindTheOthers = 10;
  const auto thread = static_cast<id_t>(::gettid());
  ::setpriority(PRIO_PROCESS, thread, ::getpriority(PRIO_PROCESS, thread) + behindTheOthers);
}

}  // namespace klarvik
