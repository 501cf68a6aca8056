/* Prints the catalogue as kvtFunctionInfo gives it, one row a line, for
   check_function_info.py to compare with tools/catalogue.py. Plain C, so that
   it also shows that kvtcore_batch.h serves a C program. */
#include <stdio.h>

#include "kvtcore_batch.h"

static void List(const char* const* items, int32_t n) {
  for (int32_t i = 0; i < n; ++i) printf("%s%s", i ? "," : "", items[i]);
  printf("|");
}

int main(void) {
  for (int32_t i = 0; i < kvtFunctionCount(); ++i) {
    const kvtFunctionInfo* f = kvtFunctionAt(i);
    printf("%d|%s|%s|%s|%s|%d|%d|%d|%d|", f->ordinal, f->name, f->shape, f->rule, f->result,
           f->gas, f->evaluable, f->inputs, f->outputs);
    List(f->inputNames, f->inputs);
    List(f->inputUnits, f->inputs);
    List(f->outputNames, f->outputs);
    List(f->outputUnits, f->outputs);
    printf("\n");
  }
  return 0;
}
