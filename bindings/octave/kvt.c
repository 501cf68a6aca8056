/*
 * kvt: the library for Octave and MATLAB, one MEX gateway over the array
 * interface of kvtcore_batch.h.
 *
 *   h = kvt('HPT', p, T)             arrays of one shape, or scalars broadcast
 *   [h, codes] = kvt('HPT', p, T)    NaN where a point failed, its code in codes
 *   [p, T, codes] = kvt('PTHS', h, s)     a pair row: both outputs, then codes
 *   [v, u, s, h, cv, w, ..., cp] = kvt('VUSHCVWDERPTPT', p, T)   14 outputs
 *   cp = kvt('gCPGST', 'N2:0.79;O2:0.21', T)   a gas text; gas ids as numbers
 *   names = kvt('list')              every function, [names, info] with details
 *   kvt('set', 'toleranceMode', 0)   settings: tolerance, toleranceMode,
 *   kvt('get', 'toleranceMode')        checkRangeMode, maxIteration, threads
 *   id = kvt('newgas', 'N2:0.5;CO2:0.5')   a gas of the session, by id
 *
 * The dispatch is the catalogue itself: kvtFunctionFind gives each row's
 * inputs and outputs, kvtEvalRow evaluates it, so this file names no export.
 * The gateway keeps one engine for the session (its settings and gases),
 * freed when the MEX file is cleared.
 */
#include <string.h>

#include "kvtcore_batch.h"
#include "mex.h"

static kvtEngine* engine = NULL;
static int32_t threads = 1;

static void FreeEngine(void) {
  kvtEngineFree(engine);
  engine = NULL;
}

static kvtEngine* Engine(void) {
  if (engine == NULL) {
    engine = kvtEngineNew();
    if (engine == NULL) mexErrMsgIdAndTxt("kvt:memory", "kvt: no memory for an engine");
    mexAtExit(FreeEngine);
  }
  return engine;
}

static char* Text(const mxArray* a, const char* what) {
  char* s = mxIsChar(a) ? mxArrayToString(a) : NULL;
  if (s == NULL) mexErrMsgIdAndTxt("kvt:argument", "kvt: %s must be a text", what);
  return s;
}

static double Scalar(const mxArray* a, const char* what) {
  if (!mxIsDouble(a) || mxIsComplex(a) || mxGetNumberOfElements(a) != 1)
    mexErrMsgIdAndTxt("kvt:argument", "kvt: %s must be one real number", what);
  return mxGetScalar(a);
}

/* kvt('list'): the names without the kvt prefix; with a second output a
   struct array of what each takes and gives. */
static void List(int nlhs, mxArray* plhs[]) {
  static const char* fields[] = {"name", "inputs", "units", "outputs", "result", "arrays"};
  const int32_t n = kvtFunctionCount();
  mxArray* names = mxCreateCellMatrix((mwSize)n, 1);
  mxArray* info = nlhs > 1 ? mxCreateStructMatrix((mwSize)n, 1, 6, fields) : NULL;
  for (int32_t i = 0; i < n; ++i) {
    const kvtFunctionInfo* f = kvtFunctionAt(i);
    mxSetCell(names, (mwIndex)i, mxCreateString(f->name + 3));
    if (info == NULL) continue;
    mxArray* inputs = mxCreateCellMatrix(1, (mwSize)f->inputs);
    mxArray* units = mxCreateCellMatrix(1, (mwSize)f->inputs);
    for (int32_t k = 0; k < f->inputs; ++k) {
      mxSetCell(inputs, (mwIndex)k, mxCreateString(f->inputNames[k]));
      mxSetCell(units, (mwIndex)k, mxCreateString(f->inputUnits[k]));
    }
    mxArray* outputs = mxCreateCellMatrix(1, (mwSize)f->outputs);
    for (int32_t k = 0; k < f->outputs; ++k) mxSetCell(outputs, (mwIndex)k, mxCreateString(f->outputNames[k]));
    mxSetField(info, (mwIndex)i, "name", mxCreateString(f->name + 3));
    mxSetField(info, (mwIndex)i, "inputs", inputs);
    mxSetField(info, (mwIndex)i, "units", units);
    mxSetField(info, (mwIndex)i, "outputs", outputs);
    mxSetField(info, (mwIndex)i, "result", mxCreateString(f->result));
    mxSetField(info, (mwIndex)i, "arrays", mxCreateLogicalScalar(f->evaluable || f->outputs > 1));
  }
  plhs[0] = names;
  if (info != NULL) plhs[1] = info;
}

/* kvt('set', name, value) and kvt('get', name): the engine's settings, and
   'threads' (1 the calling thread, 0 every core, m threads) for the arrays. */
static void Setting(int set, int nrhs, const mxArray* prhs[], mxArray* plhs[]) {
  if (nrhs != (set ? 3 : 2)) mexErrMsgIdAndTxt("kvt:argument", "kvt: kvt('set', name, value) or kvt('get', name)");
  char* name = Text(prhs[1], "the setting's name");
  double value = set ? Scalar(prhs[2], "the setting's value") : 0;
  int unknown;
  if (strcmp(name, "threads") == 0) {
    unknown = set && (value < 0 || value > 1024 || value != (int32_t)value);
    if (set && !unknown) threads = (int32_t)value;
    value = threads;
  } else if (set) {
    unknown = kvtEngineSet(Engine(), name, value) != 0;
  } else {
    value = kvtEngineGet(Engine(), name);
    unknown = mxIsNaN(value);
  }
  if (unknown) mexErrMsgIdAndTxt("kvt:setting", "kvt: no setting '%s' takes that value", name);
  if (set && strcmp(name, "threads") != 0) value = kvtEngineGet(Engine(), name);  /* as stored */
  mxFree(name);
  plhs[0] = mxCreateDoubleScalar(value);
}

