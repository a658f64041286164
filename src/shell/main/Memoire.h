#pragma once
// How the programs keep the memory they free. A document's values come and go by the
// thousand (table rows, cell texts): giving the top of the heap back to the system at each
// large free, and taking it again at the next allocation, cost a fifth of a run. And each
// chart's picture (4 MiB) mapped afresh from the system cost two thirds of the chart in page
// faults. Freed memory is kept for the next use up to 64 MiB, and blocks up to 32 MiB come
// from the heap; the peak is the same.

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace verdane {

inline void GarderMemoireLiberee() {
#if defined(__GLIBC__)
    mallopt(M_TRIM_THRESHOLD, 64 << 20);
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
#endif
}

} // namespace verdane
