/*
 * kvtcore_batch: engines as values, and evaluation over arrays.
 *
 * The exports of kvtcore.h share one global engine: its settings, last error
 * and gas registry belong to the whole process, and calls must take turns.
 * This interface works on engines the caller creates. Each engine has its own
 * settings, last error, scratch tables and gases (the fifteen built-in ones,
 * plus those added to it), so separate engines on separate threads need no
 * lock. One engine must not be used by two threads at once; kvtEval with
 * threads above 1 is safe, since each worker runs on an engine of its own
 * that carries the caller's settings and gases.
 *
 * Every point of kvtEval gives, bit for bit, what the export of the same name
 * gives for the same arguments under the same settings.
 *
 *   kvtEngine* e = kvtEngineNew();
 *   const double* args[2] = {p, T};               // n pressures, n temperatures
 *   int64_t failed = kvtEval(e, "HPT", n, args, NULL, h, codes, 0);
 *   kvtEngineFree(e);
 */
#ifndef KVTCORE_BATCH_H
#define KVTCORE_BATCH_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#  if defined(KVT_BUILDING)
#    define KVT_BATCH_API __declspec(dllexport)
#  else
#    define KVT_BATCH_API __declspec(dllimport)
#  endif
#elif defined(KVT_BUILDING)
#  define KVT_BATCH_API __attribute__((visibility("default")))
#else
#  define KVT_BATCH_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Engines ---- */

typedef struct kvtEngine kvtEngine;

/* A new engine with the default settings and the built-in gases; null if
   memory runs out. */
KVT_BATCH_API kvtEngine* kvtEngineNew(void);
/* A new engine with the settings and gases of e (null if e is null or memory
   runs out). */
KVT_BATCH_API kvtEngine* kvtEngineClone(const kvtEngine* e);
/* Frees an engine; null is accepted. */
KVT_BATCH_API void kvtEngineFree(kvtEngine* e);

/* Settings by name: "tolerance", "toleranceMode", "checkRangeMode",
   "maxIteration". Set returns 0, or 1 for an unknown name, a null engine, or
   a value that is no 32-bit integer for the three integer settings; the
   value is stored as the export's setter stores it (and the engine's last
   error set as the setter sets it: a NaN tolerance is stored and gives 1).
   Get returns the value, or NaN for an unknown name or a null engine. */
KVT_BATCH_API int32_t kvtEngineSet(kvtEngine* e, const char* setting, double value);
KVT_BATCH_API double kvtEngineGet(const kvtEngine* e, const char* setting);

/* The code of the engine's last failure: 0 after a successful call; after
   kvtEval and its kin, the code of the last point. -1 for a null engine. */
KVT_BATCH_API int32_t kvtEngineLastError(const kvtEngine* e);

/* Gases of one engine: registers a gas-spec text (as kvtgNEWIDGS does) and
   returns its id in this engine, or -1 with the code in kvtEngineLastError;
   deletes a gas the caller added (as kvtgDELETEGASID). */
KVT_BATCH_API int32_t kvtEngineNewGas(kvtEngine* e, const char* gasSpec);
KVT_BATCH_API int32_t kvtEngineDeleteGas(kvtEngine* e, int32_t id);

/* ---- The catalogue, as data ---- */

typedef struct kvtFunctionInfo {
  int32_t ordinal;            /* the export's ordinal */
  const char* name;           /* "kvtHPT" */
  const char* shape;          /* call shape, see kvtcore.h: "D2", "GS1", "P2", ... */
  const char* rule;           /* range rule: "PT", "None", ... */
  const char* result;         /* what it returns, with the unit: "enthalpy [J/kg]" */
  int32_t gas;                /* 0 water and the library; a gas function:
                                 2 if it takes gas texts, else 1 (by id) */
  int32_t evaluable;          /* 1: numbers in, one number out, no side effect:
                                 kvtEval takes it (and kvtEvalRow) */
  int32_t inputs;             /* arguments the caller gives, the gas included */
  int32_t outputs;            /* numbers out: 1, 2 (pair) or 14 */
  const char* const* inputNames;   /* "p", "T", ... (inputs of them) */
  const char* const* inputUnits;   /* "Pa", "K", "-" for a pure number, "" */
  const char* const* outputNames;  /* the pair's or the 14 outputs' names;
                                      "value" for a one-number row */
  const char* const* outputUnits;  /* their units; the result's for one */
} kvtFunctionInfo;

