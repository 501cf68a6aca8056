// Fuzz target over every export of the catalogue: the input is a program of
// setting changes, registry steps and calls of any row with arguments drawn
// biased to special and boundary values, gas ids and gas texts. After each
// call the contract of the frame is checked (fuzz_common.h); the sanitizers
// watch the rest.
#include "fuzz_common.h"

using namespace kvtfuzz;

namespace {

// The iteration cap stays small here: a NaN that runs a solve to the cap by
// design must not read as a hang.
void ChangeSetting(Bytes& in) {
  static const int32_t caps[] = {0, 1, 2, 3, 5, 10, 100, 1000, -1, INT32_MIN};
  switch (in.Byte() % 4) {
    case 0: kvtSETMAXITERATION(caps[in.Byte() % (sizeof caps / sizeof caps[0])]); break;
    case 1: kvtSETTOLERANCE(Double(in)); break;
    case 2: kvtSETTOLERANCEMODE(in.Byte() % 3 - 1); break;
    default: kvtSETCHECKRANGEMODE(in.Byte() % 3 - 1); break;
  }
}

void Remember(Session& s, int32_t id) {
  if (id != -1) s.ids.push_back(id);
}

// Gases of this input, to build mixtures, nest them and delete them.
void RegistryStep(Bytes& in, Session& s) {
  Outputs none;
  switch (in.Byte() % 5) {
    case 0:
      Remember(s, kvtgNEWID());
      break;
    case 1:  // a named gas keeps its memory by design: one per input
      if (s.namedGases++ == 0) {
        s.names.push_back("g" + std::to_string(in.Byte() % 4));
        Remember(s, kvtgNEWIDNAME(s.names.back().c_str()));
      }
      break;
    case 2:
      Remember(s, kvtgNEWIDGS(Draw<const char*>(in, s, none)));
      break;
    case 3: {  // nest the last gas into a new one, a few levels at once
      const int levels = in.Byte() % 8;
      for (int i = 0; i < levels && !s.ids.empty(); ++i) {
        const int32_t outer = kvtgNEWID();
        kvtgADDGASV(outer, s.ids.back(), Double(in));
        Remember(s, outer);
      }
      break;
    }
    default:
      if (!s.ids.empty()) kvtgDELETEGASID(s.ids[in.Byte() % s.ids.size()]);
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static Session session;
  for (int32_t id : session.ids) kvtgDELETEGASID(id);
  session = Session();
  if (kvtgGASESCOUNT() > 200) kvtgDELETEGASES();
  kvtSETMAXITERATION(100);
  kvtSETTOLERANCE(2e-12);
  kvtSETTOLERANCEMODE(1);
  kvtSETCHECKRANGEMODE(1);

  const std::vector<Row>& rows = Rows();
  Bytes in(data, size);
  Outputs out;
  for (int steps = 0; steps < 64 && !in.Empty(); ++steps) {
    const uint8_t op = in.Byte();
    if (op < 16) {
      ChangeSetting(in);
    } else if (op < 40) {
      RegistryStep(in, session);
    } else {
      const Row& row = rows[in.Word() % rows.size()];
      // Help and about open windows on Windows; the cap and named gases
      // are set above, within bounds.
      if (std::strcmp(row.shape, "H1") == 0 || std::strcmp(row.name, "kvtSETMAXITERATION") == 0 ||
          std::strcmp(row.name, "kvtgNEWIDNAME") == 0)
        continue;
      row.call(in, session, out, row.name, row.plain);
    }
    if (session.texts.size() > 64) session.texts.clear();
  }
  return 0;
}
