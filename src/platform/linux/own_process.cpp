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
  constexpr int niceness = 10;
  ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
}

}  // namespace klarvik
