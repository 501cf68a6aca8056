/* A consumer of the installed library: h of water at 3 MPa and 300 K, and a
   failing call with its code. Built against an install by find_package, by
   pkg-config and by add_subdirectory. */
#include <stdio.h>

#include "kvtcore.h"
#include "kvtcore_batch.h"

int main(void) {
  double h = kvtH1PT(3e6, 300.0);
  double bad = kvtVPT(1e5, 200.0);
  int code = kvtGETLASTERROR();
  printf("%.4f %g %d %s\n", h, bad, code, kvtRangeText("PT") ? "range" : "none");
  return h > 115331.27 && h < 115331.28 && bad == -1.0 && code == 2 ? 0 : 1;
}
