// Registry stress: a million gases made, mixed, nested deep and shared, read
// through streams of texts and deleted again, in rounds. Memory in use must
// come back to the same figure after every round: nothing kept but what the
// design keeps on purpose (a named gas's extra reference, measured apart).
//
//   kvt_registry_stress [rounds]     exit status 0 when memory came back
//
// 125 rounds (the default) make a million gases; the test suite runs 10.
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "kvtcore.h"

#if defined(__SANITIZE_ADDRESS__)
#define KVT_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KVT_ASAN 1
#endif
#endif
#ifdef KVT_ASAN
// From the sanitizer runtime (g++ ships no header that declares it).
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

size_t BytesInUse() {
#ifdef KVT_ASAN
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}

int failures = 0;
void Expect(bool ok, const char* what) {
  if (!ok) {
    std::fprintf(stderr, "FAILED: %s (error %d)\n", what, static_cast<int>(kvtGETLASTERROR()));
    ++failures;
  }
}

// One round: 10000 gases in flat mixtures, a chain 2000 deep, a shared
// ladder 60 deep, 3000 texts through the cache (past its purge), then all
// deleted.
int Round() {
  std::vector<int32_t> ids;
  for (int i = 0; i < 6000; ++i) {
    const int32_t id = kvtgNEWID();
    Expect(kvtgADDGASV(id, i % 13, 1 + i % 7) == 1, "add by volume");
    Expect(kvtgADDGASM(id, (i + 5) % 13, 0.5) >= 1, "add by mass");
    ids.push_back(id);
  }
  int32_t inner = kvtgNEWID();
  kvtgADDGASV(inner, 3, 1);
  ids.push_back(inner);
  for (int i = 0; i < 2000; ++i) {
    const int32_t outer = kvtgNEWID();
    kvtgADDGASV(outer, inner, 1);
    kvtgADDGASV(outer, ids[i], 2);
    ids.push_back(inner = outer);
  }
  int32_t a = 0, b = 1;
  for (int i = 0; i < 60; ++i) {
    const int32_t c = kvtgNEWID();
    kvtgADDGASV(c, a, 1);
    kvtgADDGASV(c, b, 1);
    ids.push_back(c);
    a = b;
    b = c;
  }
  Expect(kvtgGSID(inner) != nullptr && kvtgGSID(b) != nullptr, "text of nested mixtures");
  for (int i = 0; i < 3000; ++i) {
    const std::string text = "N2:" + std::to_string(i) + ";{O2:1;Ar:" + std::to_string(i % 17) +
                             "}:2;CO2:1e" + std::to_string(i % 300 - 150);
    Expect(kvtgCPGST(text.c_str(), 500) > 0, "text in the stream");
    if (i % 100 == 0) {
      const int32_t id = kvtgNEWIDGS(("H2:1;" + text).c_str());
      Expect(id != -1, "gas from a text");
      ids.push_back(id);
    }
    Expect(kvtgGSGS("N2:1;;O2:1;Ar:1") == nullptr, "refused text");
  }
  for (int32_t id : ids) kvtgDELETEGASID(id);
  Expect(kvtgDELETEGASES() == 13, "all deleted");
  return static_cast<int>(ids.size());
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::max(std::atoi(argv[1]), 6) : 125;
  // Five rounds to warm up: the hash maps' bucket arrays reach their size
  // (they grow and never shrink) and the allocator its pattern; the most
  // they held is the baseline, and from here on memory must not pass it.
  long made = 0;
  size_t baseline = 0;
  for (int r = 0; r < 5; ++r) {
    made += Round();
    baseline = std::max(baseline, BytesInUse());
  }
  for (int r = 5; r < rounds; ++r) made += Round();
  const size_t after = BytesInUse();
  std::printf("%d rounds, %ld gases made: baseline %zu bytes, after %zu bytes\n", rounds, made,
              baseline, after);
  Expect(after <= baseline, "memory back at its baseline");
  // A named gas is kept for the life of the process by design: that, and
  // only that, stays after its deletion.
  const size_t before = BytesInUse();
  for (int i = 0; i < 1000; ++i)
    kvtgDELETEGASID(kvtgNEWIDNAME(("kept" + std::to_string(i)).c_str()));
  const size_t kept = BytesInUse() - before;
  std::printf("1000 named gases deleted: %zu bytes kept on purpose\n", kept);
  Expect(kept > 0 && kept < 1000 * 1024, "named gases keep their record alone");
  return failures == 0 ? 0 : 1;
}