/* The number of catalogue rows, and row i (0-based; null outside). */
KVT_BATCH_API int32_t kvtFunctionCount(void);
KVT_BATCH_API const kvtFunctionInfo* kvtFunctionAt(int32_t i);
/* A row by name, with or without the kvt prefix, in any case; null if none. */
KVT_BATCH_API const kvtFunctionInfo* kvtFunctionFind(const char* name);

/* The meaning of an error code in English ("arguments outside the range of
   the function"); "unknown error" for a code the library never gives. */
KVT_BATCH_API const char* kvtErrorMessage(int32_t code);

/* The valid range of a range rule (kvtFunctionInfo.rule: "PT", "PH", "GT",
   "None", ...) in words and numbers, from the constants the check itself
   compares with: "T from 273.15999999999 to 2273.15 K, p from ...". Null for
   an unknown rule. The text is static and needs no freeing. */
KVT_BATCH_API const char* kvtRangeText(const char* rule);

/* ---- Any row, once, on an engine ---- */

/* Calls catalogue row fn on engine e as its export calls it on the global
   engine: the same checks and core, so the result, the code and any text are
   the export's, and settings, last error and gases are e's own (a gas that
   kvtgNEWID or kvtgNEWIDGS makes here exists in e only).
   numbers: the row's numeric arguments in order, ids, modes and other
   integer arguments as doubles holding integers (may be null if it has
   none); an integer argument that is no 32-bit integer fails the call with
   code 1 before anything runs, and the result is -1. texts: its text
   arguments in order (gas texts, names; may be null if it has none).
   result (may be null) receives the returned number, an int32 result as a
   double; for a text row 0, or -1 when the export returns null. outputs (may
   be null) receives the two numbers of a pair row or the fourteen of a
   14-output row, as the export writes them. text (may be null) receives a
   text result (UTF-16 for kvtGETLASTERRORDESCRIPTIONW), null otherwise;
   it lives in e until the next call on e. Returns e's last error after the
   call (0 on success; what a last-error row leaves), or -1 with nothing done
   for a null engine, a pointer that is no row of kvtFunctionAt, or null
   numbers or texts that the row needs. */
KVT_BATCH_API int32_t kvtEngineCall(kvtEngine* e, const kvtFunctionInfo* fn,
                                    const double* numbers, const char* const* texts,
                                    double* result, double* outputs, const char** text);

/* ---- Evaluation over arrays ---- */

/* Evaluates the catalogue function `name` (with or without the kvt prefix,
   any case) at n points. args[i] points at the values of argument i and
   strides[i] is its step in elements (0 broadcasts one value to all points;
   strides may be null for all 1). A gas id is given as a double holding an
   integer. out[k] gets the result of point k, NaN where it failed; codes (may
   be null) gets each point's error code, 0 on success. threads: 1 runs on the
   calling thread, 0 on every core, m on m threads. Returns the number of
   failed points; -1 with nothing written for an unknown name, a function that
   is not evaluable over arrays (or takes a gas text: see kvtEvalGas), a null
   engine or out, null args for a function that has numeric arguments, a null
   args[i], or threads below 0. Points are independent: whatever threads is,
   each gives what the export gives under the engine's settings and gases.
   One engine must not be used by two threads at once, also not here. */
KVT_BATCH_API int64_t kvtEval(kvtEngine* e, const char* name, size_t n,
                              const double* const* args, const size_t* strides,
                              double* out, int32_t* codes, int32_t threads);

/* The same for the gas functions by text: `gas` is the gas-spec text of
   every point, args are the function's remaining arguments. The text is read
   once per call, on e, which keeps it in its cache as a loop of exports
   would. The two functions of a pair of texts (kvtgVFGSGS, kvtgMFGSGS) take
   both in `gas`, separated by '|': "N2:0.79;O2:0.21|O2". */
KVT_BATCH_API int64_t kvtEvalGas(kvtEngine* e, const char* name, const char* gas, size_t n,
                                 const double* const* args, const size_t* strides,
                                 double* out, int32_t* codes, int32_t threads);

/* The general form, for a row found once: every row kvtEval takes, and the
   pair and 14-output rows (a gas text given in `gas`, else null). outs[j]
   receives output j of every point (fn->outputs arrays of n). A point fails
   when the call fails or any of its outputs is not finite: every output is
   then NaN and its code is the call's, or 1. */
KVT_BATCH_API int64_t kvtEvalRow(kvtEngine* e, const kvtFunctionInfo* fn, const char* gas,
                                 size_t n, const double* const* args, const size_t* strides,
                                 double* const* outs, int32_t* codes, int32_t threads);

#ifdef __cplusplus
}
#endif

#endif /* KVTCORE_BATCH_H */
