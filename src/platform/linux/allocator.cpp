#include "platform/allocator.h"

#include <malloc.h>

namespace klarvik {

void disableFastBins() {
#ifdef __GLIBC__
  ::mallopt(M_MXFAST, 0);
#endif
}

}  // namespace klarvik