/* kvt(name, args...): the row over arrays. */
static void Evaluate(const char* name, int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  const kvtFunctionInfo* f = kvtFunctionFind(name);
  if (f == NULL) mexErrMsgIdAndTxt("kvt:unknown", "kvt: no function '%s'; kvt('list') names them", name);
  if (!f->evaluable && f->outputs == 1)
    mexErrMsgIdAndTxt("kvt:unknown",
                      "kvt: %s changes settings or gases or gives a text: not evaluated over arrays "
                      "(kvt('set', ...), kvt('newgas', ...))", f->name);
  if (nrhs - 1 != f->inputs || f->inputs > 16)
    mexErrMsgIdAndTxt("kvt:argument", "kvt: %s takes %d arguments", f->name + 3, (int)f->inputs);
  if (nlhs > f->outputs + 1)
    mexErrMsgIdAndTxt("kvt:argument", "kvt: %s gives %d outputs and the codes", f->name + 3, (int)f->outputs);

  char* gas = NULL;
  const mxArray** numbers = prhs + 1;
  int count = f->inputs;
  if (f->gas == 2) {
    gas = Text(prhs[1], "the gas");
    ++numbers;
    --count;
  }
  /* Every argument has the shape of the first that is not a scalar, or is one. */
  const mxArray* shape = NULL;
  const double* args[16];
  size_t strides[16];
  for (int k = 0; k < count; ++k) {
    const mxArray* a = numbers[k];
    if (!mxIsDouble(a) || mxIsComplex(a) || mxIsSparse(a))
      mexErrMsgIdAndTxt("kvt:argument", "kvt: argument %d of %s must be a real double array", k + 1, f->name + 3);
    args[k] = mxGetPr(a);
    strides[k] = mxGetNumberOfElements(a) == 1 ? 0 : 1;
    if (strides[k] == 0) continue;
    if (shape == NULL) {
      shape = a;
    } else if (mxGetNumberOfDimensions(a) != mxGetNumberOfDimensions(shape) ||
               memcmp(mxGetDimensions(a), mxGetDimensions(shape),
                      mxGetNumberOfDimensions(a) * sizeof(mwSize)) != 0) {
      mexErrMsgIdAndTxt("kvt:argument", "kvt: the arguments of %s differ in size (scalars are repeated)", f->name + 3);
    }
  }
  mwSize one[2] = {1, 1};
  const mwSize ndim = shape ? mxGetNumberOfDimensions(shape) : 2;
  const mwSize* dims = shape ? mxGetDimensions(shape) : one;
  const size_t n = shape ? mxGetNumberOfElements(shape) : 1;

  /* Every output, then the codes; plhs has room for the ones asked for. */
  mxArray* results[15];
  double* outs[14];
  for (int j = 0; j < f->outputs; ++j) {
    results[j] = mxCreateNumericArray(ndim, dims, mxDOUBLE_CLASS, mxREAL);
    outs[j] = mxGetPr(results[j]);
  }
  results[f->outputs] = mxCreateNumericArray(ndim, dims, mxINT32_CLASS, mxREAL);
  int64_t failed = kvtEvalRow(Engine(), f, gas, n, args, strides, outs,
                              (int32_t*)mxGetData(results[f->outputs]), threads);
  if (gas != NULL) mxFree(gas);
  const int given = failed < 0 ? 0 : nlhs > 1 ? nlhs : 1;
  for (int j = 0; j <= f->outputs; ++j) {
    if (j < given) {
      plhs[j] = results[j];
    } else {
      mxDestroyArray(results[j]);
    }
  }
  if (failed < 0) mexErrMsgIdAndTxt("kvt:unknown", "kvt: %s cannot be evaluated", f->name + 3);
}

void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {
  if (nrhs < 1 || !mxIsChar(prhs[0]))
    mexErrMsgIdAndTxt("kvt:argument", "kvt: kvt(name, arguments...), e.g. kvt('HPT', p, T); kvt('list')");
  char* name = Text(prhs[0], "the name");
  if (strcmp(name, "list") == 0) {
    List(nlhs, plhs);
  } else if (strcmp(name, "set") == 0 || strcmp(name, "get") == 0) {
    Setting(name[0] == 's', nrhs, prhs, plhs);
  } else if (strcmp(name, "newgas") == 0) {
    if (nrhs != 2) mexErrMsgIdAndTxt("kvt:argument", "kvt: kvt('newgas', gasText)");
    char* spec = Text(prhs[1], "the gas");
    const int32_t id = kvtEngineNewGas(Engine(), spec);
    mxFree(spec);
    if (id < 0) mexErrMsgIdAndTxt("kvt:gas", "kvt: %s", kvtErrorMessage(kvtEngineLastError(Engine())));
    plhs[0] = mxCreateDoubleScalar(id);
  } else {
    Evaluate(name, nlhs, plhs, nrhs, prhs);
  }
  mxFree(name);
}
